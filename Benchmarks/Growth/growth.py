"""growth.py BUILD: how the cost of each step grows with the keys and with the languages of a source.

Writes source folders, checks the output of each step, times it (processor time, the minimum of several runs) and writes the tables
into Docs/performance.md. The exponent of a step between two sizes is 1 if ten times as much takes ten times as long."""
import itertools
import math
import os
import pathlib
import random
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).parents[2]
BUILD = pathlib.Path(sys.argv[1]).resolve()
TEXT_WORDS = ["daily dish plan week goal add your first weight done",
              "каждый день новый план питания добавьте вес готово", "كل يوم خطة جديدة أضف وزنك تم الهدف",
              "每天 新的 计划 添加 体重 完成 目标", "हर दिन नई योजना वज़न जोड़ें हो गया", "tägliche Übung für größere Ziele ✓ 💪"]
KEY_WORDS = ("All Dish Diet Plan Week Goal Weight Menu Meal Water Sleep Step Coach Chat Feed Post Photo Share Friend "
             "Group Level Badge Score Timer Rest Warm Cool Pulse Body Fat Mass Chart Graph Year Month Day Hour Card "
             "Price Offer Trial Order Gift Code Login Mail Phone Name Age City Map Route Run Walk Bike Swim Yoga Squat "
             "Press Row Plank Jump Set Help").split()


def key(number):
    """Groups of 25 keys; the factors vary the words, of which there are 64, and no two keys are equal."""
    group, entry = divmod(number, 25)
    name = [KEY_WORDS[(entry * 11 + group) % 64], KEY_WORDS[(group * 5 + entry * 3) % 64]]
    if entry == 0:  # in the style "save_button_7", without a group
        return "_".join([*name, str(group)]).lower()
    return f"{KEY_WORDS[group // 64]}{KEY_WORDS[group % 64]}." + "".join(name)


