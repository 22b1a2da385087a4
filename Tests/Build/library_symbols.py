"""Fails if a shared library runs code when it is loaded, needs an unnecessary library, exports symbols that are not part of its interface,
or lacks some that are."""
import re
import subprocess
import sys

# The namespaces whose symbols each library may export (LocalizationCode is in Corvane), and the C functions of the module.
MODULE, PLATFORM = "Lumora|Corvane", "Foundation|UIKit|SwiftUI|Runtime"
C_FUNCTIONS = {"Loc", "LocNumber", "LocNumberWithPositivePrefix", "LocAge", "LocPercent", "LocPercentSigned",
               "NSStringCreate", "NSStringUTF8", "NSNumberCreateInteger", "NSNumberCreateDouble", "NSRelease"}

# The libraries of every C++ program, and those of the sanitizers.
SYSTEM = ("libstdc++.so", "libm.so", "libgcc_s.so", "libc.so", "ld-linux", "libasan.so", "libubsan.so", "libtsan.so")


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def symbols_of(library):
    return [line.split(" ", 2)[2] for line in output("nm", "-DC", "--defined-only", library).splitlines()]


def faults_of(library, namespaces, c_functions):
    interface = re.compile(rf"^(typeinfo (name )?for |vtable for |guard variable for )?([\w:<>,&*\s]*\s)?({namespaces})::")
    sections = output("readelf", "-SW", library)
    array = re.search(r"\.init_array\s+INIT_ARRAY\s+\S+\s+\S+\s+([0-9a-f]+)", sections)
    # One entry is the compiler's own frame_dummy; more are constructors.
    if array and int(array.group(1), 16) > 8:
        yield f"{library}: .init_array has {int(array.group(1), 16) // 8} entries"
    # Every additional library delays a process's first text.
    for name in re.findall(r"NEEDED.*\[(.*)\]", output("readelf", "-dW", library)):
        if not name.startswith(("liblumora-platform", *SYSTEM)):
            yield f"{library} needs {name}"
    symbols = symbols_of(library)
    for name in symbols:
        # Instances of the standard library's templates are exported too.
        if not interface.match(name) and name not in c_functions and not name.startswith(("std::", "typeinfo", "vtable")):
            yield f"{library} exports {name}"
    for name in c_functions - set(symbols):
        yield f"{library} lacks {name}"


def main(module, platform):
    faults = [*faults_of(module, MODULE, C_FUNCTIONS), *faults_of(platform, PLATFORM, set())]
    accessors = [name for name in symbols_of(module) if name.startswith("Lumora::LumoraStrings::")]
    # 1,401 texts and the six hand-written members.
    if len(accessors) != 1407:
        faults.append(f"{len(accessors)} accessors are exported, not 1407")
    print("\n".join(faults) or "both libraries export their interface and run nothing when they are loaded")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
