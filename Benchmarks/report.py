"""report.py FOLDER: runs the benchmarks in FOLDER in random order and writes their table into Docs/performance.md. If a check of a
result fails, it ends with an error and leaves the page as it is."""
import datetime
import json
import os
import pathlib
import re
import subprocess
import sys

import builds
import start

PEERS = ("Gettext", "Icu", "Qt", "Boost")
# description, our benchmark, the benchmarks of which the fastest is compared with ours, the aim for the ratio
RATIOS = [
    ("a plain read after the first", "plainText", ["plainFunctionLocalStatic"], 1.1),
    ("the same, compared with the fastest other library", "plainText", [f"plain{peer}" for peer in PEERS], None),
    ("a formatted read", "formattedText", ["formattedMapAndFmt"], 0.5),
    ("the same, compared with snprintf alone", "formattedText", ["formattedSnprintf"], None),
    ("the same, compared with the fastest other library", "formattedText", [f"formatted{peer}" for peer in PEERS], None),
    ("a number", "numberText", ["numberIcuKept"], 0.2),
    ("the same, compared with QLocale", "numberText", ["numberQtKept"], None),
    ("a year phrase", "yearsText", ["yearsIcuKept"], 0.35),
    ("opening a compiled table and reading one text", "compiledOneText", ["tableLoadQt"], 1 / 3),
    ("opening a compiled table and reading all texts", "compiledAllTexts", ["binaryAllTexts"], 1.0),
    ("loading a binary table without an index", "tableFromBinary", ["tableLoadQt"], None),
]
# description, our benchmark, the aim in nanoseconds
LIMITS = [
    ("opening a compiled table and reading one text", "compiledOneText", 5000),
    ("reading a random text of a table in memory", "compiledLookUp", 8),
]


def row(what, ours, other="", theirs="", ratio="", aim="", reached=None):
    mark = {None: "", True: "yes", False: "**no**"}[reached]
    return f"| {what} | {ours} | {other} | {theirs} | {ratio} | {aim} | {mark} |"


def ratio_row(what, ours, other, theirs, unit, aim):
    ratio = ours / theirs
    reached = None if aim is None else ratio <= aim
    return row(what, f"{ours:,.3g} {unit}", other, f"{theirs:,.3g} {unit}", f"{ratio:.2f}", "" if aim is None else f"≤ {aim:.2f}", reached)


def limit_row(what, ours, unit, limit):
    return row(what, f"{ours:,.3g} {unit}", aim=f"≤ {limit:g} {unit}", reached=ours <= limit)


def thread_rows(medians, what, ours, other, aim, counts):
    """Compares `ours` and `other` with the same number of threads, because threads that share a core are slower, whatever they run."""
    def time(name, threads):
        # Benchmarks with threads have "/real_time" in their names: real time determines their number of iterations. The time here is the processor's.
        return medians[f"{name}/real_time/threads:{threads}"]["cpu_time"]
    return [ratio_row(f"{what}, {threads} threads at once", time(ours, threads), other, time(other, threads), "ns", aim)
            for threads in counts]


def library_rows(folder):
    result = f"{folder}/benchmarks.json"
    subprocess.run([f"{folder}/benchmarks", "--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=9",
                    "--benchmark_min_time=0.05", f"--benchmark_out={result}", "--benchmark_out_format=json"],
                   stdout=subprocess.DEVNULL, check=True)
    with open(result, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    failed = sorted({run["run_name"] for run in runs if run.get("error_occurred")})
    if failed:
        sys.exit("wrong results: " + ", ".join(failed))
    medians = {run["run_name"]: run for run in runs if run.get("aggregate_name") == "median"}
    times = {name.removesuffix("/real_time/threads:1"): run["cpu_time"] for name, run in medians.items()}
    rows = [ratio_row(what, times[ours], min(others, key=times.get), min(map(times.get, others)), "ns", aim)
            for what, ours, others, aim in RATIOS]
    rows += [limit_row(what, times[ours], "ns", limit) for what, ours, limit in LIMITS]
    rows += thread_rows(medians, "a plain read", "plainText", "plainFunctionLocalStatic", 1.1, (2,))
    rows += thread_rows(medians, "a formatted read", "formattedText", "formattedMapAndFmt", 0.5, (2, 4, 8, 16))
    speed = medians["tableFromText"]["bytes_per_second"] / 1e9
    rows.append(row("reading a text table", f"{speed:.2f} GB/s", aim="≥ 1 GB/s", reached=speed >= 1))
    return rows


def start_rows(folder):
    starts = start.medians(folder)
    empty = starts.pop("start-empty")
    added = {name.removeprefix("start-"): time - empty for name, time in starts.items()}
    ours = added.pop("text")
    what = f"first text of a process, minus an empty process ({empty:.2f} ms)"
    aims = {"gettext": 1.15}
    names = {"loaded": "the library loaded but unused"}
    return [ratio_row(what, ours, names.get(peer, peer), time, "ms", aims.get(peer))
            for peer, time in sorted(added.items(), key=lambda item: item[1])]


def memory_rows(folder):
    output = subprocess.run([f"{folder}/memory"], capture_output=True, check=True).stdout
    count, _bytes, resident, private = map(int, output.split())
    if count != 1401:
        sys.exit(f"{count} texts were read, not 1401")
    return [limit_row(f"{what} that reading all {count:,} texts adds", grown / 1024, "MiB", 1)
            for what, grown in (("resident memory", resident), ("private memory", private))]


def build_rows(folder):
    accessors, header, bundle = builds.measured(f"{folder}/lumora")
    return [limit_row("compiling the source of all 1,401 accessors with -O2", accessors, "s", 1.2),
            limit_row("including the header of all accessors, minus including `<string>`", header * 1e3, "ms", 20),
            limit_row("`lumora compile` after one text changed", bundle, "s", 0.1)]


def main(folder):
    cpu = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())[1]
    compiler = subprocess.run(["c++", "--version"], capture_output=True, text=True, check=True).stdout.splitlines()[0]
    rows = [f"`./run bench`, {datetime.date.today():%-d %B %Y}, {cpu}, {os.cpu_count()} cores, {compiler}. Medians of processor time.\n",
            "| What | Lumora | Compared with | Its time | Ratio | Aim | Reached |", "|---|---|---|---|---|---|---|",
            *library_rows(folder), *start_rows(folder), *memory_rows(folder), *build_rows(folder)]
    table = "\n".join(rows)
    print(table)
    page = pathlib.Path(__file__).parent.parent / "Docs/performance.md"
    page.write_text(re.sub(r"(<!-- bench -->\n).*(<!-- /bench -->)", lambda found: f"{found[1]}{table}\n{found[2]}",
                           page.read_text(encoding="utf-8"), flags=re.S), encoding="utf-8")


if __name__ == "__main__":
    main(sys.argv[1])
