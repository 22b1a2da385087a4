"""Prints a header with its comments as doxygen takes them; other files as they are. Doxygen runs it for each file."""
import re
import sys

SPECIAL = re.compile(r"[\\@#<>%&]")


def plain(text):
    """Words as doxygen prints them; `code` stays code."""
    parts = re.split(r"(`[^`]*`)", text)
    return "".join(part if part.startswith("`") else SPECIAL.sub(r"\\\g<0>", part) for part in parts)


def documented(line):
    if comment := re.fullmatch(r"(\s*)//(?!/)(.*)", line):
        return f"{comment[1]}///{plain(comment[2])}"
    if (trailing := re.fullmatch(r"([^\"]*[;,{}\w]) // (.*)", line)) and not re.match(r"\s*(#|namespace|\})", line):
        return f"{trailing[1]} ///< {plain(trailing[2])}"
    if comment := re.fullmatch(r"(\s*)/\*(?!\*)(.*)", line):
        return f"{comment[1]}/**{plain(comment[2]) if not line.endswith('*/') else comment[2]}"
    return line


name = sys.argv[1]
lines = open(name, encoding="utf-8").read().splitlines()
if name.endswith(".h"):
    # Line 1 is the header's path: the comment that it begins is about the file.
    first = 0
    if lines[0].startswith("// "):
        print("/// \\file")
        first = 1
    lines = [documented(line) for line in lines[first:]]
print("\n".join(lines))
