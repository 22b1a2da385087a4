"""Follows pages of Docs/ word by word with the installed package: writes the files that they show, runs their commands in a copy of
Examples/Shop, and compares what is printed with what the page shows. C++ fragments are compiled against the module."""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from packaging import options, run, source

PAGES = ("add-a-text", "add-a-language", "add-a-picture", "use-from-c")
BLOCK = re.compile(r"^```(\w+)(?: (>>)?(\S+))?\n(.*?)^```$", re.DOTALL | re.MULTILINE)


def follow(page, folder, environment):
    """The faults of a page, and its fragments of C++."""
    shutil.copytree(source / "Examples/Shop", folder)
    faults, fragments = [], []
    for kind, appends, file, text in BLOCK.findall((source / f"Docs/{page}.md").read_text(encoding="utf-8")):
        if file:
            path = folder / file
            path.parent.mkdir(parents=True, exist_ok=True)
            with open(path, "a" if appends else "w", encoding="utf-8") as out:
                out.write(text)
        elif kind == "console":
            for step in text.removeprefix("$ ").split("\n$ "):
                command, _, expected = step.partition("\n")
                done = subprocess.run(["bash", "-c", command], cwd=folder, env=environment, capture_output=True, text=True, timeout=120)
                printed = (done.stdout + done.stderr).rstrip("\n")
                if done.returncode != 0 or printed != expected.rstrip("\n"):
                    faults.append(f"{page}: {command}\n  status {done.returncode}, printed: {printed}")
        elif kind == "cpp":
            fragments.append(text)
        else:
            faults.append(f"{page}: a block of {kind} that no test looks at")
    return faults, fragments


def compile_fragments(fragments, folder, prefix):
    """With the accessors of the sources that the page has left behind."""
    (folder / "main.cpp").write_text("#include <Shop/Shop.h>\n#include <cstdio>\n#include <string>\nint main() {\n" + "".join(fragments) + "}\n",
                                     encoding="utf-8")
    run(options.cmake, "-S", folder, "-B", folder / "build", "-G", options.generator, f"-DCMAKE_PREFIX_PATH={prefix}")
    run(options.cmake, "--build", folder / "build", "--target", "shop")


with tempfile.TemporaryDirectory() as held:
    prefix = pathlib.Path(held, "prefix")
    run(options.cmake, "--install", options.build, "--prefix", prefix)
    [library] = prefix.rglob("liblumora.so")
    environment = os.environ | {"PATH": f"{prefix / 'bin'}:{os.environ['PATH']}", "LD_LIBRARY_PATH": str(library.parent),
                                "PKG_CONFIG_PATH": str(library.parent / "pkgconfig")}
    faults = []
    for page in PAGES:
        found, fragments = follow(page, pathlib.Path(held, page), environment)
        faults += found
        if fragments and not found:
            compile_fragments(fragments, pathlib.Path(held, page), prefix)
    sys.exit("\n".join(faults)) if faults else print(f"{len(PAGES)} pages show what happens")
