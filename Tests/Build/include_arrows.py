"""Fails if a file of Platform, Lumora or Tools includes a folder that it must not include, or if an internal header exports
anything but a plug-in's function."""
import pathlib
import re
import sys

# The folders that the files of a folder may include, besides their own folder and those that an included folder may
# include.
ARROWS = {
    "Platform/Runtime": [],
    "Platform/StringTables": ["Platform/Intl"],
    "Platform/Intl": ["Platform/Runtime"],
    "Platform/Foundation": ["Platform/StringTables"],
    "Platform/AssetCatalog": ["Platform/Runtime"],
    "Platform/Pictures": ["Platform/Runtime"],
    "Platform/UIKit": ["Platform/Foundation", "Platform/AssetCatalog", "Platform/Pictures"],
    "Platform/SwiftUI": ["Platform/UIKit"],
    "Lumora": ["Platform/SwiftUI"],
    "Tools/SourcePictures": ["Platform/AssetCatalog", "Platform/Pictures"],
    "Tools/SourceBundle": ["Platform/StringTables", "Tools/SourcePictures"],
    "Tools/Generator": ["Tools/SourceBundle"],
    "Tools/Compiler": ["Tools/SourceBundle"],
    "Tools/Exchange": ["Tools/SourceBundle"],
    "Tools/Gallery": ["Tools/Generator"],
    "Tools/Check": ["Tools/Generator"],
    "Tools/Program": ["Platform/Foundation", "Tools/Check", "Tools/Generator", "Tools/Compiler", "Tools/Exchange", "Tools/Gallery"],
}
INCLUDE = re.compile(r'\s*#\s*include\s+["<]([^">]+)[">]')


def allowed(folder):
    """`folder` and all folders that it may include."""
    reached, waiting = set(), [folder]
    while waiting:
        one = waiting.pop()
        if one not in reached:
            reached.add(one)
            waiting += ARROWS[one]
    return reached


def main(root):
    by_name = {folder.split("/")[-1]: folder for folder in ARROWS}
    faults, seen = [], 0
    for folder in ARROWS:
        may = allowed(folder)
        for file in sorted((root / folder).rglob("*")):
            # Templates of generated code contain that code's include lines.
            if file.suffix not in (".h", ".cpp", ".c") or file.stem.endswith("Templates"):
                continue
            for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
                match = INCLUDE.match(line)
                target = by_name.get(match.group(1).split("/")[0]) if match and "/" in match.group(1) else None
                if target:
                    seen += 1
                    if target not in may:
                        faults.append(f"{file.relative_to(root)}:{number}: {folder} may not include {target}")
                if file.parent.name == "internal" and "LUMORA_EXPORT" in line and not line.startswith('extern "C"'):
                    faults.append(f"{file.relative_to(root)}:{number}: an internal header may export only the function of a plug-in")
    print("\n".join(faults) or f"{seen} includes follow the arrows")
    return 1 if faults or seen == 0 else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
