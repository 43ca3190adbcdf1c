"""What the completion answers, with the program's own answers behind it."""
import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE, PROGRAM = (os.path.abspath(path) for path in sys.argv[1:3])
del sys.argv[1:3]

# The two helpers of bash-completion that it calls, as they behave for words without a colon.
HELPERS = """
_init_completion() {
    words=("${COMP_WORDS[@]}") cword=$COMP_CWORD
    cur=${words[cword]} prev=${words[cword - 1]}
}
_filedir() { COMPREPLY=(FILES); }
. "$1"; shift
COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
_ipgen
printf '%s\\n' "${COMPREPLY[@]}"
"""


OWN_PRESETS = ("x$(touch pwned)", "Bob's link", 'Two "quoted" back\\slash', "K\u00f6ln")


class Completion(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.mkdtemp(prefix="ipgen-completion-")
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.run_program("new", "board", "--device", "RZ7X-60B")
        for name in ("link0", "link1", "other"):
            lane = {"link0": "q0_l0", "link1": "q0_l1", "other": "q0_l2"}[name]
            cls.run_program("create", "board", name, "--set", "tab1/%s=true" % lane)
        own = os.path.join(cls.folder, ".local", "share", "ipgen", "presets", "customized")
        os.makedirs(own)
        for number, name in enumerate(OWN_PRESETS):
            with open(os.path.join(own, "%d.json" % number), "w", encoding="utf-8") as file:
                json.dump({"format": 1, "name": name, "summary": "", "devices": ["*"],
                           "steps": [{"set": "tab1/q0_l0", "to": True}]}, file)

    @classmethod
    def environment(cls):
        sanitizers = {name: value for name, value in os.environ.items()
                      if name in ("ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")}
        return {"PATH": os.path.dirname(PROGRAM) + ":/usr/bin:/bin", "HOME": cls.folder,
                "LC_ALL": "C.UTF-8", **sanitizers}

    @classmethod
    def run_program(cls, *arguments):
        subprocess.run([PROGRAM, *arguments], cwd=cls.folder, env=cls.environment(), check=True,
                       stdout=subprocess.DEVNULL)

    def answers(self, *words):
        script = os.path.join(SOURCE, "packaging", "ipgen.bash")
        done = subprocess.run(["bash", "-c", HELPERS, "bash", script, "ipgen", *words],
                              cwd=self.folder, env=self.environment(), check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, encoding="utf-8")
        self.assertEqual(done.stderr, "")
        return [line for line in done.stdout.split("\n") if line]

    def test_commands_and_options(self):
        self.assertEqual(self.answers("ge"), ["generate"])
        self.assertEqual(self.answers("generate", "--n"), ["--netlist"])

    def test_devices_and_ips_that_there_are(self):
        self.assertEqual(self.answers("new", "p", "--device", "RZ7X-60"),
                         ["RZ7X-60B", "RZ7X-60ES"])
        self.assertEqual(self.answers("create", "board", "x", "--ip", ""), ["customized"])

    def test_presets_by_name(self):
        def presets(typed):
            return self.answers("create", "board", "x", "--preset", typed)
        self.assertEqual(presets("Vid"), [r"Video\,\ 2.97G\ raw"])
        self.assertEqual(presets(r"Video,\ 2"), [r"Video\,\ 2.97G\ raw"])
        self.assertEqual(presets("Bob"), [r"Bob\'s\ link"])
        self.assertEqual(presets("Two"), [r'Two\ \"quoted\"\ back\\slash'])
        self.assertEqual(presets("K"), ["K\u00f6ln"])

    def test_a_name_is_not_run(self):
        self.assertEqual(self.answers("create", "board", "x", "--preset", "x"),
                         [r"x\$\(touch\ pwned\)"])
        self.assertFalse(os.path.exists(os.path.join(self.folder, "pwned")))

    def test_a_project_and_its_instances(self):
        self.assertEqual(self.answers("generate", ""), ["FILES"])
        self.assertEqual(self.answers("generate", "board", "li"), ["link0", "link1"])
        self.assertEqual(self.answers("generate", "board", "link0", "o"), ["other"])


unittest.main(verbosity=2)
