"""Runs all examples of README.md and the pages of Docs/ with the installed package: writes the files in them, runs their commands,
and compares the output with the page. C++ fragments are compiled with the module Shop."""
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile

from package_support import options, run, source

# The pages, and whether they begin in an empty folder or in a copy of Examples/Shop. Only the beginning of check.md is
# tested here; Tests/Check/check_page.py tests the rules.
EMPTY, SHOP = "empty", "shop"
PAGES = {"README.md": SHOP, "Docs/own-module.md": EMPTY, "Docs/add-a-text.md": SHOP, "Docs/add-a-language.md": SHOP,
         "Docs/add-a-picture.md": SHOP, "Docs/use-from-c.md": EMPTY, "Docs/check.md": SHOP, "Docs/translate.md": SHOP,
         "Docs/gallery.md": SHOP, "Docs/plurals.md": EMPTY, "Docs/naming.md": EMPTY}
# A block after the line "`main.cpp`:" is the contents of that file; after "Add to `main.cpp`:" it is appended to the file.
BLOCK = re.compile(r"^(?:(Add to )?`(\S+)`:\n)?```(\w+)\n(.*?)^```$", re.DOTALL | re.MULTILINE)
INDENTED = re.compile(r"(?:\A|\n)\n    (?! )(.*)")  # the first line of a block that is only indented
BUILDS_LUMORA = re.compile(r"cmake .*\bbuild/own\b")  # not run: this test installs the build that it is run from
INSTALLED = "/opt/lumora"  # where the pages install Lumora


def text_of(page):
    text = (source / page).read_text(encoding="utf-8")
    return text.split("\n## Errors\n")[0] if page == "Docs/check.md" else text


def until_interrupted(command, folder, environment):
    """The status and output of a program that is interrupted after its first line."""
    process = subprocess.Popen(["bash", "-c", "exec " + command], cwd=folder, env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                               text=True)
    first = process.stdout.readline()
    process.send_signal(signal.SIGINT)
    return process.wait(timeout=60), first + process.stdout.read()


def status_and_output(command, folder, environment):
    if command.startswith("lumora watch"):
        return until_interrupted(command, folder, environment)
    if command.startswith("./run "):  # takes too long here; the script must know the command
        known = re.search(rf"^{command.split()[1]}\) ", (source / "run").read_text(encoding="utf-8"), re.M)
        return 0 if known else 2, ""
    if BUILDS_LUMORA.match(command):
        return 0, ""
    done = subprocess.run(["bash", "-c", command], cwd=folder, env=environment, capture_output=True, text=True, timeout=300)
    return done.returncode, (done.stdout + done.stderr).rstrip("\n")


def commands(kind, text):
    """The commands of a block, each with its expected output, or None if the page does not show it."""
    if kind == "sh":
        return [(line, None) for line in text.splitlines()]
    steps = (step.partition("\n") for step in text.removeprefix("$ ").split("\n$ "))
    return [(command, expected.rstrip("\n")) for command, _, expected in steps]


def follow(page, folder, environment):
    """Writes the page's files into `folder` and runs its commands there; returns its errors and its fragments of C++ and CMake."""
    text = text_of(page)
    faults = [f"{page}: a block without a kind: {line}" for line in INDENTED.findall(BLOCK.sub("", text))]
    fragments = {"cpp": [], "cmake": []}
    prefix = environment["PREFIX"]
    for appends, file, kind, block in BLOCK.findall(text):
        block = block.replace(INSTALLED, prefix)
        if file:
            path = folder / file
            path.parent.mkdir(parents=True, exist_ok=True)
            with open(path, "a" if appends else "w", encoding="utf-8") as out:
                out.write(block)
        elif kind in ("console", "sh"):
            for command, expected in commands(kind, block):
                status, printed = status_and_output(command, folder, environment)
                if status != 0 or expected not in (None, printed):
                    faults.append(f"{page}: {command}\n  status {status}, printed: {printed}")
        elif kind in fragments:
            fragments[kind].append(block)
        else:
            faults.append(f"{page}: a block of {kind}, which is not tested")
    return faults, fragments


def compile_fragments(fragments, folder, prefix):
    """Compiles the C++ fragments as the body of main(), in a project of the CMake fragments or, if there are none, in the folder's own."""
    (folder / "main.cpp").write_text("#include <Shop/Shop.h>\n#include <cstdio>\n#include <string>\nint main() {\n" + "".join(fragments["cpp"]) + "}\n",
                    encoding="utf-8")
    if fragments["cmake"]:
        (folder / "CMakeLists.txt").write_text("cmake_minimum_required(VERSION 3.25)\nproject(App LANGUAGES CXX)\nadd_executable(app main.cpp)\n"
                                               + "".join(fragments["cmake"]), encoding="utf-8")
    run(options.cmake, "-S", folder, "-B", folder / "build", "-G", options.generator, f"-DCMAKE_PREFIX_PATH={prefix}")
    run(options.cmake, "--build", folder / "build", "--target", "app" if fragments["cmake"] else "shop")


def unknown_tests():
    """An error for each test (`Suite.Name`) that a page mentions and that does not exist."""
    tests = {f"{suite}.{name}" for file in (source / "Tests").rglob("*.cpp")
             for suite, name in re.findall(r"^TEST(?:_F|_P)?\((\w+), (\w+)\)", file.read_text(encoding="utf-8"), re.M)}
    for page in ("SECURITY.md", "Docs/reliability.md"):
        for test in re.findall(r"`([A-Z]\w+\.[A-Z]\w+)`", (source / page).read_text(encoding="utf-8")):
            if test not in tests | {"Suite.Name"}:
                yield f"{page}: there is no test {test}"


def site_faults():
    """An error if the site's filter escapes quoted text, which doxygen shows as it is."""
    filtered = subprocess.run([sys.executable, source / "Docs/site/filter.py", source / "Platform/Foundation/String.h"],
                              capture_output=True, text=True, check=True).stdout
    if '"%2$@"' not in filtered:
        yield "Docs/site/filter.py escapes quoted placeholders"


with tempfile.TemporaryDirectory() as temporary:
    prefix = pathlib.Path(temporary, "prefix")
    run(options.cmake, "--install", options.build, "--prefix", prefix)
    [library] = prefix.rglob("liblumora.so")
    environment = os.environ | {"PATH": f"{prefix / 'bin'}:{os.environ['PATH']}", "LD_LIBRARY_PATH": str(library.parent),
                                "PKG_CONFIG_PATH": str(library.parent / "pkgconfig"), "PREFIX": str(prefix)}
    faults = [*unknown_tests(), *site_faults()]
    shown = {f"Docs/{page.name}" for page in (source / "Docs").glob("*.md") if BLOCK.search(page.read_text(encoding="utf-8"))}
    faults += [f"{page}: has examples, but is not in PAGES" for page in sorted(shown - set(PAGES))]
    for page, begins in PAGES.items():
        folder = pathlib.Path(temporary, pathlib.Path(page).stem)
        if begins == SHOP:
            shutil.copytree(source / "Examples/Shop", folder)
        else:
            folder.mkdir()
        found, fragments = follow(page, folder, environment)
        faults += found
        if any(fragments.values()) and not found:
            compile_fragments(fragments, folder, prefix)
    if faults:
        sys.exit("\n".join(faults))
    print(f"{len(PAGES)} pages show what happens")
