"""Fails if generated objects run code when they are loaded, if those of OddStrings have data that must be relocated (the constants of
OddAsset have pointers to their names), or if the exported symbols are not exactly bundle() and the expected numbers of accessors and
constants."""
import re
import subprocess
import sys

ACCESSORS, CONSTANTS = 30, 5  # in Golden/expected
BUNDLE = "_ZN3Odd12OddResources6bundleEv"
SECTIONS = re.compile(r" (\.(?:init_array|ctors)\S*)")
STRINGS_SECTIONS = re.compile(r" (\.(?:init_array|ctors|data\.rel\.ro)\S*)")
EXPORTED = re.compile(r"\s*\d+: .* GLOBAL +DEFAULT +\d+ (\S+)")


def output(*command):
    # readelf may truncate a name in the middle of a character.
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True, errors="replace").stdout


def main(objects):
    faults = []
    exported = []
    for file in objects:
        sections = STRINGS_SECTIONS if "OddStrings" in file else SECTIONS
        faults += [f"{file}: has {name}" for name in sections.findall(output("readelf", "-SW", file))]
        exported += [found.group(1) for found in map(EXPORTED.match, output("readelf", "-sW", file).splitlines()) if found]
    accessors = [name for name in exported if name.startswith("_ZN3Odd10OddStrings")]
    constants = [name for name in exported if name.startswith("_ZN3Odd8OddAsset")]
    faults += [f"exports {name}" for name in exported if name not in accessors + constants and name != BUNDLE]
    if BUNDLE not in exported:
        faults.append(f"does not export {BUNDLE}")
    if len(accessors) != ACCESSORS:
        faults.append(f"exports {len(accessors)} accessors, not {ACCESSORS}")
    if len(constants) != CONSTANTS:
        faults.append(f"exports {len(constants)} constants, not {CONSTANTS}")
    print("\n".join(faults) or f"{len(exported)} symbols, no code at load")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
