"""Compares the assets of the compiled bundle with the list of the drawings' names."""
import pathlib
import subprocess
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(sys.argv[1]) / "Resources/Drawings"))
import names  # noqa: E402

KINDS = {"imageset": "image", "colorset": "color", "dataset": "data"}
expected = {f"{KINDS[kind]}\t{catalog}\t{name}"
            for catalog, kinds in names.CATALOGS.items() for kind, listed in kinds.items() for name in listed}
listed = set(subprocess.run([sys.argv[2], "assets"], check=True, capture_output=True, text=True).stdout.splitlines())
for line in sorted(expected ^ listed):
    print("missing" if line in expected else "unknown", line)
print(f"{len(listed)} assets")
sys.exit(0 if listed == expected and len(listed) == 537 else 1)
