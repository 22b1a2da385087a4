"""Tests lumora watch: its output after each kind of change, and how it ends."""
import os
import pathlib
import queue
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import unittest

PROGRAM = os.path.abspath(sys.argv.pop(1))


class Watch(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.temporary.name)
        self.source = self.folder / ".Source"  # hidden, but only hidden files and folders inside of a source are ignored
        self.bundle = self.source / "Made.bundle"  # the bundle may be inside the source
        self.write("en.lproj/T.strings", 'a = "one";')
        self.process = subprocess.Popen([PROGRAM, "watch", self.source, "-o", self.bundle], stdout=subprocess.PIPE,
                                        stderr=subprocess.STDOUT, text=True)
        self.lines = queue.Queue()
        threading.Thread(target=lambda: [self.lines.put(line) for line in self.process.stdout], daemon=True).start()
        self.assertRegex(self.next(), r"^\d\d:\d\d:\d\d .*Made\.bundle compiled in \d+ ms\n$")

    def tearDown(self):
        self.process.kill()
        self.process.wait()
        self.process.stdout.close()
        self.temporary.cleanup()

    def write(self, name, text):
        file = self.source / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)
        return file

    def next(self):
        return self.lines.get(timeout=60)

    def until(self, message):
        while message not in self.next():
            pass

    def expect(self, text, *, language="en", key="a"):
        """Waits until the bundle has this text, after any number of compiles."""
        while self.text(language, key) != text:
            self.assertRegex(self.next(), "compiled in")

    def wait_for(self, text):
        """The same, but compiles may also fail, for example while the source is missing."""
        while self.text("en", "a") != text:
            self.next()

    def text(self, language, key):
        return subprocess.run([PROGRAM, "text", "--bundle", self.bundle, "--table", "T", "--language", language, key],
                              capture_output=True, text=True, timeout=60).stdout.strip()

    def test_every_kind_of_change(self):
        table = self.write("en.lproj/T.strings", 'a = "two";')
        self.expect("two")
        # Editors write a new file and rename it.
        self.write("en.lproj/.T.swp", 'a = "three";').rename(table)
        self.expect("three")
        # A new folder that is filled at once, a renamed one, and changes in it afterwards.
        self.write("Deep/er/de.lproj/T.strings", 'a = "drei";')
        self.expect("drei", language="de")
        (self.source / "Deep").rename(self.source / "Else")
        self.write("Else/er/de.lproj/T.strings", 'a = "vier";')
        self.expect("vier", language="de")
        shutil.rmtree(self.source / "Else")
        self.expect("three", language="de")
        # An error does not change the bundle; the correction is compiled.
        table.write_text("a = ")
        self.until(f"{table}:1:")
        self.until("is unchanged: T.strings changed")
        self.assertEqual(self.text("en", "a"), "three")
        table.write_text('a = "five";')
        self.expect("five")
        # A change of permissions may make a file readable.
        table.chmod(0o640)
        self.until("T.strings changed")
        # The whole folder is replaced.
        self.source.rename(self.folder / "Old")
        shutil.copytree(self.folder / "Old", self.folder / "New", ignore=shutil.ignore_patterns("*.bundle"))
        (self.folder / "New/en.lproj/T.strings").write_text('a = "six";')
        (self.folder / "New").rename(self.source)
        self.wait_for("six")
        table.write_text('a = "seven";')
        self.wait_for("seven")
        for name in ("x", "y"):  # links that lead in circles
            (self.source / f"en.lproj/{name}.lproj").symlink_to(".")
        table.write_text('a = "eight";')
        self.wait_for("eight")
        self.process.send_signal(signal.SIGINT)
        self.assertEqual(self.process.wait(timeout=60), 0)

    def test_ends_when_the_terminal_closes_and_watches_nothing_that_it_makes(self):
        self.assertRaises(queue.Empty, self.lines.get, timeout=1)  # the bundle in the source does not count as a change
        self.process.send_signal(signal.SIGHUP)
        self.assertEqual(self.process.wait(timeout=60), 0)
        self.assertEqual({path.name for path in self.source.iterdir()}, {"en.lproj", "Made.bundle"})

    def test_an_interruption_ends_a_compile(self):
        folder = self.folder / "Slow"
        for i in range(20):  # all of them take many seconds
            drawing = folder / f"Source/A.xcassets/{i}.imageset/a.svg"
            drawing.parent.mkdir(parents=True)
            (drawing.parent / "Contents.json").write_text('{"images": [{"filename": "a.svg"}]}')
            drawing.write_text(f"""<svg xmlns="http://www.w3.org/2000/svg" width="300" height="300"><filter id="f">
                <feTurbulence baseFrequency="0.{i + 1}" numOctaves="9"/></filter><rect width="300" height="300" filter="url(#f)"/></svg>""")
        process = subprocess.Popen([PROGRAM, "watch", folder / "Source", "-o", folder / "Made.bundle"])
        while len(list(folder.iterdir())) == 1:  # until the compile has begun
            self.assertIsNone(process.poll())
        process.send_signal(signal.SIGTERM)
        self.assertEqual(process.wait(timeout=60), 0)
        self.assertEqual([path.name for path in folder.iterdir()], ["Source"])

    def test_wrong_use(self):
        done = subprocess.run([PROGRAM, "watch", self.folder / "none", "-o", self.bundle], capture_output=True, text=True, timeout=60)
        self.assertEqual((done.returncode, done.stderr.count("\n")), (2, 1))


if __name__ == "__main__":
    unittest.main()
