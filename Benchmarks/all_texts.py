"""all_texts.py OUT FOLDER: writes the source OUT with readAllTexts(), which calls each accessor that the headers in FOLDER and its
subfolders declare once, with 7 for every parameter. A parameter for a text takes a number, too."""
import pathlib
import re
import sys

out, headers = sys.argv[1], pathlib.Path(sys.argv[2]).rglob("*.h")
calls = []
for header in sorted(headers):
    space = ""
    for found in re.finditer(r"^namespace (\S+) \{|^LUMORA_EXPORT (?:const std::string&|std::string) (\w+)\(([^)]*)\)",
                             header.read_text(encoding="utf-8"), re.M):
        if found[1]:
            space = found[1]
        else:
            arguments = ", ".join("7" for each in found[3].split(",") if each.strip())
            calls.append(f"    size += {space}::{found[2]}({arguments}).size();\n")
pathlib.Path(out).write_text(f"""#include "all_texts.h"
#include <Lumora/LumoraStrings.h>

std::size_t readAllTexts(int& count) {{
    std::size_t size = 0;
{''.join(calls)}    count = {len(calls)};
    return size;
}}
""", encoding="utf-8")
