"""What is generated, saved and printed is the same bytes in every locale: German has a decimal
comma, Turkish an i that is not the I's."""

import json
import os
import shutil
import subprocess
import tempfile

from support import ACCEPT, CALCULATE, CANCEL, EndToEnd, lanes, main, put, state, try_put

FOLDER = os.path.join(os.path.dirname(__file__), "..", "..", "samples")
SAMPLES = (("backplane-60k", "link0"), ("camera-15k", "sensor"), ("fabric-138k", "mesh"))

# Rates and frequencies with a fraction, texts with an i, a spin box; and a field that is refused.
STEPS = lanes("q0_l0", "q0_l1") + [
    put("frame/moduleName", "Link_iI_Top"), put("tab1/TXLineRate", "2.5"),
    put("tab1/RXLineRate", "3.125"), put("tab1/ReferenceClockFrequency", "156.25"),
    put("tab5/biasSpinBox", 12), CALCULATE,
    try_put("tab1/TXLineRate", "2,5"), state("before"), ACCEPT]


class Locale(EndToEnd):
    @classmethod
    def setUpClass(cls):
        # Made here: a system has only the locales that its owner chose.
        made = tempfile.TemporaryDirectory(prefix="ipgen-locales-")
        cls.addClassCleanup(made.cleanup)
        cls.locales = made.name
        for name in ("de_DE", "tr_TR"):
            subprocess.run(["localedef", "--no-archive", "-i", name, "-f", "UTF-8",
                            os.path.join(made.name, name + ".UTF-8")], check=True)

    @staticmethod
    def tree(folder):
        files = {}
        for place, _, names in os.walk(folder):
            for name in names:
                if name == "yosys.log":  # it tells times
                    continue
                path = os.path.join(place, name)
                with open(path, "rb") as file:
                    files[os.path.relpath(path, folder)] = file.read()
        return files

    def work(self, locale):
        """All that the program writes and prints, in this locale; its folder by the same name."""
        self.locale = locale
        shutil.rmtree(self.project, ignore_errors=True)
        os.mkdir(self.project)
        printed = {}

        def do(*arguments, stdin="", code=0):
            run = self.ipgen(*arguments, stdin=stdin, code=code)
            printed[" ".join(arguments)] = (run.out, run.err)

        for sample, instance in SAMPLES:
            folder = os.path.join(self.project, sample)
            os.mkdir(folder)
            shutil.copy(os.path.join(FOLDER, sample, "project.json"), folder)
            do("generate", folder)
            for command in ("list", "check", "resources"):
                do(command, folder)
                do(command, folder, "--json")
            do("summary", folder, instance)
            do("summary", folder, instance, "--json")
        made = os.path.join(self.project, "ğü")
        do("new", made, "--device", "RZ7X-60B")
        do("create", made, "link0", "--script", "-", "--report", "-", stdin=json.dumps(STEPS))
        do("open", made, "link0", "--set", "tab1/TXLineRate=1.25", "--set", "tab1/q0_l2=true")
        do("generate", made, "--netlist")
        do("example", made, "link0", "--out", os.path.join(made, "bench"))
        do("figure", made, "link0", "--json")
        do("figure", made, "link0", "--svg", os.path.join(made, "figure.svg"))
        do("catalog", "--json")
        do("devices", "--json")
        return self.tree(self.project), printed

    @staticmethod
    def has_decimal_comma(locale):
        """Whether the system's own programs see the locale at all."""
        done = subprocess.run(["/usr/bin/printf", "%.1f", "1,5"], env=locale, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        return done.stdout == b"1,5"

    def test_the_same_in_every_locale(self):
        files, printed = self.work({"LC_ALL": "C.UTF-8"})
        self.assertGreater(len(files), 20)
        self.assertIn(b'"TX_RATE": "1.25"', files["ğü/project.json"])
        for locale in ({"LC_ALL": "C"}, {"LC_ALL": "tr_TR.UTF-8"}, {"LANG": "de_DE.UTF-8"},
                       {"LC_ALL": "de_DE.UTF-8", "LANGUAGE": "de"}):
            with self.subTest(locale=locale):
                locale["LOCPATH"] = self.locales
                self.assertEqual(self.has_decimal_comma(locale), locale.get("LC_ALL") != "C")
                other_files, other_printed = self.work(locale)
                self.assertEqual(sorted(other_files), sorted(files))
                for name, content in files.items():
                    self.assertEqual(other_files[name], content, name)
                self.assertEqual(other_printed, printed)

    def test_a_script_that_is_shown_is_played_in_english(self):
        self.new_project("60k")
        self.locale = {"LANG": "de_DE.UTF-8", "QT_QPA_PLATFORM": "offscreen"}
        steps = lanes("q0_l0") + [put("frame/fileName", "a/b"), ACCEPT, CANCEL]
        run = self.ipgen("create", self.project, "link0", "--show", "--script", "-",
                         "--report", "-", "--record", self.path("again.json"),
                         stdin=json.dumps(steps))
        self.assertEqual(run.json()["messages"], [{
            "title": "Error", "buttons": ["OK"], "answer": "OK",
            "text": 'The file name "a/b" contains a path separator ("/" or "\\"): '
                    "give a plain name."}])


if __name__ == "__main__":
    main()
