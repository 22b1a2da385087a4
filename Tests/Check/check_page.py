"""Runs the examples of Docs/check.md: those under "Found:" have one finding, by the rule of their section, those under "Not found:" none."""
import base64
import json
import pathlib
import re
import subprocess
import sys
import tempfile

# The contents of every bitmap, which the page cannot show: a white pixel.
PIXEL = base64.b64decode("iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAAAAAA6fptVAAAACklEQVR4nGP4DwABAQEAsTj2FAAAAABJRU5ErkJggg==")
BITMAP = re.compile(r'"filename": "([^"]+\.png)"')
BLOCK = re.compile(r"^`(\S+)`:\n```\w+\n(.*?)```", re.DOTALL | re.MULTILINE)


def found(program, own, files, arguments):
    """Checks a source with these files. Returns the rules of its findings, without `coverage` unless it is `own`, the rule of the
    section; and a complaint if the exit status is wrong, otherwise an empty string."""
    with tempfile.TemporaryDirectory() as folder:
        for name, text in files.items():
            file = pathlib.Path(folder, name)
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, encoding="utf-8")
            for bitmap in BITMAP.findall(text):
                file.with_name(bitmap).write_bytes(PIXEL)
        done = subprocess.run([program, "check", "source", "--format", "json", *arguments], cwd=folder, capture_output=True, timeout=60)
        findings = json.loads(done.stdout)
        rules = [finding["rule"] for finding in findings if finding["rule"] == own or finding["rule"] != "coverage"]
        has_error = any(finding["severity"] == "error" for finding in findings)
        complaint = "" if done.returncode == has_error else f"exit {done.returncode}, stderr {done.stderr.decode()}"
        return rules, complaint


def main(page, program):
    text = page.read_text(encoding="utf-8")
    sections = re.split(r"^### ", text, flags=re.MULTILINE)[1:]
    faults, seen = [], []
    for section in sections:
        rule = section.split("\n", 1)[0].strip("`")
        seen.append(rule)
        arguments = re.findall(r"^With `(.+?)`$", section, re.MULTILINE)
        arguments = arguments[0].split() if arguments else []
        # A name that begins with ../ is outside of the source.
        parts = re.split(r"^(Found|Not found):$", section, flags=re.MULTILINE)
        examples = {parts[i]: {name[3:] if name.startswith("../") else f"source/{name}": content for name, content in BLOCK.findall(parts[i + 1])}
                    for i in range(1, len(parts), 2)}
        if set(examples) != {"Found", "Not found"}:
            faults.append(f"{rule}: has the examples {sorted(examples)}, not one of each kind")
            continue
        # Files that are not in the second example are as in the first.
        examples["Not found"] = examples["Found"] | examples["Not found"]
        for name, expected in (("Found", [rule]), ("Not found", [])):
            rules, complaint = found(program, rule, examples[name], arguments)
            if rules != expected or complaint:
                faults.append(f"{rule}: {name}: {rules} {complaint}")
    # SARIF lists all rules, whatever the source contains.
    listed = json.loads(subprocess.run([program, "check", "--format", "sarif", str(page.parent.parent / "Resources")], check=True,
                                       capture_output=True).stdout)["runs"][0]["tool"]["driver"]["rules"]
    unmatched = {rule["id"] for rule in listed} ^ set(seen)
    if unmatched:
        faults.append(f"rules without a section, or sections without a rule: {sorted(unmatched)}")
    print("\n".join(faults) or f"{len(seen)} rules behave as the page says")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()))
