"""Runs the benchmarks of FOLDER in random order and writes their table into Docs/performance.md; a failed check fails."""
import datetime
import json
import os
import pathlib
import re
import subprocess
import sys

import start

folder = sys.argv[1]
result = f"{folder}/benchmarks.json"
subprocess.run([f"{folder}/benchmarks", "--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=9",
                "--benchmark_min_time=0.05", f"--benchmark_out={result}", "--benchmark_out_format=json"],
               stdout=subprocess.DEVNULL, check=True)
with open(result, encoding="utf-8") as file:
    runs = json.load(file)["benchmarks"]
failed = sorted({run["run_name"] for run in runs if run.get("error_occurred")})
if failed:
    sys.exit("wrong results: " + ", ".join(failed))
times = {run["run_name"].removesuffix("/real_time/threads:1"): run["real_time"]
         for run in runs if run.get("aggregate_name") == "median"}
peers = ("Gettext", "Icu", "Qt", "Boost")
# what, ours, beside it, the most that ours may take as a part of it
aims = [
    ("a later plain read", "plainText", ["plainFunctionLocalStatic"], 1.2),
    ("the same beside the fastest peer", "plainText", [f"plain{peer}" for peer in peers], None),
    ("two threads at once", "plainText/real_time/threads:2", ["plainText"], 1 / 1.9),
    ("a formatted read", "formattedText", ["formattedMapAndFmt"], 0.7),
    ("the same beside snprintf alone", "formattedText", ["formattedSnprintf"], None),
    ("the same beside the fastest peer", "formattedText", [f"formatted{peer}" for peer in peers], 1 / 3),
    ("a number", "numberText", ["numberIcuKept"], 1),
    ("the same beside QLocale", "numberText", ["numberQtKept"], None),
    ("a year phrase", "yearsText", ["yearsIcuKept"], 1),
    ("a binary table, without its file's reading", "tableFromBinary", ["tableLoadQt"], 1),
]
lines = ["| What | Ours | Beside it | Its time | Ratio | Aim | Reached |", "|---|---|---|---|---|---|---|"]
for what, ours, others, aim in aims:
    best = min(others, key=times.get)
    ratio = times[ours] / times[best]
    reached = "" if aim is None else "yes" if ratio <= aim else "no"
    lines.append(f"| {what} | {times[ours]:,.3g} ns | {best} | {times[best]:,.3g} ns | {ratio:.2f} | "
                 f"{'' if aim is None else f'≤ {aim:.2f}'} | {reached} |")
speed = next(run["bytes_per_second"] for run in runs
             if run["run_name"] == "tableFromText" and run.get("aggregate_name") == "median") / 1e9
lines.append(f"| a table from text | {speed:.2f} GB/s | | | | ≥ 1 GB/s | {'yes' if speed >= 1 else 'no'} |")
starts = start.medians(folder)
empty = starts.pop("start-empty")
added = {name.removeprefix("start-"): time - empty for name, time in starts.items()}
ours = added.pop("text")
lines.append(f"| first text of a process, over an empty one ({empty:.2f} ms) | {ours:.2f} ms | the library loaded, unused | "
             f"{added['loaded']:.2f} ms | {ours / added.pop('loaded'):.2f} | | |")
for peer, time in sorted(added.items(), key=lambda item: item[1]):
    aim = ("≤ 1.00", "yes" if ours <= time else "no") if peer == "gettext" else ("", "")
    lines.append(f"| first text of a process, over an empty one ({empty:.2f} ms) | {ours:.2f} ms | {peer} | {time:.2f} ms | "
                 f"{ours / time:.2f} | {aim[0]} | {aim[1]} |")
count, _, resident, own = map(int, subprocess.run([f"{folder}/memory"], capture_output=True, check=True).stdout.split())
if count != 1401:
    sys.exit(f"{count} texts were read, not 1401")
for what, grown in ("resident memory", resident), ("memory of the process's own", own):
    lines.append(f"| {what} that reading all {count:,} texts adds | {grown / 1024:.2f} MiB | | | | ≤ 1 MiB | "
                 f"{'yes' if grown <= 1024 else 'no'} |")
cpu = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())[1]
compiler = subprocess.run(["c++", "--version"], capture_output=True, text=True, check=True).stdout.splitlines()[0]
lines.insert(0, f"`./run bench`, {datetime.date.today():%-d %B %Y}, {cpu}, {os.cpu_count()} cores, {compiler}. Medians.\n")
table = "\n".join(lines)
print(table)
page = pathlib.Path(__file__).parent.parent / "Docs/performance.md"
page.write_text(re.sub(r"(<!-- bench -->\n).*(<!-- /bench -->)", lambda found: f"{found[1]}{table}\n{found[2]}",
                       page.read_text(encoding="utf-8"), flags=re.S), encoding="utf-8")
