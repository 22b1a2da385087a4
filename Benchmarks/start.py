"""Times whole processes for report.py, in random order: an empty program, one that loads Lumora without using it, and one for each
library, Lumora included, that prints a text. Measures processor time, of the process and of the kernel for it, because other
processes may be running."""
import os
import random
import shutil
import statistics
import subprocess
import sys
import tempfile

RUNS = 400
PROGRAMS = {"start-empty": "Continue\n", "start-loaded": "Continue\n"} | {
    f"start-{name}": "Продолжить\n" for name in ("text", "gettext", "icu", "qt", "boost")}
# gettext needs a locale that is installed; ru_RU.UTF-8, which the others get, may be missing.
ENVIRONMENT = {"start-gettext": {"LC_ALL": "C.UTF-8", "LANGUAGE": "ru"}}


def environment(program):
    return os.environ | ENVIRONMENT.get(program, {"LC_ALL": "ru_RU.UTF-8", "LANGUAGE": ""})


def run(folder, program):
    """The milliseconds of one run."""
    child = os.posix_spawn(f"{folder}/{program}", [program], environment(program),
                           file_actions=[(os.POSIX_SPAWN_OPEN, 1, "/dev/null", os.O_WRONLY, 0)])
    _, _, used = os.wait4(child, 0)
    return (used.ru_utime + used.ru_stime) * 1e3


def medians(folder):
    """The milliseconds of each program, after checking its output. Copies are measured, as users have them: files
    that the linker has just written take more page faults than copies, about 70 µs for our libraries."""
    with tempfile.TemporaryDirectory(prefix="lumora-start-") as copy:
        os.mkdir(f"{copy}/bin")
        for program in PROGRAMS:
            shutil.copy(f"{folder}/{program}", f"{copy}/bin")
        shutil.copytree(f"{folder}/../lib", f"{copy}/lib", symlinks=True)
        return medians_of(f"{copy}/bin")


def medians_of(folder):
    for program, text in PROGRAMS.items():
        output = subprocess.run([f"{folder}/{program}"], env=environment(program), capture_output=True, text=True, check=True).stdout
        if output != text:
            sys.exit(f"{program} prints {output!r}")
    times = {program: [] for program in PROGRAMS}
    for _ in range(RUNS):
        for program in random.sample(list(PROGRAMS), len(PROGRAMS)):
            times[program].append(run(folder, program))
    return {program: statistics.median(all_runs) for program, all_runs in times.items()}
