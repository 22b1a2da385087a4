"""convert.py FOLDER LANGUAGE: makes the source files of the other libraries' catalogs from a table.

Reads the JSON of `lumora table --to json` from standard input; writes FOLDER/LANGUAGE.po for gettext, .boost.po for Boost.Locale,
.ts for Qt and .txt for ICU."""
import html
import json
import re
import sys

folder, language = sys.argv[1:]
texts = json.load(sys.stdin)


def with_placeholders(text, placeholder, escaped=lambda part: part):
    """The text with each placeholder written as placeholder(position), and the text between, including "%%" as "%", as
    escaped(part)."""
    out, end, count = "", 0, 0
    for found in re.finditer(r"%(?:(\d+)\$)?(?:ll|l)?([@diusf%])", text):
        out += escaped(text[end:found.start()])
        end = found.end()
        if found[2] == "%":
            out += escaped("%")
            continue
        count += 1
        out += placeholder(int(found[1] or count))
    return out + escaped(text[end:])


def po(convert):
    header = 'msgid ""\nmsgstr "Content-Type: text/plain; charset=UTF-8\\n"\n'
    quoted = lambda text: json.dumps(text, ensure_ascii=False)
    return header + "".join(f"msgid {quoted(k)}\nmsgstr {quoted(convert(v))}\n" for k, v in texts.items() if k)  # an empty msgid is the header


def icu(text):
    """The text as an ICU message, in which braces are quoted and apostrophes doubled."""
    return with_placeholders(text, lambda n: f"{{{n - 1}}}", lambda part: re.sub(r"([{}]+)", r"'\1'", part.replace("'", "''")))


def icu_key(key):
    """Resource bundles allow few characters in a key; others are written as code points."""
    return re.sub(r"[^A-Za-z0-9 ._%&'()*+,/:;<=>?-]", lambda found: f"_{ord(found[0]):x}", key)


written = {
    "po": po(lambda text: re.sub(r"%(\d+\$)?@", r"%\1s", text)),  # the other placeholders are printf's already
    "boost.po": po(lambda text: with_placeholders(text, lambda n: f"{{{n}}}")),
    "ts": f'<?xml version="1.0" encoding="utf-8"?><!DOCTYPE TS><TS version="2.1" language="{language}"><context><name></name>'
          + "".join(f"<message><source>{html.escape(k)}</source><translation>"
                    f"{html.escape(with_placeholders(v, lambda n: f'%{n}'))}</translation></message>\n" for k, v in texts.items())
          + "</context></TS>\n",
    "txt": f"{language} {{\n" + "".join(f"{json.dumps(icu_key(k))} {{ {json.dumps(icu(v), ensure_ascii=False)} }}\n"
                                        for k, v in texts.items()) + "}\n",
}
for suffix, content in written.items():
    with open(f"{folder}/{language}.{suffix}", "w", encoding="utf-8") as file:
        file.write(content)
