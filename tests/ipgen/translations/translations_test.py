"""The translation files: nothing of the sources is missing in them, and nothing in them is broken."""
import difflib
import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

SOURCE = os.path.abspath(sys.argv.pop(1))
FILES = sorted(glob.glob(os.path.join(SOURCE, "ipgen", "translations", "*.ts")))


def messages(path):
    """(context, source, translation element) of each."""
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            yield (context.findtext("name"), message.findtext("source"),
                   message.find("translation"))


def lines(path):
    with open(path, encoding="utf-8") as file:
        return file.read().splitlines()


class Translations(unittest.TestCase):
    maxDiff = None

    def test_they_follow_the_sources(self):
        self.assertTrue(FILES)
        folder = tempfile.mkdtemp(prefix="ipgen-ts-")
        self.addCleanup(shutil.rmtree, folder)
        for path in FILES:
            copy = shutil.copy(path, folder)
            done = subprocess.run([os.path.join(SOURCE, "scripts", "translations"), copy],
                                  check=False, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                  encoding="utf-8")
            self.assertEqual(done.returncode, 0, done.stdout)
            # lupdate warns of texts whose context it had to guess.
            self.assertNotRegex(done.stdout, "lacks Q_OBJECT|unknown namespace")
            changes = difflib.unified_diff(lines(path), lines(copy), lineterm="", n=0)
            self.assertEqual(list(changes), [],
                             "run scripts/translations and translate what is unfinished")

    def test_every_text_has_its_translation(self):
        for path in FILES:
            missing = [source for _, source, translation in messages(path)
                       if translation.get("type") or not translation.text]
            self.assertEqual(missing, [], path)

    def test_translations_keep_what_the_program_fills_in(self):
        for path in FILES:
            for _, source, translation in messages(path):
                # Numbers of arguments, tags of rich text, whether a letter is underlined.
                for pattern in (r"%\d", r"</?\w+>", r"&(?=\w)", r"^\n|\n$", r"…", r"\(F\d+\)"):
                    self.assertEqual(sorted(re.findall(pattern, source)),
                                     sorted(re.findall(pattern, translation.text or "")), source)

    def test_no_text_of_an_ip_is_in_them(self):
        # What a dialog's pages show is what is saved and what scripts name.
        for path in FILES:
            own = re.compile(r"(Window|Actions|\w+Texts|IPSERDESIP|Ipgen)(::\w+)?$")
            for context, source, _ in messages(path):
                self.assertRegex(context, own, source)


unittest.main(verbosity=2)
