#!/usr/bin/env python3
"""Checks the source catalogs: names, files, formats, distinct drawings, repeatable output.

    python3 Resources/Drawings/check.py [--no-redraw]

Prints every fault and ends with status 1 if there is any. --no-redraw skips the
comparison with freshly drawn files, the only slow part.
"""

import json
import re
import struct
import sys
import xml.etree.ElementTree
import zlib
from pathlib import Path

sys.dont_write_bytecode = True  # Resources is a source: it gets no __pycache__

import catalogs  # noqa: E402
import names  # noqa: E402
import svg  # noqa: E402

ROOT = Path(__file__).resolve().parent.parent
KINDS = {"colorset": "colors", "imageset": "images", "dataset": "data"}
SVG = "{http://www.w3.org/2000/svg}"
# How a component of a colour may be written: 0x1F, 31 or 0.122.
NOTATION = re.compile(r"^(0x[0-9A-F]{2}|\d{1,3}|-?\d\.\d{3})$")


def png_size(data):
    """The size of a PNG with valid chunks, checksums and pixel data."""
    if data[:8] != b"\x89PNG\r\n\x1a\n":
        raise ValueError("no PNG signature")
    at, chunks = 8, []
    while at < len(data):
        length, kind = struct.unpack(">I4s", data[at:at + 8])
        body = data[at + 8:at + 8 + length]
        if zlib.crc32(kind + body) != struct.unpack(">I", data[at + 8 + length:at + 12 + length])[0]:
            raise ValueError(f"bad checksum of {kind}")
        chunks.append((kind, body))
        at += 12 + length
    width, height, depth, colour = struct.unpack(">IIBB", chunks[0][1][:10])
    pixels = png_pixels(data)
    if chunks[-1][0] != b"IEND" or (depth, colour) != (8, 6) or len(pixels) != height * (width * 4 + 1):
        raise ValueError("not a whole 8-bit RGBA picture")
    return width, height


def png_pixels(data):
    at, packed = 8, b""
    while at < len(data):
        length, kind = struct.unpack(">I4s", data[at:at + 8])
        if kind == b"IDAT":
            packed += data[at + 8:at + 8 + length]
        at += 12 + length
    return zlib.decompress(packed)


def same_pixels(old, new):
    """Decompresses the pixels, because another deflate library may compress them differently."""
    try:
        return png_size(old) == png_size(new) and png_pixels(old) == png_pixels(new)
    except (ValueError, struct.error, zlib.error):
        return False


def jpeg_size(data):
    if data[:2] != b"\xff\xd8" or data[-2:] != b"\xff\xd9":
        raise ValueError("no JPEG frame")
    at, size = 2, None
    while True:
        mark, marker, length = struct.unpack(">BBH", data[at:at + 4])
        if mark != 0xFF:
            raise ValueError("lost between JPEG segments")
        if marker == 0xC0:      # baseline frame: height, then width
            size = struct.unpack(">HH", data[at + 5:at + 9])[::-1]
        at += 2 + length
        if marker == 0xDA:      # start of scan: the pixels follow
            return size


def pdf_size(data):
    """The size of a PDF of pdf.py whose table of objects and stream length are right."""
    table = int(re.search(rb"startxref\n(\d+)\n%%EOF\n$", data)[1])
    count = int(re.match(rb"xref\n0 (\d+)\n", data[table:])[1])
    for n, offset in enumerate(re.findall(rb"(\d{10}) 00000 n", data[table:]), 1):
        if not data[int(offset):].startswith(b"%d 0 obj\n" % n):
            raise ValueError(f"object {n} is not where the table says")
    length, stream = re.search(rb"/Length (\d+) >>\nstream\n(.*)endstream", data, re.S).groups()
    if count != 5 or int(length) != len(stream):    # four objects and the list of free ones
        raise ValueError("wrong object count or stream length")
    return tuple(map(float, re.search(rb"/MediaBox \[0 0 ([\d.]+) ([\d.]+)\]", data).groups()))


def svg_size(data):
    root = xml.etree.ElementTree.fromstring(data)
    box = [float(v) for v in root.get("viewBox").split()]
    if root.tag != SVG + "svg" or not root.findall(SVG + "path"):
        raise ValueError("nothing is drawn")
    if box != [0, 0, float(root.get("width")), float(root.get("height"))]:
        raise ValueError("size and view box differ")
    return tuple(box[2:])


SIZE = {".png": png_size, ".jpg": jpeg_size, ".pdf": pdf_size, ".svg": svg_size}


