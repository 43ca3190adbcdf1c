"""What ./run and ./test say where packages are missing and may not be installed."""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE = os.path.abspath(sys.argv.pop(1))


class Setup(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp(prefix="ipgen-setup-")
        self.addCleanup(shutil.rmtree, self.folder)
        os.mkdir(self.path("scripts"))
        os.mkdir(self.path("bin"))
        shutil.copy(os.path.join(SOURCE, "scripts", "setup.sh"), self.path("scripts"))
        # A user who is not root, and whose sudo asks for a password.
        self.program("id", "echo 1000")
        self.program("sudo", "exit 1")

    def path(self, *parts):
        return os.path.join(self.folder, *parts)

    def program(self, name, text):
        with open(self.path("bin", name), "w", encoding="utf-8") as file:
            file.write("#!/bin/sh\n%s\n" % text)
        os.chmod(self.path("bin", name), 0o755)

    def install(self, packages):
        with open(self.path("scripts", "packages.txt"), "w", encoding="utf-8") as file:
            file.write(packages)
        return subprocess.run(
            ["bash", "-c", "set -euo pipefail; . scripts/setup.sh; install_packages; echo built"],
            cwd=self.folder, env={"PATH": self.path("bin") + ":/usr/bin:/bin", "HOME": self.folder},
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, encoding="utf-8", check=False)

    def test_missing_packages_are_named_in_one_line(self):
        # dpkg was never told of these two.
        done = self.install("# comment\nbash\nno-such-package-b  # why\nno-such-package-a\n")
        self.assertEqual((done.returncode, done.stdout), (1, ""))
        self.assertEqual(done.stderr.splitlines()[1:], [
            "    sudo apt-get update && sudo apt-get install --no-install-recommends "
            "no-such-package-a no-such-package-b"])

    def test_nothing_is_said_when_all_are_there(self):
        done = self.install("bash\ncoreutils\n")
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "built\n", ""))


unittest.main(verbosity=2)
