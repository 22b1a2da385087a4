"""Runs fuzzers, two at a time, each for SECONDS of processor time: run.py PROGRAMS SECONDS [NAME...].

PROGRAMS is the folder of the programs fuzz-NAME. PROGRAMS/fuzzing/NAME, which is emptied first, gets the log, the inputs that the
fuzzer adds to its corpus, and the input at which it failed, if any. A failure ends that fuzzer, the others go on, and the run ends
with an error.
"""
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import time

together = 2
fuzzers = pathlib.Path(__file__).parent
corpora = {corpus.name.removesuffix("-corpus"): corpus for corpus in sorted(fuzzers.glob("*/*-corpus"))}
ticks = os.sysconf("SC_CLK_TCK")


class Fuzzer:
    def __init__(self, name):
        self.name = name
        self.scratch = programs / "fuzzing" / name
        shutil.rmtree(self.scratch, ignore_errors=True)
        (self.scratch / "corpus").mkdir(parents=True)
        self.log = self.scratch / "log"
        self.seconds = 0.0
        command = [programs / f"fuzz-{name}", self.scratch / "corpus", corpora[name], "-timeout=25", "-rss_limit_mb=1024",
                   "-print_final_stats=1", f"-artifact_prefix={self.scratch}/finding-"]
        if (dictionary := corpora[name].with_name(name + ".dict")).exists():
            command.append(f"-dict={dictionary}")
        with open(self.log, "wb") as log:
            self.child = subprocess.Popen(command, stdout=log, stderr=log, env=os.environ | {"TMPDIR": str(self.scratch)})

    # Tells it to end when its time is over: libFuzzer itself limits only the wall-clock time. Returns false once it has ended.
    def watch(self):
        if self.child.poll() is not None:
            return False
        fields = pathlib.Path(f"/proc/{self.child.pid}/stat").read_text().rpartition(")")[2].split()
        self.seconds = (int(fields[11]) + int(fields[12])) / ticks  # user and system time; see proc(5)
        if self.seconds >= limit:
            self.child.send_signal(signal.SIGUSR1)  # libFuzzer then ends without an error
        return True

    # Prints what it did; returns a message if it found something.
    def report(self):
        output = self.log.read_text(errors="replace")
        if self.child.returncode != 0:
            findings = [str(path) for path in self.scratch.glob("finding-*")]
            print(output[-4000:])
            return f"{self.name} found something: {' '.join(findings) or self.log}"
        executions = re.findall(r"number_of_executed_units: *(\d+)", output)
        coverage = re.findall(r"cov: (\d+) ft: (\d+)", output)
        print(f"{self.name:16} {self.seconds:6.0f} s  {executions[-1]:>10} executions  "
              f"{coverage[-1][0]:>5} edges  {coverage[-1][1]:>6} features", flush=True)
        return None


if len(sys.argv) < 3 or not sys.argv[2].isdigit():
    sys.exit(__doc__.splitlines()[0])
programs, limit = pathlib.Path(sys.argv[1]).resolve(), int(sys.argv[2])
built = [name for name in corpora if (programs / f"fuzz-{name}").exists()]
if not built:
    sys.exit(f"there are no fuzzers in {programs}")
waiting = sys.argv[3:] or built
if unknown := [name for name in waiting if name not in built]:
    sys.exit(f"no fuzzer {' '.join(unknown)}; there are {' '.join(built)}")
running, failures = [], []
while waiting or running:
    while waiting and len(running) < together:
        running.append(Fuzzer(waiting.pop(0)))
    time.sleep(0.5)
    for ended in [one for one in running if not one.watch()]:
        running.remove(ended)
        failures += filter(None, [ended.report()])
sys.exit("\n".join(failures) or None)