def check_names(faults):
    """Checks that exactly the listed assets exist, each once in its catalog, and that no folder provides a namespace.

    Returns (folder, kind) of each set.
    """
    found = {}
    for catalog, kinds in names.CATALOGS.items():
        root = ROOT / f"{catalog}.xcassets"
        for path in root.rglob("Contents.json"):
            folder = path.parent
            if folder.suffix[1:] in KINDS:
                found.setdefault((catalog, folder.suffix[1:]), []).append(folder)
            elif "properties" in json.loads(path.read_bytes()):
                faults.append(f"{folder}: a folder with properties")
        for kind in KINDS:
            have = sorted(f.name.removesuffix("." + kind) for f in found.get((catalog, kind), ()))
            if have != sorted(kinds.get(kind, ())):
                odd = set(have) ^ set(kinds.get(kind, ()))
                faults.append(f"{catalog}: {kind} names differ: {sorted(odd) or 'a name occurs twice'}")
    return [(f, kind) for (_, kind), folders in found.items() for f in folders]


def check_set(folder, kind, faults):
    """Checks the Contents.json and the files of one set."""
    contents = json.loads((folder / "Contents.json").read_bytes())
    entries = contents[KINDS[kind]]
    conditions = [json.dumps({k: v for k, v in e.items() if k not in ("filename", "color")}, sort_keys=True)
                  for e in entries]
    if len(set(conditions)) != len(conditions) or not entries or "appearances" in entries[0]:
        faults.append(f"{folder.name}: entries clash, or the plain one is missing")
    if kind == "colorset":
        for entry in entries:
            components = entry["color"]["components"]
            if set(components) not in ({"red", "green", "blue", "alpha"}, {"white", "alpha"}) or \
                    not all(NOTATION.match(v) for v in components.values()):
                faults.append(f"{folder.name}: odd components {components}")
        return
    used = {e["filename"] for e in entries} | {"Contents.json"}
    if used != {p.name for p in folder.iterdir()}:
        faults.append(f"{folder.name}: files {sorted(p.name for p in folder.iterdir())}, used {sorted(used)}")
        return
    points = set()
    for entry in entries:
        path = folder / entry["filename"]
        if kind == "dataset":
            table = json.loads(path.read_bytes())   # of the 249 countries of ISO 3166-1
            if len(table) != 249 or set(table.values()) != {"arab", "asia", "europe", "latina", "usa"}:
                faults.append(f"{path.name}: countries or regions are missing")
            continue
        scale = int(entry.get("scale", "1x")[:-1])
        if ("scale" in entry) != (path.suffix in (".png", ".jpg")):
            faults.append(f"{path.name}: a bitmap needs a scale, a drawing must have none")
        try:
            width, height = SIZE[path.suffix](path.read_bytes())
            points.add((width / scale, height / scale))
        except (ValueError, KeyError, TypeError, struct.error, zlib.error,
                xml.etree.ElementTree.ParseError) as error:
            faults.append(f"{path.name}: {error}")
    if len(points) > 1:
        faults.append(f"{folder.name}: sizes do not fit the scales: {sorted(points)}")


def check_distinct(faults):
    """Checks that no two files and no two drawings are the same."""
    files = [(p.name, p.read_bytes()) for catalog in names.CATALOGS
             for p in sorted((ROOT / f"{catalog}.xcassets").rglob("*")) if p.suffix in SIZE]
    drawn = [(name, svg.encode(function())) for name, function in catalogs.drawings().items()]
    for pictures in (files, drawn):
        seen = {}
        for name, data in pictures:
            if data in seen:
                faults.append(f"{name} and {seen[data]} are the same drawing")
            seen[data] = name


def check_redrawn(faults):
    """Checks that the files are those that the scripts draw now."""
    made = catalogs.files()
    have = {p.relative_to(ROOT).as_posix(): p for catalog in names.CATALOGS
            for p in (ROOT / f"{catalog}.xcassets").rglob("*") if p.is_file()}
    faults.extend(f"{path}: missing or superfluous" for path in sorted(made.keys() ^ have.keys()))
    for path in sorted(made.keys() & have.keys()):
        old, new = have[path].read_bytes(), made[path]
        if old != new and not (path.endswith(".png") and same_pixels(old, new)):
            faults.append(f"{path}: differs from the drawing made now")


def main():
    faults = []
    sets = check_names(faults)
    for folder, kind in sets:
        check_set(folder, kind, faults)
    check_distinct(faults)
    if "--no-redraw" not in sys.argv[1:]:
        check_redrawn(faults)
    for fault in faults:
        print(fault)
    print(f"{len(sets)} assets, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
