"""Runs lumora export and import with the tools of gettext, on real sources and invalid files."""
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

PROGRAM, ROOT = os.path.abspath(sys.argv.pop(1)), pathlib.Path(os.path.abspath(sys.argv.pop(1)))
SOURCES = {"Lumora": ROOT / "Resources", "Shop": ROOT / "Examples/Shop/Resources"}
NAMESPACE = "{urn:oasis:names:tc:xliff:document:1.2}"
ElementTree.register_namespace("", NAMESPACE[1:-1])


def run(*arguments):
    done = subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, timeout=120, text=True, env=os.environ | {"LC_ALL": "C"})
    return done.returncode, done.stdout, done.stderr


def gettext(program, *arguments):
    return subprocess.run([program, *map(str, arguments)], capture_output=True, timeout=120, text=True, check=True).stderr


def contents(folder):
    return {file.relative_to(folder): file.read_bytes() for file in folder.rglob("*")
            if file.suffix in (".strings", ".stringsdict", ".xcstrings")}


def units(file):
    return list(ElementTree.parse(file).iter(NAMESPACE + "trans-unit"))


def translate(file):
    """Acts as a translation tool: the translation of every unit becomes its source with "»" at the end."""
    if file.suffix == ".po":
        gettext("msgattrib", "--no-wrap", "--clear-fuzzy", file, "-o", file)

        def entry(found):  # its groups: msgid, msgid_plural, all msgstr
            text = (found[2] or found[1])[:-2]  # without the last quotation mark and line break
            forms = re.findall(r"^msgstr\S*", found[0], re.MULTILINE)
            return found[0][:found.start(3) - found.start()] + "".join(f'{form} {text}»"\n' for form in forms)

        head, rest = file.read_text().split("\n\n", 1)
        strings = r'((?:".*"\n)+)'
        rest = re.sub(rf"^msgid {strings}(?:msgid_plural {strings})?((?:msgstr.*\n(?:\".*\"\n)*)+)", entry, rest, flags=re.MULTILINE)
        file.write_text(head + "\n\n" + rest)
        return
    tree = ElementTree.parse(file)
    for unit in tree.iter(NAMESPACE + "trans-unit"):
        target = unit.find(NAMESPACE + "target")
        if target is None:
            target = ElementTree.Element(NAMESPACE + "target")
            unit.insert(1, target)
        target.attrib.pop("state", None)
        target.text = unit.find(NAMESPACE + "source").text + "»"
    tree.write(file, encoding="UTF-8", xml_declaration=True)


