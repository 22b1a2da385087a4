"""Checks that every language has each development text, with the same placeholders, and that French has its no-break spaces."""
import collections
import json
import pathlib
import re
import subprocess
import sys

PLACEHOLDER = re.compile(r"%(?:(\d+)\$)?(@|ld)")
LANGUAGES = ("Base ar de es es-419 fr id it ja ko nl pl pt-BR pt-PT ru th tr vi zh-Hans").split()
# The number of texts in each table.
COUNTS = {"Localizable": 1362, "Community": 18, "UserProfile": 17, "ClientProfileCell": 2, "TrainingCourse": 2}
# French has a no-break space inside « » and before ; : ! ? %. Finds a plain space there, and ; ! ? directly after a letter.
FRENCH_FAULT = re.compile(r" [;:!?%»]|« |[^\W\d_][;!?](?!\w)")


def kinds(text):
    """The kinds of a text's placeholders by position; if its percent signs are wrong, an error message instead."""
    found = PLACEHOLDER.findall(text.replace("%%", ""))
    if "%" in PLACEHOLDER.sub("", text.replace("%%", "")):
        return "a percent sign that begins no placeholder"
    numbered = [bool(position) for position, _ in found]
    if any(numbered) and not all(numbered):
        return "numbered and plain placeholders together"
    return collections.Counter((int(position or index), kind) for index, (position, kind) in enumerate(found, 1))


def read(program, file):
    return json.loads(subprocess.run([program, "table", file], check=True, capture_output=True).stdout)


def main(resources, program):
    tables = {language: {file.stem: read(program, file) for file in sorted((resources / f"{language}.lproj").glob("*.strings"))}
              for language in LANGUAGES}
    base, faults, checked = tables["Base"], [], 0
    faults += [f"Base/{name}: {len(base.get(name, {}))} texts, not {count}" for name, count in COUNTS.items()
               if len(base.get(name, {})) != count]
    for language, own in tables.items():
        for name in COUNTS:
            texts = own.get(name, {})
            faults += [f"{language}/{name}: no text for {key!r}" for key in base[name] if key not in texts]
            for key, text in texts.items():
                checked += 1
                own_kinds = kinds(text)
                expected = kinds(base[name][key]) if key in base[name] else "that Base has this key"
                if own_kinds != expected or isinstance(own_kinds, str):
                    faults.append(f"{language}/{name}: {key!r}: {own_kinds}, expected {expected}")
                if not text.strip():
                    faults.append(f"{language}/{name}: {key!r}: empty")
                if language == "fr" and FRENCH_FAULT.search(PLACEHOLDER.sub("1", text)):
                    faults.append(f"fr/{name}: {key!r}: no no-break space beside a punctuation mark that needs one")
    print("\n".join(faults) or f"{checked} texts fit their keys")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), sys.argv[2]))
