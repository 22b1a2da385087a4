"""Tests the program lumora: its output, the files that it writes, its exit status."""
import ctypes
import fcntl
import json
import os
import pathlib
import plistlib
import pty
import re
import resource
import shlex
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import termios
import unittest

PROGRAM = os.path.abspath(sys.argv.pop(1))


def run(*arguments, input=None, **environment):
    done = subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, timeout=60, input=input,
                          env=os.environ | {"LC_ALL": "C", "LANGUAGE": ""} | environment)
    return done.returncode, done.stdout, done.stderr.decode()


class Program(unittest.TestCase):
    def setUp(self):
        self.held = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.held.name)
        os.chdir(self.folder)  # for files that are created by mistake

    def tearDown(self):
        os.chdir("/")
        self.held.cleanup()

    def write(self, name, text):
        file = self.folder / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(text if isinstance(text, bytes) else text.encode())
        return file

    def test_text(self):
        self.assertEqual(run("text", "Continue"), (0, b"Continue\n", ""))
        self.assertEqual(run("text", "--language", "de", "new_comment", "Ann", "5")[1].decode(), "Ann hat kommentiert: 5\n")
        self.assertEqual(run("text", "Continue", LC_ALL="fr_FR.UTF-8")[1], b"Continuer\n")
        key = "ExerciseStraight.% of max weight"
        self.assertEqual(run("text", "--locale", "de_DE", key, "1500")[1], b"1.500% of max weight\n")
        self.assertEqual(run("text", "--locale", "de_DE", key, "007")[1], b"007% of max weight\n")
        self.assertEqual(run("text", "--locale", "de_DE", key, "--", "-5")[1], b"-5% of max weight\n")
        self.assertEqual(run("text", "Continue", "--language", "de"),
                         (0, b"Continue\n", "lumora: note: 2 of 2 arguments unused\n"))
        for key, given, unused in (("new_comment", ["Ann", "5"], 0), ("new_comment", ["Ann", "5", "6"], 1), ("%2$@ %%", [1, 2, 3], 2),
                                   ("%*d%.*d", [1, 2, 3, 4], 0), ("%1$@%1$@", [1], 0), ("%3$@", [1], 1)):
            with self.subTest(key):
                self.assertEqual(f"{unused} of {len(given)} arguments unused" in run("text", key, *given)[2], unused != 0)
        status, out, err = run("text", "no such key")
        self.assertEqual((status, out), (0, b"no such key\n"))
        self.assertIn("note:", err)
        self.assertEqual(run("text", "--bundle", self.folder / "none", "a")[0], 2)

    def test_text_of_another_bundle(self):
        self.write("x.bundle/ru.lproj/T.strings", '"a" = "%2$@ и %1$@";')
        self.assertEqual(run("text", "--bundle", self.folder / "x.bundle", "--language", "ru", "--table", "T", "a", "1", "2")[1]
                         .decode(), "2 и 1\n")
        # The library ignores damaged tables. The program reports one if the key may be in it.
        self.write("x.bundle/Base.lproj/T.strings", '"base" = "Base";')
        damaged = self.write("x.bundle/ru.lproj/T.strings", '"a" = "b";\n"c" = ;')
        text = ("text", "--bundle", self.folder / "x.bundle", "--language", "ru", "--table", "T")
        status, out, err = run(*text, "a")
        self.assertEqual((status, out, err.count("\n")), (2, b"", 1))
        self.assertIn(f"{damaged}:2:7: ", err)
        self.assertEqual(run(*text, "base"), (0, b"Base\n", ""))
        damaged.write_text('"a" = "%f";')
        self.assertEqual([run(*text, "a", number)[1] for number in ("1.5", "1e999")], [b"1,500000\n", b"1e999\n"])
        damaged.unlink()
        self.assertEqual(run(*text, "a")[:2], (0, b"a\n"))

    def test_help(self):
        self.assertEqual(run("help", "check"), run("check", "--help"))
        self.assertEqual(run("help"), run("--help"))
        for wrong, meant in ((["chek", "x"], "check"), (["help", "tex"], "text"), (["gallery", "--modul", "a", "-o", "x"], "--module"),
                             (["asset", "sned", "-o", "x"], "send"), (["text", "Contineu"], "Continue")):
            with self.subTest(wrong):
                self.assertIn(f'; did you mean "{meant}"?', run(*wrong)[2])
        for word in ("something else", "x" * 5000):
            self.assertNotIn("did you mean", run(word)[2])
            self.assertNotIn("did you mean", run("text", word)[2])
        # The man page and the completions have every command and option; man and the shells, if installed, accept them.
        commands = re.findall(r"^  ([a-z]+) ", run("help")[1].decode().split("Commands:")[1], re.M)
        self.assertEqual(set(commands), {*self.CALLS, "watch"})
        options = set()
        for command in commands:
            shown = run(command, "--help")
            self.assertEqual((shown[0], shown[2]), (0, ""))
            options |= set(re.findall(r"(?:^  |,)(--?[a-z-]+)", shown[1].decode(), re.M))
        self.assertLess({"--format", "-o", "--depfile-target"}, options)
        for format, reader in (("man", ["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z"]), ("bash", ["bash", "-n"]),
                               ("zsh", ["zsh", "-n"]), ("fish", ["fish", "-n"])):
            with self.subTest(format):
                made = self.folder / f"lumora.{format}"
                made.write_bytes(run("help", "--format", format)[1])
                text = re.sub(r"\\f[BIR]|\\(?=-)", "", made.read_text())  # without the man page's fonts and the backslash of "\-"
                self.assertEqual([c for c in commands if not re.search(rf"\b{c}\b", text)], [])
                if format == "fish":
                    text = re.sub(r" -l (\S+)| -s (\S)", lambda name: f" --{name[1]}" if name[1] else f" -{name[2]}", text)
                self.assertEqual([o for o in sorted(options) if not re.search(rf"(?<![\w-]){o}(?![\w-])", text)], [])
                if shutil.which(reader[0]):
                    read = subprocess.run([*reader, made], capture_output=True, timeout=60)
                    self.assertEqual((read.returncode, read.stderr), (0, b""))
        completion = "COMP_WORDS=(lumora check --format s); COMP_CWORD=3; _lumora; echo ${COMPREPLY[@]}"
        self.assertEqual(subprocess.run(["bash", "-c", f"source ./lumora.bash; {completion}"], capture_output=True).stdout, b"sarif\n")

    def test_assets_as_json(self):
        lines = [line.split("\t") for line in run("assets")[1].decode().splitlines()]
        listed = json.loads(run("assets", "--format", "json")[1])
        self.assertEqual([[one["kind"], one["catalog"], one["name"]] for one in listed], lines)

    def test_table_in_every_form(self):
        file = self.write("a.strings", '/* c */ "k\\n" = "v \\U0416"; plain = word; list = (1, 2);')
        status, out, err = run("table", file)
        self.assertEqual((status, json.loads(out)), (0, {"k\n": "v Ж", "plain": "word"}))
        self.assertIn("a.strings:1:", err)
        for form in ("strings", "xml", "binary"):
            made = self.folder / f"made.{form}"
            self.assertEqual(run("table", file, "--to", form, "-o", made)[0], 0)
            self.assertEqual(json.loads(run("table", made)[1]), {"k\n": "v Ж", "plain": "word"})
            if form != "strings":
                self.assertEqual(plistlib.loads(made.read_bytes()), {"k\n": "v Ж", "plain": "word"})
        self.assertEqual(run("table", self.write("empty", ""))[:2], (0, b"{}\n"))

    def test_table_from_a_pipe(self):
        text = "".join(f"key{number} = \"{number * 'x'}\";\n" for number in range(500))  # more than a pipe holds
        expected = {f"key{number}": number * "x" for number in range(500)}
        for name in ("-", "/dev/stdin"):
            with self.subTest(name):
                self.assertEqual(json.loads(run("table", name, input=text.encode())[1]), expected)
        self.assertEqual(run("table", "-", input=b""), (0, b"{}\n", ""))
        self.assertEqual(run("table", "-", input=b"a = b;\na =")[2],
                         "standard input:2:4: " + run("table", self.write("cut", "a = b;\na ="))[2].split(":2:4: ")[1])
        status, out, err = run("table", "/dev/zero")
        self.assertEqual((status, out, err), (2, b"", "/dev/zero: error: is larger than 268435456 bytes\n"))

    def test_faults_are_one_line_with_their_place(self):
        for name, text, place in (("unended", '"a" = "b', ":1:7:"), ("escape", '"a" =\n "\\U12";', ":2:"),
                                  ("lone", '"a" = "\\UD800";', ":1:"), ("nul", b'"a" = "\0";', ":1:"),
                                  ("xml", "<plist><dict><key>a</key></plist>", ":1:"), ("cut", b"bplist00\x01", "cut: ")):
            with self.subTest(name):
                file = self.write(name, text)
                status, out, err = run("table", file)
                self.assertEqual((status, out, err.count("\n")), (2, b"", 1), err)
                self.assertIn(f"{file}{place}" if place[0] == ":" else place, err)
        self.assertIn("nonsense", run("nonsense")[2])
        for arguments in (["table", self.folder / "none"], ["table", self.folder], ["table"], ["nonsense"], [],
                          ["table", file, "--to", "yaml"], ["compile", self.folder / "none", "-o", self.folder / "x.bundle"]):
            status, out, err = run(*arguments)
            self.assertEqual((status, out, err.count("\n")), (2, b"", 1), (arguments, err))
        self.assertEqual(run("table", self.write("ok", "a=b;"), "-o", self.folder / "no" / "where")[0], 2)

    def test_writes_where_it_is_told(self):
        file = self.write("a.strings", "a = b;")
        real = self.write("real", "old")
        real.chmod(0o600)
        link = self.folder / "link"
        link.symlink_to("real")
        self.assertEqual(run("table", file, "--to", "strings", "-o", link)[0], 0)
        self.assertTrue(link.is_symlink())
        self.assertEqual(real.read_text(), '"a" = "b";\n')
        self.assertEqual(real.stat().st_mode & 0o777, 0o600)
        self.assertEqual(run("table", file, "--to", "strings", "-o", "-"), (0, b'"a" = "b";\n', ""))
        self.assertEqual(run("asset", "send", "-o", "-")[1][:4], b"\x89PNG")
        # Through a link, so that the test cannot damage /dev/stdout.
        own = self.folder / "stdout"
        own.symlink_to("/proc/self/fd/1")
        self.assertEqual(run("table", file, "-o", own)[1], b'{\n  "a": "b"\n}\n')
        log = self.write("log", "earlier\n")
        with open(log, "ab") as out:
            for _ in range(2):
                subprocess.run([PROGRAM, "table", file, "--to", "strings", "-o", own], stdout=out, check=True, timeout=60)
        self.assertEqual((log.read_text(), own.is_symlink()), ('earlier\n"a" = "b";\n"a" = "b";\n', True))

    def test_wrong_use_is_one_line(self):
        self.write("src/Base.lproj/T.strings", "a = b;")
        file, source = self.write("a.strings", "a = b;"), self.folder / "src"
        for message, *arguments in (
                ("bogus", "bogus", "--help"), ("verify", "verify", "--help"), ("verify", "verify", "--version"),
                ("--output: the name is empty", "table", file, "-o", ""), ("FILE: the name is empty", "table", ""),
                ("--output: the name is empty", "asset", "send", "-o", ""), ("SOURCE: the name is empty", "compile", "", "-o", "x"),
                ("--output: the name is empty", "compile", source, "-o", ""),
                ("--bundle: the name is empty", "text", "--bundle", "", "a"), ("--bundle: the name is empty", "assets", "--bundle", ""),
                ("SOURCE: the name is empty", "generate", "", "--module", "M", "-o", "x"),
                ("--output: the name is empty", "generate", source, "--module", "M", "-o", ""),
                ("--names requires SOURCE", "gallery", "--names", file, "-o", self.folder / "x"),
                ("--depfile requires --depfile-target", "compile", source, "-o", "x", "--depfile", "d"),
                ("unknown rule x", "check", source, "--disable", "x"), ("yaml", "check", source, "--format", "yaml"),
                ("1 to 1000", "generate", source, "--module", "M", "-o", self.folder / "x", "--shards", "0"),
                ("1 to 1000", "generate", source, "--module", "M", "-o", self.folder / "x", "--shards", "1001")):
            with self.subTest(arguments):
                status, out, err = run(*arguments)
                self.assertEqual((status, out, err.count("\n")), (2, b"", 1), err)
                self.assertIn(message, err)
                self.assertLess(len(err), 200)

    # A way to call each command so that it succeeds, in a folder with `src`, a.strings and de.po; MADE is a file or folder that it
    # writes. READS: the inputs of these calls, and the commands that fail without them.
    CALLS = {
        "text": ("text", "Continue"), "table": ("table", "a.strings", "-o", "MADE"), "assets": ("assets",),
        "generate": ("generate", "src", "--module", "Shop", "-o", "MADE"), "compile": ("compile", "src", "-o", "MADE"),
        "check": ("check", "src"), "accessors": ("accessors", "src", "--module", "Shop"),
        "asset": ("asset", "send", "-o", "MADE"), "gallery": ("gallery", "src", "-o", "MADE"),
        "export": ("export", "src", "--language", "de", "-o", "MADE"), "import": ("import", "--into", "src", "de.po"), "help": ("help", "check")}
    READS = {"a.strings": "table", "src": "generate compile check accessors gallery export import", "de.po": "import"}

    def test_every_command_ends_with_the_right_status(self):
        self.write("src/Base.lproj/T.strings", 'a = "%@";')
        self.write("src/de.lproj/T.strings", 'a = "%@ da";')
        self.write("a.strings", "a = b;")
        self.write("file", "")
        self.assertEqual(run("export", "src", "--language", "de", "-o", "de.po")[0], 0)
        calls = [(0, call) for call in self.CALLS.values()]
        for name, call in self.CALLS.items():
            calls.append((2, (name, "--nonsense=1", *call[1:])))
            if "MADE" in call:  # into a path that is not a folder
                calls.append((2, [part.replace("MADE", "file/made") for part in call]))
        for missing, commands in self.READS.items():
            calls += [(2, [part.replace(missing, "none") for part in self.CALLS[name]]) for name in commands.split()]
        for status, call in calls:
            with self.subTest(call):
                found, out, err = run(*(part.replace("MADE", f"made.{call[0]}") for part in call))
                self.assertEqual(found, status, err)
                if status != 0:
                    self.assertEqual(err.count("\n"), 1, err)
        faulty = self.write("src/de.lproj/T.strings", 'a = "%ld da";')
        self.assertEqual(run("check", "src")[0], 1)
        faulty.write_text('a = "%@ dort";')
        self.write("de.po", (self.folder / "de.po").read_text().replace("%@ da", "%ld da"))
        self.assertEqual(run("import", "de.po", "--into", "src")[0], 1)

    def test_output_that_cannot_be_written_is_an_error(self):
        self.write("src/Base.lproj/T.strings", "a = b;")
        for arguments in (["--help"], ["--version"], ["table", "--help"], ["text", "Continue"], ["assets"], ["help", "--format", "man"],
                          ["check", "src", "--format", "sarif"], ["accessors", "src", "--module", "Shop"], ["gallery", "src", "-o", "-"],
                          ["export", "src", "--language", "de", "-o", "-"], ["asset", "send", "-o", "-"]):
            for redirected in (">/dev/full", ">&-"):
                with self.subTest((arguments, redirected)):
                    done = subprocess.run(["sh", "-c", f'exec "$0" "$@" {redirected}', PROGRAM, *arguments],
                                          capture_output=True, text=True, timeout=60)
                    self.assertEqual((done.returncode, done.stderr.count("\n")), (2, 1), done.stderr)
                    self.assertTrue(done.stderr.startswith("standard output: error: cannot be written: "), done.stderr)
        # If the reader of a pipe goes away, SIGPIPE ends the program, unless it has written all; if SIGPIPE is ignored, the program fails.
        for script, expected in (('"$0" assets | head -1 >/dev/null; echo ${PIPESTATUS[0]}', ("0\n", "141\n")),
                                 ('trap "" PIPE; "$0" gallery -o - | true; echo ${PIPESTATUS[0]}', ("2\n",))):
            self.assertIn(subprocess.run(["bash", "-c", script, PROGRAM], capture_output=True, text=True, timeout=60).stdout, expected)

    def test_only_a_terminal_has_color(self):
        self.write("src/Base.lproj/T.strings", 'a = "%";')
        for environment, has in (({}, True), ({"NO_COLOR": ""}, True), ({"NO_COLOR": "1"}, False)):
            # The findings go to standard output, the error of the second command goes to standard error.
            script = f"{shlex.quote(PROGRAM)} check src; {shlex.quote(PROGRAM)} compile src/Base.lproj -o none"
            shown = subprocess.run(["script", "-qec", script, "/dev/null"], capture_output=True, timeout=60,
                                   env={key: value for key, value in os.environ.items() if key != "NO_COLOR"} | environment).stdout
            self.assertEqual((b"\x1b[3" in shown, b"%" in shown), (has, True), shown)
            self.assertNotIn(b"[1/", shown)  # no progress line, because the work is short
        self.assertNotIn(b"\x1b", run("check", "src")[1])

    def test_long_work_has_a_progress_line_that_is_erased(self):
        for i in range(16):  # each takes at least a tenth of a second
            self.write(f"src/A.xcassets/a picture with a long name {i}.imageset/Contents.json",
                       '{"images": [{"filename": "a.svg"}], "properties": {"preserves-vector-representation": true}}')
            self.write(f"src/A.xcassets/a picture with a long name {i}.imageset/a.svg", f"""<svg xmlns="http://www.w3.org/2000/svg"
                width="150" height="150"><filter id="f"><feTurbulence baseFrequency="0.{i + 1}" numOctaves="9"/></filter>
                <rect width="150" height="150" filter="url(#f)"/></svg>""")
        terminal, end = pty.openpty()
        fcntl.ioctl(end, termios.TIOCSWINSZ, struct.pack("HHHH", 24, 20, 0, 0))  # 24 rows, 20 columns
        processor = min(os.sched_getaffinity(0))  # with only one, pictures are drawn one by one
        with subprocess.Popen([PROGRAM, "compile", "src", "-o", "Made.bundle"], stdout=end, stderr=end,
                              preexec_fn=lambda: os.sched_setaffinity(0, {processor})) as process:
            self.assertEqual(process.wait(timeout=60), 0)
        # Each line is cut to the terminal's width: the "w" is there beside a number of one digit.
        self.assertRegex(os.read(terminal, 1 << 16).decode(), r"^(\r\x1b\[K\[\d+/16\] a picture w?…)+\r\x1b\[K$")
        os.close(end)
        os.close(terminal)
        shutil.rmtree("Made.bundle")
        self.assertEqual(run("compile", "src", "-o", "Made.bundle"), (0, b"", ""))

    def test_generate_and_compile(self):
        self.write("src/Base.lproj/Words.strings", '"hello_name" = "Hello, %@";\n"Bye" = "Bye";\n')
        status, _, err = run("generate", self.folder / "src", "--module", "Shop", "-o", self.folder / "tree")
        self.assertEqual((status, err), (0, ""))
        self.assertIn("helloName(", (self.folder / "tree/ShopStrings/Words.h").read_text())
        self.write("src/a\\b\\ c#d$e.txt\\", "")
        self.assertEqual(run("compile", self.folder / "src", "-o", self.folder / "Shop.bundle", "--depfile", "made.d", "--depfile-target", "made"),
                         (0, b"", ""))
        self.assertIn(r"/src/a\b\\\ c\#d$$e.txt\\", pathlib.Path("made.d").read_text())  # as make reads it
        self.write("src/12:30/f", "")
        self.write("src/Old (1)/f", "")
        run("compile", self.folder / "src", "-o", self.folder / "Shop.bundle", "--depfile", "made.d", "--depfile-target", "made")
        odd = [line.strip() for line in pathlib.Path("made.d").read_text().splitlines() if re.search(r"12:30|\)$|always", line)]
        always = str(pathlib.Path("made.always").absolute())
        self.assertEqual(odd, [always, always + ":"])  # make cannot read the others
        self.write("bad/en.lproj/T.strings", "a = ;")
        for command in (["generate", "bad", "--module", "M"], ["compile", "bad"]):
            self.assertEqual(run(*command, "-o", "out", "--depfile", "bad.d", "--depfile-target", "out")[0], 2)
        self.assertFalse(pathlib.Path("bad.d").exists() or pathlib.Path("out").exists())
        self.assertEqual(run("text", "--bundle", self.folder / "Shop.bundle", "--table", "Words", "hello_name", "Bo")[1],
                         b"Hello, Bo\n")
        # A plural table that is added by hand is read.
        forms = {"NSStringFormatSpecTypeKey": "NSStringPluralRuleType", "NSStringFormatValueTypeKey": "d", "one": "One", "other": "%d"}
        self.write("Shop.bundle/Base.lproj/Words.stringsdict",
                   plistlib.dumps({"Bye": {"NSStringLocalizedFormatKey": "%#@n@", "n": forms}}).decode())
        self.assertEqual(run("text", "--bundle", self.folder / "Shop.bundle", "--table", "Words", "Bye", "1")[1], b"One\n")
        # This bundle has no assets and therefore no catalog, which is not an error; a missing bundle is one.
        bundle = self.folder / "Shop.bundle"
        self.assertEqual(run("assets", "--bundle", bundle), (0, b"", ""))
        self.assertEqual(run("asset", "send", "--bundle", bundle, "-o", "-"),
                         (2, b"", "send: error: the bundle has no asset with this name\n"))
        for command in (["assets"], ["asset", "send", "-o", "-"]):
            self.assertEqual(run(*command, "--bundle", self.folder / "none")[2], f"{self.folder / 'none'}: error: is not a bundle\n")

    def test_lists_assets_as_json_and_names_what_was_meant(self):
        self.write("src/Looks.xcassets/star big.imageset/Contents.json",
                   '{"images": [{"filename": "a.svg", "scale": "2x", "locale": "de"}]}')
        self.write("src/Looks.xcassets/star big.imageset/a.svg", '<svg xmlns="http://www.w3.org/2000/svg" width="3" height="1"/>')
        self.write("src/Looks.xcassets/ink.colorset/Contents.json",
                   '{"colors": [{"color": {"color-space": "display-p3", "components": {"red": 1, "green": "51", "blue": "0.5"}},'
                   ' "appearances": [{"appearance": "luminosity", "value": "dark"}]}]}')
        self.write("src/Base.lproj/Localizable.strings", '"Diet.AllDish" = "All";')
        bundle = self.folder / "Shop.bundle"
        self.assertEqual(run("compile", self.folder / "src", "-o", bundle), (0, b"", ""))
        color, image = json.loads(run("assets", "--bundle", bundle, "--format", "json")[1])
        self.assertEqual(color, {"kind": "color", "catalog": "Looks", "name": "ink", "variants": [
            {"appearance": "dark", "color-space": "display-p3", "components": [1, 0.2, 0.5, 1]}]})
        size = image["variants"][0].pop("bytes")
        self.assertEqual(image["variants"], [{"scale": 2, "language": "de", "width": 3, "height": 1, "points": [1.5, 0.5]}])
        self.assertEqual(len(run("asset", "--bundle", bundle, "--language", "de", "star big", "-o", "-")[1]), size)
        for command, meant in ((("asset", "starbig", "--bundle", bundle, "-o", "-"), "star big"), (("assetz",), "assets"),
                               (("text", "--bundle", bundle, "diet.alldish"), "Diet.AllDish")):
            self.assertIn(f'did you mean "{meant}"?', run(*command)[2])
        self.assertNotIn("mean", run("asset", "another", "--bundle", bundle, "-o", "-")[2])

    def test_messages_are_labelled_grouped_and_counted(self):
        words = self.write("src/Base.lproj/Words.strings", '"a_b" = "1";\n"a b" = "2";\n"x\\n\\U202E" = "3 %";\n')
        notes = [self.write(f"src/Base.lproj/{name}.xib", "") for name in "ABC"]
        left_out = "is not a table and is left out"
        clash = f'{words}:2:1: LEVEL: key "a b" has no accessor: the name ab belongs to key "a_b" (line 1)\n'
        percent = (f'{words}:3:1: LEVEL: the text of key "x\\n\\u{{202E}}" has a % that begins no placeholder and is printed '
                   "literally (write %% for a percent sign)\n")
        expected = f"{notes[0]}: note: {left_out}\n    also {notes[1]}, {notes[2]}\n{percent}{clash}lumora: COUNT\n"
        generate = ["generate", self.folder / "src", "--module", "Shop", "-o", self.folder / "tree"]
        self.assertEqual(run(*generate), (0, b"", expected.replace("LEVEL", "warning").replace("COUNT", "0 errors, 2 warnings")))
        self.assertTrue((self.folder / "tree/ShopStrings.h").exists())
        generate[-1] = self.folder / "strict"
        self.assertEqual(run(*generate, "--strict"),
                         (2, b"", expected.replace("LEVEL", "error").replace("COUNT", "2 errors, 0 warnings")))
        self.assertFalse((self.folder / "strict").exists())
        names = self.write("names.strings", '"Words/a b" = "Pair.second";')
        self.assertNotIn("accessor", run(*generate, "--names", names)[2])
        self.assertIn("namespace Shop::ShopStrings::Words::Pair {", (self.folder / "strict/ShopStrings/Words.h").read_text())
        # A single message contains the count, so that one error gives one line.
        status, out, err = run("generate", self.folder / "none", "--module", "Shop", "-o", self.folder / "tree")
        self.assertEqual((status, out, err), (2, b"", f"{self.folder / 'none'}: error: is not a folder of resources (1 error, 0 warnings)\n"))

    def test_accessors(self):
        table = self.write("src/Base.lproj/Words.strings", '/* a "name" */\n"hello.name" = "Hello, %@: %.1f";\n"" = "";\n')
        catalog = self.write("src/Deep/More.xcstrings", json.dumps({"sourceLanguage": "en", "strings": {"files": {"localizations": {
            "en": {"variations": {"plural": {form: {"stringUnit": {"value": f"%lld {word}"}} for form, word in
                                             (("one", "file"), ("other", "files"))}}}}}}}, indent=1))
        self.write("src/Looks.xcassets/a.imageset/Contents.json", '{"images": [{"filename": "a.svg"}]}')
        self.write("src/Looks.xcassets/a.imageset/a.svg", '<svg xmlns="http://www.w3.org/2000/svg" width="1" height="1"/>')
        accessors = ["accessors", self.folder / "src", "--module", "Shop"]
        status, out, err = run(*accessors, "--format", "json")
        reason = "it has no letter or digit for a name"
        self.assertEqual((status, err), (0, f'{table}:3:1: warning: key "" has no accessor: {reason} (0 errors, 1 warning)\n'))
        tree = "Shop::Shop"
        self.assertEqual(json.loads(out), [
            {"kind": "text", "accessor": f"{tree}Strings::More::files", "table": "More", "key": "files", "parameters": ["integer"],
             "text": "%lld files", "comment": "", "file": str(catalog), "line": 4},
            {"kind": "text", "accessor": f"{tree}Strings::Words::Hello::name", "table": "Words", "key": "hello.name",
             "parameters": ["text", "number"], "text": "Hello, %@: %.1f", "comment": 'a "name"', "file": str(table), "line": 2},
            {"kind": "text", "accessor": None, "table": "Words", "key": "", "parameters": [], "text": "", "comment": "",
             "file": str(table), "line": 3, "reason": reason},
            {"kind": "image", "accessor": f"{tree}Asset::Looks::a", "catalog": "Looks", "name": "a", "parameters": [],
             "text": "", "comment": "", "file": str(self.folder / "src/Looks.xcassets/a.imageset"), "line": 0}])
        self.assertEqual(run(*accessors)[1].decode().splitlines(), [
            f"text\t{tree}Strings::More::files(integer)\tMore\tfiles",
            f"text\t{tree}Strings::Words::Hello::name(text, number)\tWords\thello.name",
            f"text\t-\tWords\t\t{reason}", f"image\t{tree}Asset::Looks::a\tLooks\ta"])
        # In the compiled bundle, the plural text chooses its form.
        self.assertEqual(run("compile", self.folder / "src", "-o", self.folder / "Shop.bundle")[0], 0)
        for count, text in (("1", b"1 file\n"), ("5", b"5 files\n")):
            self.assertEqual(run("text", "--bundle", self.folder / "Shop.bundle", "--table", "More", "files", count)[1], text)

    def write_versions(self):
        """Writes two sources, "1" and "2", whose texts begin with that digit."""
        for version in "12":
            for table in range(4):
                self.write(f"{version}/Base.lproj/T{table}.strings",
                           "".join(f"key{number} = \"{version * 100}{number}\";" for number in range(100)))

    def versions(self):
        """The first digits of all texts in App.bundle, and the number of its tables."""
        tables = sorted((self.folder / "App.bundle").glob("*.lproj/*"))
        return {text[0] for table in tables for text in plistlib.loads(table.read_bytes()).values()}, len(tables)

    def test_compile_without_room_keeps_the_old_bundle(self):
        self.write_versions()
        self.assertEqual(run("compile", self.folder / "1", "-o", self.folder / "App.bundle")[0], 0)
        done = subprocess.run([PROGRAM, "compile", self.folder / "2", "-o", self.folder / "App.bundle"], capture_output=True,
                              timeout=60, text=True,
                              preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (5000, 5000)))
        self.assertEqual((done.returncode, done.stderr.count("\n")), (2, 1), done.stderr)
        self.assertRegex(done.stderr, r"/Base\.lproj/T\d+\.strings: error: cannot be written: ")
        self.assertEqual(self.versions(), ({"1"}, 4))
        self.assertEqual({path.name for path in self.folder.iterdir()}, {"1", "2", "App.bundle"})

    def test_a_killed_compile_leaves_a_whole_bundle(self):
        """Kills a compile after each system call of its main thread, from the creation of the staged folder on."""
        self.write_versions()
        self.assertEqual(run("compile", self.folder / "1", "-o", self.folder / "App.bundle")[0], 0)
        for version in "12":
            calls = 0
            while self.is_killed_in_compile(version, calls):
                calls += 1
                versions, count = self.versions()
                self.assertEqual((len(versions), count), (1, 4), calls)
                # At most its own folder: each compile removes the leftovers of the one before.
                self.assertLessEqual(len(self.staged()), 1, calls)
            self.assertGreater(calls, 20)
            self.assertEqual({path.name for path in self.folder.iterdir()}, {"1", "2", "App.bundle"})

    def staged(self):
        return set(self.folder.glob("App.bundle.staged-*"))

    def is_killed_in_compile(self, version, calls):
        """Compiles `version` and kills the program when its main thread has made `calls` system calls after the one that
        created the staged folder. False if the program ends before."""
        trace = ctypes.CDLL(None).ptrace
        trace.argtypes = [ctypes.c_long, ctypes.c_long, ctypes.c_void_p, ctypes.c_void_p]
        PTRACE_TRACEME, PTRACE_SYSCALL = 0, 24
        old = self.staged()
        child = os.fork()
        if child == 0:
            trace(PTRACE_TRACEME, 0, None, None)
            os.execv(PROGRAM, [PROGRAM, "compile", self.folder / version, "-o", self.folder / "App.bundle"])
        stops = None  # two per call: when it begins and when it ends
        while os.WIFSTOPPED(os.waitpid(child, 0)[1]):
            if stops is not None:
                stops += 1
            elif self.staged() - old:
                stops = 0
            if stops == 2 * calls:
                os.kill(child, signal.SIGKILL)
            trace(PTRACE_SYSCALL, child, None, None)
        return stops == 2 * calls

    def test_gallery(self):
        bundle, page = self.folder / "none.bundle", self.folder / "page.html"
        self.assertEqual(run("gallery", "--bundle", bundle, "-o", page), (2, b"", f"{bundle}: error: is not a bundle\n"))
        source = self.folder / "Sales"
        broken = self.write("Sales/Base.lproj/T.strings", '"a" = "b";\n"c" = ;')
        self.assertTrue(run("gallery", source, "-o", page)[2].startswith(f"{broken}:2:"))
        self.assertFalse(page.exists())
        broken.write_text('"a" = "b";')
        # An image and a colour of one name: `generate` gives the name to the colour.
        self.write("Sales/A.xcassets/x.imageset/Contents.json", '{"images": [{"filename": "x"}]}')
        self.write("Sales/A.xcassets/x.imageset/x", '<svg xmlns="http://www.w3.org/2000/svg" width="1" height="1"/>')
        self.write("Sales/A.xcassets/x.colorset/Contents.json", '{"colors": [{"color": {"components": {"white": 1}, "color-space": "gray-gamma-22"}}]}')
        self.assertEqual(run("gallery", str(source) + "/", "-o", page)[::2], (0, ""))
        self.assertIn('"kind":"color","catalog":"A","name":"x","accessor":"A::x"', page.read_text())
        self.assertIn('"title":"Sales"', page.read_text())
        self.assertIn('"accessor":"T::a"', page.read_text())
        self.assertEqual(run("gallery", source, "--bundle", bundle, "-o", page)[0], 2)
        self.assertIn("temporary folder: No such file", run("gallery", source, "-o", page, TMPDIR=self.folder / "none")[2])


if __name__ == "__main__":
    unittest.main()
