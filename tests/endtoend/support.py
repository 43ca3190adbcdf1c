"""What the end-to-end tests share: the program, projects in scratch folders, session scripts.

Every run gets an environment without a display and without a Qt platform, so that a command which
needs one fails here. A test file calls main(), whose first argument is the build folder.
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

DEVICE = {"60k": "RZ7X-60B", "15k": "RZ7X-15A", "138k": "RZ7X-138"}
RUN_TIMEOUT = 60  # s; a session never hangs

_build = None


def use_build(folder):
    global _build
    _build = os.path.abspath(folder)


def main():
    use_build(sys.argv.pop(1))
    unittest.main(module="__main__", verbosity=2)


def build_folder():
    return _build


def put(name, value):
    return {"set": name, "to": value}


def try_put(name, value):
    return {"set": name, "to": value, "try": True}


def press(name):
    return {"press": name}


def state(label):
    return {"state": label}


def answer(button):
    return {"answer": button}


ACCEPT = {"accept": True}
CANCEL = {"cancel": True}
CALCULATE = press("tab1/ButtonCalculate")


def lanes(*names):
    """Steps that check lane boxes: lanes("q0_l0", "q1_l3")."""
    return [put("tab1/" + name, True) for name in names]


def items(widget):
    return [item[0] for item in widget["items"]]


def current(widget):
    """The chosen item's text; None: no item is chosen."""
    return widget["items"][widget["current"]][0] if widget["current"] >= 0 else None


class Run:
    def __init__(self, code, out, err):
        self.code, self.out, self.err = code, out, err

    def json(self):
        return json.loads(self.out)


class EndToEnd(unittest.TestCase):
    maxDiff = None
    locale = {"LC_ALL": "C.UTF-8"}

    def setUp(self):
        self.folder = tempfile.mkdtemp(prefix="ipgen-e2e-")
        self.addCleanup(shutil.rmtree, self.folder)
        self.project = self.path("project")

    def path(self, *parts):
        return os.path.join(self.folder, *parts)

    def run_ipgen(self, *arguments, stdin=""):
        environment = {"PATH": "/usr/bin:/bin", "HOME": self.folder, **self.locale}
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"):
            if name in os.environ:
                environment[name] = os.environ[name]
        done = subprocess.run([os.path.join(_build, "bin", "ipgen"), *arguments], input=stdin,
                              env=environment, cwd=self.folder, timeout=RUN_TIMEOUT,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, encoding="utf-8")
        return Run(done.returncode, done.stdout, done.stderr)

    def ipgen(self, *arguments, stdin="", code=0):
        """Runs it and insists on the exit status."""
        run = self.run_ipgen(*arguments, stdin=stdin)
        self.assertEqual(run.code, code, "%s\n%s\n%s" % (arguments, run.out, run.err))
        return run

    def new_project(self, device_class):
        self.ipgen("new", self.project, "--device", DEVICE[device_class])

    def session(self, command, name, steps, code=0):
        """Plays the steps; the report, with the run as "run"."""
        run = self.ipgen(command, self.project, name, "--script", "-", "--report", "-",
                         stdin=json.dumps(steps), code=code)
        report = run.json()
        report["run"] = run
        return report

    def create(self, name, steps):
        """An instance made in the dialog; its configuration."""
        report = self.session("create", name, steps + [ACCEPT])
        self.assertEqual(report["result"], "accepted")
        return report["config"]

    def look(self, name, steps, command="create"):
        """The states of a session that ends with Cancel."""
        report = self.session(command, name, steps + [CANCEL])
        self.assertEqual(report["result"], "cancelled")
        return report["states"]

    def project_bytes(self):
        with open(os.path.join(self.project, "project.json"), "rb") as file:
            return file.read()

    def project_document(self):
        return json.loads(self.project_bytes())

    def edit_project(self, change):
        """Rewrites project.json by hand, as a merge of two versions would."""
        document = self.project_document()
        change(document)
        with open(os.path.join(self.project, "project.json"), "w", encoding="utf-8") as file:
            json.dump(document, file)

    def resources(self):
        """Kind -> name -> row of `resources --json`."""
        document = self.ipgen("resources", self.project, "--json").json()
        kinds = ("lanes", "plls", "multiplexers", "referenceClocks")
        return {kind: {row["name"]: row for row in document[kind]} for kind in kinds}

    def assert_owners(self, kind, expected):
        """Exactly these resources of the kind are held, by exactly these instances."""
        rows = self.resources()[kind]
        self.assertEqual({name: row["owners"] for name, row in rows.items() if row["owners"]},
                         expected)
        self.assertEqual({name for name, row in rows.items() if not row["free"]}, set(expected))

    def assert_field(self, widget, text, enabled):
        shown = current(widget) if widget["class"] == "QComboBox" else widget["text"]
        self.assertEqual((shown, widget["enabled"]), (text, enabled))
