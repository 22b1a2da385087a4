"""Installs the package, moves it, and uses it as outside programs do."""
import argparse
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

parser = argparse.ArgumentParser()
for name in ("source", "build", "cmake", "generator"):
    parser.add_argument(f"--{name}", required=True)
options = parser.parse_args()
source = pathlib.Path(options.source)


def run(*command, **more):
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, **more)
    if done.returncode != 0:
        sys.exit(f"{command} failed with {done.returncode}\n{done.stdout}\n{done.stderr}")
    return done.stdout


def expect(what, actual, expected):
    if actual != expected:
        sys.exit(f"{what}: {actual!r}, expected {expected!r}")


def russian(key):
    """The Russian text of a key as a reader of its own finds it."""
    table = (source / "Resources/ru.lproj/Localizable.strings").read_text(encoding="utf-8")
    return re.search(rf'^"{re.escape(key)}" = "(.*)";$', table, re.M).group(1)


with tempfile.TemporaryDirectory(prefix="lumora päckage ") as folder:
    folder = pathlib.Path(folder)
    run(options.cmake, "--install", options.build, "--prefix", folder / "first")
    prefix = folder / "moved tree"
    (folder / "first").rename(prefix)
    [library] = prefix.rglob("liblumora.so")
    environment = os.environ | {"LD_LIBRARY_PATH": str(library.parent), "LANG": "ru_RU.UTF-8", "LANGUAGE": "", "LC_ALL": ""}

    run(options.cmake, "-S", source / "Tests/Build/consumer", "-B", folder / "app", "-G", options.generator,
        f"-DCMAKE_PREFIX_PATH={prefix}")
    run(options.cmake, "--build", folder / "app")
    # U+00A0 groups Russian digits.
    number = "+1\u00a0234\u00a0567"
    expect("find_package", run(folder / "app/app").splitlines(),
           [russian("Continue"), number, str(library.parent.resolve() / "Lumora.bundle")])

    flags = subprocess.run(["pkg-config", "--cflags", "--libs", "lumora"], check=True, capture_output=True,
                           env=environment | {"PKG_CONFIG_PATH": str(library.parent / "pkgconfig")}).stdout
    program = folder / "by pkg-config"
    # It escapes byte by byte.
    arguments = [os.fsdecode(part.encode("latin-1")) for part in shlex.split(flags.decode("latin-1"))]
    run("c++", "-std=c++20", source / "Tests/Build/consumer/app.cpp", "-o", program, *arguments)
    expect("pkg-config", run(program, env=environment).splitlines()[:2], [russian("Continue"), number])

    # Reached through a link to the tree, and through links to the libraries alone.
    (folder / "link").symlink_to(prefix)
    linked = folder / "link" / library.relative_to(prefix)
    expect("linked tree", run(program, env=environment | {"LD_LIBRARY_PATH": str(linked.parent)}).splitlines()[:2],
           [russian("Continue"), number])
    (folder / "alone").mkdir()
    for name in ("liblumora.so.1", "liblumora-platform.so.1"):
        (folder / "alone" / name).symlink_to((library.parent / name).resolve())
    expect("linked libraries", run(program, env=environment | {"LD_LIBRARY_PATH": str(folder / "alone")}).splitlines()[:2],
           [russian("Continue"), number])

    expect("plug-in host", run(folder / "app/host", os.path.relpath(library, folder), cwd=folder, env=environment).splitlines(),
           [russian("Continue"), "25 лет"])
    expect("lumora text", run(prefix / "bin/lumora", "text", "--language", "ru", "Continue"), russian("Continue") + "\n")
print("the installed package works where it was moved")