class Exchange(unittest.TestCase):
    maxDiff = 2000

    def setUp(self):
        self.held = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.held.name)

    def tearDown(self):
        self.held.cleanup()

    def copy(self, name):
        """Copies the texts of a source, without asset catalogs and the scripts that draw them. Replaces an earlier copy."""
        made = self.folder / name
        shutil.rmtree(made, ignore_errors=True)
        shutil.copytree(SOURCES[name], made, ignore=shutil.ignore_patterns("*.xcassets", "Drawings"), symlinks=True)
        return made

    def export(self, source, language, format, *more):
        file = self.folder / f"{source.name}-{language}.{format}"
        status, _, err = run("export", source, "--language", language, "-o", file, *more)
        self.assertEqual((status, "error" in err), (0, False), err)
        return file

    def check(self, file):
        """Checks the requirements of the formats."""
        if file.suffix == ".po":
            gettext("msgfmt", "-c", "-o", os.devnull, file)
            return
        order = ["source", "target", "context-group", "note"]
        for part in ElementTree.parse(file).getroot():
            self.assertLessEqual({"original", "source-language", "target-language", "datatype"}, set(part.attrib))
            self.assertEqual([child.tag for child in part], [NAMESPACE + "header", NAMESPACE + "body"])
            inside = list(part.iter(NAMESPACE + "trans-unit"))
            self.assertEqual(len({unit.get("id") for unit in inside}), len(inside))
            for unit in inside:
                names = [child.tag.removeprefix(NAMESPACE) for child in unit]
                self.assertEqual(names, [name for name in order if name in names])
                self.assertEqual(unit.get("{http://www.w3.org/XML/1998/namespace}space"), "preserve")
        self.assertEqual(ElementTree.parse(file).getroot().attrib, {"version": "1.2"})

    def test_what_comes_back_unchanged_changes_nothing(self):
        for name, languages in (("Lumora", [p.stem for p in SOURCES["Lumora"].glob("*.lproj") if p.stem != "Base"]), ("Shop", ["de", "ar"])):
            source = self.copy(name)
            before = contents(source)
            for format in ("xliff", "po"):
                files = [self.export(source, language, format) for language in sorted(languages)]
                for file in files:
                    self.check(file)
                    if format == "po":
                        gettext("msgcat", "--width=40", file, "-o", file)
                self.assertEqual(run("import", *files, "--into", source), (0, "", "lumora: note: 0 texts changed in 0 files\n"))
                self.assertEqual(contents(source), before)

    def test_translations_come_back_exactly_and_can_be_reverted(self):
        # new: the source has no texts in the language.
        for name, language, new in (("Lumora", "ru", False), ("Shop", "ar", False), ("Shop", "ru", True), ("Shop", "ja", True), ("Shop", "pt-BR", True)):
            for format in ("xliff", "po"):
                with self.subTest((name, language, format)):
                    source = self.copy(name)
                    before = contents(source)
                    original = self.export(source, language, "xliff").rename(self.folder / "original.xliff")
                    file = self.export(source, language, format, *(["--missing"] if new else []))
                    translate(file)
                    status, out, err = run("import", file, "--into", source)
                    self.assertEqual((status, out), (0, ""), err)
                    after = self.export(source, language, "xliff")
                    for unit in units(after):
                        made = unit.find(NAMESPACE + "target").text
                        if format == "xliff":
                            self.assertEqual(made, unit.find(NAMESPACE + "source").text + "»")
                        else:  # translated from msgid_plural, not from the source of the form
                            self.assertTrue(made.endswith("»"))
                    self.assertEqual(units(self.export(source, language, "xliff", "--missing")), [])
                    self.assertEqual(run("check", source, "--disable", "untranslated", "--level", "error")[0], 0)
                    if not new:  # importing the old texts restores the old files
                        self.assertEqual(run("import", original, "--into", source)[0], 0)
                        self.assertEqual(contents(source), before)

    def test_difficult_texts(self):
        texts = [" x ", "\nx", "x\n", "\t\"\\\\", "\a\b\v\f\r", "\u0001\u007f", "100%% %@", "\u2028\u200f", "<&>]]>", "/* */ //", "#, fuzzy"]
        source = self.folder / "Difficult"
        for language, values in (("en", texts), ("de", texts[1:] + texts[:1])):
            table = "".join(f"{json.dumps(key)} = {json.dumps(value)};\n".replace("\\u", "\\U") for key, value in zip(texts, values))
            (source / f"{language}.lproj").mkdir(parents=True)
            (source / f"{language}.lproj/T.strings").write_bytes(table.encode("utf-16"))
        before = contents(source)
        for format in ("xliff", "po"):
            file = self.export(source, "de", format)
            self.check(file)
            self.assertEqual(run("import", file, "--into", source), (0, "", "lumora: note: 0 texts changed in 0 files\n"))
            new = self.export(source, "fr", format)
            new.write_text(new.read_text().replace("</source>\n", '</source><target>neu</target>\n').replace('msgstr ""\n\n', 'msgstr "neu"\n\n'))
            self.assertEqual(run("import", new, "--into", source, "--keep-going")[0], 1)  # "100%% %@" takes an argument, "neu" does not
            shutil.rmtree(source / "fr.lproj")
            self.assertEqual(contents(source), before)

    def test_only_missing_texts_are_exported(self):
        source = self.copy("Shop")
        table = source / "de.lproj/Localizable.strings"
        table.write_text(table.read_text().replace('"cart.pay" = "Bezahlen";\n', ""))
        plurals = source / "de.lproj/Localizable.stringsdict"
        plurals.write_text(re.sub(r"<key>one</key>\s*<string>%ld Karton</string>\s*", "", plurals.read_text()))
        catalog = source / "Orders.xcstrings"
        catalog.write_text(catalog.read_text().replace('"translated",\n            "value": "Zugestellt"', '"new",\n            "value": "Delivered"'))
        for format in ("xliff", "po"):
            file = self.export(source, "de", format, "--missing")
            self.assertEqual(re.findall(r'(?:trans-unit id=|msgctxt )"(.*?)"', file.read_text()),
                             ["Localizable/cart.pay"] +
                             (["Localizable[variables.boxes.plural.one]/cart.packed", "Localizable[variables.boxes.plural.other]/cart.packed"]
                              if format == "xliff" else ["Localizable[variables.boxes]/cart.packed"]) + ["Orders/Delivered"])
        status, out, err = run("export", source, "--language", "de", "-o", "-")
        self.assertEqual((status, out.count("needs-translation"), "35 texts, 2 without" in err), (0, 1, True), err)

    def test_what_does_not_fit_changes_nothing(self):
        source = self.copy("Shop")
        before = contents(source)
        good = self.export(source, "de", "xliff").read_text()
        title = r'(id="Localizable/home.title".*?<target state="translated">)(.*?)(</target>)'
        greeting = r'(id="Localizable/home.welcome".*?<target state="translated">)(.*?)(</target>)'
        articles = r'(id="Localizable\[variables.articles.plural.other\]/cart.articles".*?<target state="translated">)(.*?)(</target>)'

        def edited(pattern, replacement):
            text, count = re.subn(pattern, replacement, good, count=1, flags=re.DOTALL)
            self.assertEqual(count, 1)
            return text

        def target(pattern, text):
            return edited(pattern, lambda found: found[1] + text + found[3])

        unit = re.search(r"<trans-unit.*?</trans-unit>", good, re.DOTALL)[0]
        for message, text in (
                ("no translatable text with the id Localizable/home.nothing", good.replace('id="Localizable/home.title"', 'id="Localizable/home.nothing"')),
                ("no translatable text with the id Nowhere/home.title", good.replace('id="Localizable/home.title"', 'id="Nowhere/home.title"')),
                ('"home.title" is not the id of a text', good.replace('id="Localizable/home.title"', 'id="home.title"')),
                ("the development text of Localizable/home.welcome has changed since the export", good.replace("Good to see you, %@!<", "Hello, %@!<")),
                ("lacks argument 1, a text (%@)", target(greeting, "Hallo")),
                ("takes argument 1 as an integer (%ld), the development text as a text (%@)", target(greeting, "Hallo %d")),
                ("takes an argument 2", target(greeting, "%@ %@")),
                ("takes an argument 1", target(title, "100 % da")),
                ("takes argument 1 as a text", target(articles, "%1$@ Artikel")),
                ('de has no plural form "few"', good.replace("variables.articles.plural.other]", "variables.articles.plural.few]")),
                ("no text to translate with the id Localizable[variables.x.plural.one]/", good.replace("variables.articles.plural.one]", "variables.x.plural.one]")),
                ("takes argument 2 for the variable articles", good.replace("%#@articles@ in %#@boxes@</target>", "%#@boxes@: %#@articles@</target>")),
                ("lacks the variable boxes", good.replace("%#@articles@ in %#@boxes@</target>", "%#@articles@</target>")),
                ("home.title appears again", good.replace(unit, unit + unit)),
                ('is in "en"', good.replace('target-language="de"', 'target-language="en"')),
                ('is in "../x"', good.replace('target-language="de"', 'target-language="../x"')),
                ("was translated from fr", good.replace('source-language="en"', 'source-language="fr"'))):
            with self.subTest(message):
                self.assertNotEqual(text, good)
                text = text.replace(">Dein Warenkorb<", ">Der Warenkorb<")
                file = self.folder / "bad.xliff"
                file.write_text(text)
                status, out, err = run("import", file, "--into", source)
                self.assertEqual((status, out), (1, ""))
                self.assertIn(message, err)
                self.assertIn(f"{file}:", err)
                self.assertIn("nothing was changed", err)
                self.assertEqual(contents(source), before)
                status, out, err = run("import", file, "--into", source, "--keep-going")
                self.assertEqual((status, message in err), (1, True), err)
                # The other texts are imported, unless the whole file is rejected.
                if "is in" not in message and "translated from" not in message:
                    self.assertIn("Der Warenkorb", (source / "de.lproj/Localizable.strings").read_text())
                    self.assertIn('"home.title" = "Kettle & Leaf";', (source / "de.lproj/Localizable.strings").read_text())
                    self.copy("Shop")
                self.assertEqual(contents(source), before)

    def test_an_incomplete_plural_is_not_imported(self):
        source = self.copy("Shop")
        file = self.export(source, "fr", "xliff")
        translate(file)
        file.write_text(re.sub(r'<trans-unit id="Localizable\[variables.boxes.plural.other.*?</trans-unit>', "", file.read_text(), flags=re.DOTALL))
        status, _, err = run("import", file, "--into", source)
        self.assertEqual(status, 1)
        self.assertIn("Localizable[variables.boxes.plural.other]/cart.packed is missing", err)
        self.assertFalse((source / "fr.lproj").exists())

    def test_files_that_cannot_be_read_or_written(self):
        source = self.copy("Shop")
        before = contents(source)
        file = self.export(source, "de", "xliff")
        translate(file)
        broken = self.folder / "broken.po"
        broken.write_text('msgid "a')
        for arguments, message in (([file, broken], f"{broken}:1:9: error: the string is not closed"), ([file, "none.po"], "none.po"),
                                ([file, file.parent], "")):
            status, out, err = run("import", *arguments, "--into", source, "--keep-going")
            self.assertEqual((status, out, message in err), (2, "", True), err)
            self.assertEqual(contents(source), before)
        self.assertEqual(run("import", file, "--into", self.folder / "none")[0], 2)
        for arguments in (["--language", "en"], ["--language", "Base"], ["--language", "x/y"], [],
                          ["--language", "de", "--development-language", os.fsdecode(b"\xe9")]):
            self.assertEqual(run("export", source, *arguments, "-o", self.folder / "x.po")[0], 2)
        # One of the files cannot be created, so none is changed.
        file = self.export(source, "es", "xliff")
        translate(file)
        (source / "es.lproj").write_text("not a folder")
        status, _, err = run("import", file, "--into", source)
        self.assertEqual((status, f"{source / 'es.lproj'}: error: cannot be written" in err), (2, True), err)
        self.assertEqual(contents(source), before)
        self.assertEqual(list(source.rglob(".*")), [])  # no temporary file is left

    def test_states_and_fuzzy_marks(self):
        source = self.copy("Shop")
        catalog = source / "Orders.xcstrings"
        text = catalog.read_text()
        for state, word in (("needs_review", "needs-review-translation"), ("new", "needs-translation")):
            catalog.write_text(text.replace('"translated",\n            "value": "Zugestellt"', f'"{state}",\n            "value": "Zugestellt"'))
            before = catalog.read_bytes()
            po, xliff = self.export(source, "de", "po"), self.export(source, "de", "xliff")
            self.assertIn(f'<target state="{word}">Zugestellt<', xliff.read_text())
            self.assertEqual(po.read_text().count("#, fuzzy"), 1)
            for file in (po, xliff):
                self.assertEqual(run("import", file, "--into", source)[0], 0)
                self.assertEqual(catalog.read_bytes(), before)
            gettext("msgattrib", "--clear-fuzzy", po, "-o", po)
            self.assertEqual(run("import", po, "--into", source), (0, "", "lumora: note: 1 text changed in 1 file\n"))
            self.assertEqual(catalog.read_text(), text)


if __name__ == "__main__":
    unittest.main()
