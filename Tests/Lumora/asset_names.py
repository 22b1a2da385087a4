"""asset_names.py REPOSITORY LUMORA: compares the assets of the compiled bundle, and the constants and their order, with the list in
Resources/Drawings/names.py. LUMORA is the program."""
import json
import pathlib
import re
import subprocess
import sys

sys.dont_write_bytecode = True
resources = pathlib.Path(sys.argv[1]) / "Resources"
sys.path.insert(0, str(resources / "Drawings"))
import names  # noqa: E402

COUNT = 537  # so that an asset that is lost together with its name in the list is noticed
KINDS = {"imageset": "image", "colorset": "color", "dataset": "data"}


def printed(*arguments):
    return subprocess.run([sys.argv[2], *arguments], check=True, capture_output=True, text=True).stdout


def constant(name):
    first, *others = filter(None, re.split("[_.-]", name))
    return first + "".join(piece[0].upper() + piece[1:] for piece in others)


faults = []
expected = {f"{KINDS[kind]}\t{catalog}\t{name}"
            for catalog, kinds in names.CATALOGS.items() for kind, listed in kinds.items() for name in listed}
compiled = set(printed("assets").splitlines())
for line in sorted(expected ^ compiled):
    faults.append(f"{'missing' if line in expected else 'unknown'} {line}")

constants = [entry for entry in json.loads(printed("accessors", resources, "--module", "Lumora", "--format", "json"))
             if entry["kind"] != "text"]
for catalog, kinds in names.CATALOGS.items():
    wanted = [f"Lumora::LumoraAsset::{catalog}::{constant(name)}" for listed in kinds.values() for name in listed]
    # The first three differences of a catalog are reported: a missing constant moves all others.
    declared = [entry["accessor"] for entry in constants if entry["catalog"] == catalog]
    faults += [f"{one} is declared where {other} should be" for one, other in zip(declared, wanted) if one != other][:3]

if not len(compiled) == len(constants) == COUNT:
    faults.append(f"{len(compiled)} assets and {len(constants)} constants, expected {COUNT} of each")

print("\n".join(faults) or f"{len(compiled)} assets")
sys.exit(1 if faults else 0)
