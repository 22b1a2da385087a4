"""Times three steps of a build for report.py: compiling the generated source of all accessors, compiling a source that includes their
header, and `lumora compile` after one text changed. Processor time, medians of several runs."""
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).parent.parent
RUNS = 5


def seconds(*command):
    child = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    _, status, used = os.wait4(child.pid, 0)
    child.returncode = os.waitstatus_to_exitcode(status)  # so that Popen does not wait again
    if child.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))} failed")
    return used.ru_utime + used.ru_stime


def median(*command, before=lambda run: None):
    times = []
    for run in range(RUNS):
        before(run)
        times.append(seconds(*command))
    return statistics.median(times)


def accessor_times(lumora, folder):
    """The seconds for compiling all accessors, and how many more including their header takes than including <string>."""
    # The options of Lumora/CMakeLists.txt, but one source instead of several.
    includes = [f"-I{folder}", f"-I{ROOT}", f"-I{ROOT}/Platform"]
    subprocess.run([lumora, "generate", ROOT / "Resources", "--module", "Lumora", "-o", folder / "Lumora", "--shards", "1",
                    "--include", "Lumora/LumoraStrings+Members.h"], check=True, stdout=subprocess.DEVNULL)
    compiler = ["c++", "-std=c++20", *includes, "-o", folder / "object.o", "-c"]
    source = folder / "Lumora/LumoraStrings-1.cpp"
    whole = median(*compiler, "-O2", "-fvisibility=hidden", source)
    user = folder / "user.cpp"
    times_by_header = {"Lumora/LumoraStrings.h": [], "string": []}
    for _ in range(3 * RUNS):  # more runs, alternately, because the difference is small
        for header, times in times_by_header.items():
            user.write_text(f"#include <{header}>\nstd::string user() {{ return std::string(); }}\n", encoding="utf-8")
            times.append(seconds(*compiler, user))
    accessors, string = map(statistics.median, times_by_header.values())
    return whole, accessors - string


def bundle_time(lumora, folder):
    """The seconds for compiling a bundle again after one text changed."""
    source, bundle = folder / "Resources", folder / "Test.bundle"
    shutil.copytree(ROOT / "Resources", source)
    table = source / "Base.lproj/Localizable.strings"
    text = table.read_text(encoding="utf-8")
    command = (lumora, "compile", source, "-o", bundle)
    seconds(*command)

    def change(run):
        table.write_text(text + f'\n"benchmark.changed" = "changed {run}";\n', encoding="utf-8")

    time = median(*command, before=change)
    read = subprocess.run([lumora, "table", bundle / "Base.lproj/Localizable.strings", "--to", "json"], capture_output=True,
                          text=True, check=True).stdout
    if f"changed {RUNS - 1}" not in read:
        sys.exit("the compiled bundle does not have the changed text")
    return time


def measured(lumora):
    """The two results of accessor_times() and that of bundle_time()."""
    with tempfile.TemporaryDirectory() as folder:
        return *accessor_times(lumora, pathlib.Path(folder)), bundle_time(lumora, pathlib.Path(folder))
