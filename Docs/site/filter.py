"""Prints a header with its comments in doxygen's form, or a page with anchors for its links and each % escaped that doxygen would
drop. Doxygen runs it for each file."""
import re
import sys

SPECIAL = re.compile(r"(?<!\w)@|[\\#<>%&]")  # after a letter, @ is an ordinary character for doxygen
CODE = re.compile(r"(`[^`\n]+`)")
CODE_OR_QUOTED = re.compile(r"(`[^`\n]+`|\"[^\"\n]+\")")


def code(span):
    """Doubles each % before a letter in a span of code, because doxygen drops a single one."""
    return re.sub(r"%(?=[A-Za-z_])", "%%", span)


def plain(text):
    """Escapes the text of a comment for doxygen; `code` remains code, and doxygen reads quoted text literally."""
    parts = CODE_OR_QUOTED.split(text)
    parts[::2] = [SPECIAL.sub(r"\\\g<0>", part) for part in parts[::2]]
    parts[1::2] = [code(part) if part.startswith("`") else part for part in parts[1::2]]
    return "".join(parts)


def documented(line):
    """The line of a header with its comment in doxygen's form: // above a declaration becomes ///, // after one ///<, and /* becomes /**."""
    if comment := re.fullmatch(r"(\s*)//(?!/| NOLINT)(.*)", line):
        return f"{comment[1]}///{plain(comment[2])}"
    # Comments after directives and the ends of blocks are not about a declaration.
    if (trailing := re.fullmatch(r"([^\"]*[;,{}\w]) // (.*)", line)) and not re.match(r"\s*(#|namespace|\})", line):
        return f"{trailing[1]} ///< {plain(trailing[2])}"
    if comment := re.fullmatch(r"(\s*)/\*(?!\*)(.*)", line):
        return f"{comment[1]}/**{plain(comment[2])}"
    return line


def anchored(lines):
    """Gives the headings that the page links to their anchors, which doxygen does not do."""
    linked = set(re.findall(r"\]\(#([\w-]+)\)", "\n".join(lines)))
    for line in lines:
        anchor = re.sub(r"\W+", "-", line.lstrip("# ").lower()).strip("-")
        yield f"{line} {{#{anchor}}}" if line.startswith("#") and anchor in linked else line


name = sys.argv[1]
lines = open(name, encoding="utf-8").read().splitlines()
if name.endswith(".h"):
    # Line 1 is the header's path: the comment that begins with it is about the file.
    if opening := {"//": "///", "/*": "/**"}.get(lines[0][:2]):
        print(opening, "\\file")
        lines = lines[1:]
    lines = [documented(line) for line in lines]
else:
    lines = [line if line.startswith("    ") else CODE.sub(lambda span: code(span[0]), line) for line in anchored(lines)]
print("\n".join(lines))
