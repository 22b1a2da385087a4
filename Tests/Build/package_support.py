"""Shared by the tests that use Lumora as another project does."""
import argparse
import os
import pathlib
import re
import shlex
import subprocess
import sys

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
    """The Russian text of a key, read without Lumora."""
    table = (source / "Resources/ru.lproj/Localizable.strings").read_text(encoding="utf-8")
    return re.search(rf'^"{re.escape(key)}" = "(.*)";$', table, re.M).group(1)


def compile_by_pkg_config(package, sources, program, compiler, pkgconfig):
    """Compiles a client with the flags of pkg-config only. `pkgconfig` is the folder of PACKAGE.pc."""
    environment = os.environ | {"PKG_CONFIG_PATH": str(pkgconfig)}
    flags = subprocess.run(["pkg-config", "--cflags", "--libs", package], check=True, capture_output=True,
                           env=environment).stdout
    # pkg-config escapes a path byte by byte.
    arguments = [os.fsdecode(part.encode("latin-1")) for part in shlex.split(flags.decode("latin-1"))]
    run(*compiler, *sources, "-o", program, *arguments)


# The number that consumer/app.cpp prints. Russian groups digits with U+00A0.
NUMBER = "+1\u00a0234\u00a0567"