def text(number, words, chance):
    """1 to 15 random words, in 8 of 100 texts with placeholders or a percent sign that begins none."""
    chosen = chance.choices(words, k=chance.randint(1, 15))
    chosen.insert(len(chosen) // 2, {1: "%@", 2: "%2$@, %1$ld", 3: "\"%@\"\n", 4: "100%."}.get(number % 50, ""))
    return " ".join(filter(None, chosen))


def quoted(string):
    return '"' + string.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'


def make_source(folder, keys, languages):
    """Writes the source `folder`/source and the contents of its tables to `folder`/expected; returns the names of the languages."""
    tags = (f"{a}{b}" for a, b in itertools.product("abcdefghijklmnopqrstuvwxyz", repeat=2) if a + b != "en")  # Base has the English texts
    names = ["Base", *itertools.islice(tags, languages - 1)]
    (folder / "expected").mkdir(parents=True)
    for index, name in enumerate(names):
        chance = random.Random(index)
        words = TEXT_WORDS[index % len(TEXT_WORDS)].split()
        texts = [(key(number), text(number, words, chance)) for number in range(keys)]
        table = folder / f"source/{name}.lproj/Localizable.strings"
        table.parent.mkdir(parents=True)
        table.write_text("".join(f"{quoted(k)} = {quoted(t)};\n" for k, t in texts), encoding="utf-8")
        (folder / "expected" / name).write_text("".join(f"{k}\0{t}\0" for k, t in texts), encoding="utf-8")
    return names


def seconds(*command):
    """Processor time of one run, because other processes may be running."""
    child = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, used = os.wait4(child.pid, 0)
    child.returncode = os.waitstatus_to_exitcode(status)  # so that Popen does not wait again
    if child.returncode != 0:
        sys.exit(f"failed: {command}")
    return used.ru_utime + used.ru_stime


def generate_command(source, out, shards="8"):
    return [BUILD / "bin/lumora", "generate", source, "--module", "Grown", "--shards", shards, "-o", out]


def compile_command(source, bundle):
    return [BUILD / "bin/lumora", "compile", source, "-o", bundle]


def accessor_count(out):
    return sum(header.read_text(encoding="utf-8").count("\nLUMORA_EXPORT ") for header in out.glob("GrownStrings/*.h"))


def measure(folder, keys, languages):
    """The processor time of each step in seconds, after checking its output."""
    names = make_source(folder, keys, languages)
    times = {}
    made = folder / "made"
    done = subprocess.run(generate_command(folder / "source", made), check=True, capture_output=True, text=True)
    warned = sum(number % 50 == 4 for number in range(keys))  # the texts with "100%."
    assert accessor_count(made) == keys and done.stderr.count("begins no placeholder") == warned, "generated wrongly"
    compiled = folder / "Grown.bundle"
    subprocess.run(compile_command(folder / "source", compiled), check=True)
    out = subprocess.run([BUILD / "bin/growth", compiled, folder / "source", folder / "expected", *names],
                         check=True, capture_output=True, text=True).stdout
    # A new output each time, because the files of an earlier one would be kept if they are the same.
    times["generate"] = min(seconds(*generate_command(folder / "source", folder / f"made{run}")) for run in range(3))
    times["compile"] = min(seconds(*compile_command(folder / "source", folder / f"Grown{run}.bundle")) for run in range(3))
    return times | {what: float(value) / 1e9 for what, value in (line.split() for line in out.splitlines())}


def shown(seconds):
    unit, factor = next((u, f) for u, f in (("s", 1), ("ms", 1e3), ("µs", 1e6), ("ns", 1e9)) if seconds * f >= 1)
    return f"{seconds * factor:.3g} {unit}"


def table(head, sizes, runs):
    """The lines of a table with a column for each size; `runs` has the result of measure() for each."""
    lines = [f"| {head} | " + " | ".join(f"{size:,}" for size in sizes) + " | exponent |", "|---" * (len(sizes) + 2) + "|"]
    labels = {"generate": "`lumora generate`", "compile": "`lumora compile`", "load": "binary tables loaded",
              "check": "text tables read, every key looked up", "read": "one `localizedText` of a loaded table"}
    for step, label in labels.items():
        slopes = [math.log(b[step] / a[step]) / math.log(m / n)
                  for (n, a), (m, b) in itertools.pairwise(zip(sizes, runs))]
        lines.append(f"| {label} | " + " | ".join(shown(run[step]) for run in runs) +
                     " | " + ", ".join(f"{slope:.2f}" for slope in slopes) + " |")
    return lines


def compile_time(source, runs):
    flags = ["-std=c++20", "-O2", "-fPIC", "-fvisibility=hidden", "-I", ROOT, "-I", ROOT / "Platform"]
    command = [os.environ.get("CXX", "g++"), *flags, "-I", source.parent, "-c", source, "-o", "/dev/null"]
    return min(seconds(*command) for _ in range(runs))


def statics(folder, keys):
    """Writes a source that keeps the same texts in function-local statics, as one would by hand; returns its path."""
    lines = ["#include <string>", "std::string tr(const char* table, const char* key);"]
    for number in range(keys):
        lines.append(f'const std::string& text{number}() {{\n    static const std::string text = '
                     f'tr("Localizable", {quoted(key(number))});\n    return text;\n}}')
    source = folder / "statics.cpp"
    source.write_text("\n".join(lines), encoding="utf-8")
    return source


def compilations(folder):
    lines = ["| Accessors | generated .cpp files | all compiled | the slowest of them | as function-local statics, in one file |",
             "|---|---|---|---|---|"]
    for keys, shards, runs in ((1401, 1, 3), (1401, 8, 1), (10000, 8, 1)):  # Lumora's own module has 1,401 accessors
        at = folder / f"{keys}-{shards}"
        make_source(at, keys, 1)
        subprocess.run(generate_command(at / "source", at / "made", str(shards)), check=True, stderr=subprocess.DEVNULL)
        assert accessor_count(at / "made") == keys
        each = [compile_time(source, runs) for source in (at / "made").glob("GrownStrings-*.cpp")]
        lines.append(f"| {keys:,} | {shards} | {sum(each):.2f} s | {max(each):.2f} s | "
                     f"{compile_time(statics(at, keys), runs):.2f} s |")
    return lines


os.environ["CCACHE_DISABLE"] = "1"  # where g++ is a link to ccache
with tempfile.TemporaryDirectory() as held:
    folder = pathlib.Path(held)
    keys, languages = (1000, 10000, 100000), (20, 200)
    lines = table("Keys, in one language", keys, [measure(folder / f"k{n}", n, 1) for n in keys])
    lines += ["", *table("Languages, of 1,000 keys", languages, [measure(folder / f"l{n}", 1000, n) for n in languages])]
    lines += ["", *compilations(folder)]
result = "\n".join(lines)
print(result)
page = ROOT / "Docs/performance.md"
page.write_text(re.sub(r"(<!-- growth -->\n).*(<!-- /growth -->)", lambda found: f"{found[1]}{result}\n{found[2]}",
                       page.read_text(encoding="utf-8"), flags=re.S), encoding="utf-8")
