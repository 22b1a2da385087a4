#!/usr/bin/env python3
"""Draws every picture of the application and writes the source asset catalogs.

    python3 Resources/Drawings/draw.py [folder]

The default folder is Resources. Files that no longer belong to an asset are removed
from the catalogs. Only the standard library is needed.
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True  # Resources is a source: it gets no __pycache__

import catalogs  # noqa: E402
import names  # noqa: E402


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent)
    made = catalogs.files()
    changed = 0
    for path, data in made.items():
        target = root / path
        if target.is_file() and target.read_bytes() == data:
            continue
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(data)
        changed += 1
    for catalog in names.CATALOGS:
        # Reversed, so that a folder comes after its contents.
        for old in sorted((root / f"{catalog}.xcassets").rglob("*"), reverse=True):
            if old.is_file() and old.relative_to(root).as_posix() not in made:
                old.unlink()
            elif old.is_dir() and not any(old.iterdir()):
                old.rmdir()
    print(f"{len(made)} files, {changed} written, {sum(map(len, made.values())) // 1024} KiB")


if __name__ == "__main__":
    main()
