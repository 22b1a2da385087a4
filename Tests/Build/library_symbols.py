"""Fails if the shared library runs code when it is loaded, or shows symbols that are not its own interface."""
import re
import subprocess
import sys

# Namespaces whose names may be seen, and the C functions.
INTERFACE = re.compile(r"^(typeinfo (name )?for |vtable for |guard variable for )?"
                       r"([\w:<>,&*\s]*\s)?(Lumora|Foundation|Corvane|UIKit|SwiftUI|Runtime)::")
C_FUNCTIONS = {"Loc", "LocNumber", "LocNumberWithPositivePrefix", "LocAge", "LocPercent", "LocPercentSigned",
               "NSStringCreate", "NSStringUTF8", "NSNumberCreateInteger", "NSNumberCreateDouble", "NSRelease"}


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def main(library):
    faults = []
    sections = output("readelf", "-SW", library)
    array = re.search(r"\.init_array\s+INIT_ARRAY\s+\S+\s+\S+\s+([0-9a-f]+)", sections)
    # One entry is the compiler's own frame_dummy; more are constructors.
    if array and int(array.group(1), 16) > 8:
        faults.append(f".init_array has {int(array.group(1), 16) // 8} entries")
    symbols = [line.split(" ", 2)[2] for line in output("nm", "-DC", "--defined-only", library).splitlines()]
    ours = [name for name in symbols if INTERFACE.match(name)]
    faults += [f"exported: {name}" for name in symbols
               if not INTERFACE.match(name) and name not in C_FUNCTIONS and not name.startswith(("std::", "typeinfo", "vtable"))]
    faults += [f"missing: {name}" for name in C_FUNCTIONS if name not in symbols]
    accessors = [name for name in ours if name.startswith("Lumora::LumoraStrings::")]
    # 1,401 texts and the six members made by hand.
    if len(accessors) != 1407:
        faults.append(f"{len(accessors)} accessors are exported, not 1407")
    print("\n".join(faults) or f"{len(symbols)} exported symbols, all of the interface; no static initialiser")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
