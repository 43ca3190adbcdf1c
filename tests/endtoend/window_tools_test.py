"""The window's work in other processes: the netlist generation, and a second program on the project."""

import os
import time

from support import lanes, main
from window import WindowTest


class Netlist(WindowTest):
    def setUp(self):
        super().setUp()
        self.new_project("60k")
        self.create("link0", lanes("q0_l0"))
        self.tools = self.path("tools")
        os.mkdir(self.tools)
        self.files = self.path("project", "transceiver", "link0", "temp", "CUSTOMIZED")
        self.netlist = os.path.join(self.files, "link0_netlist.v")

    def fake_yosys(self, body):
        path = os.path.join(self.tools, "yosys")
        with open(path, "w", encoding="utf-8") as file:
            file.write("#!/bin/sh\n" + body)
        os.chmod(path, 0o755)

    def opened(self, path=None):
        gui = self.gui(self.project, path=path or self.tools + ":/usr/bin:/bin")
        gui.window("project — ")
        gui.until("link0", lambda: gui.rows("instanceTable"))
        return gui

    def read(self, path):
        with open(path, "rb") as file:
            return file.read()

    def test_generates(self):
        gui = self.opened("/usr/bin:/bin")
        gui.key("F9")
        gui.until_text("noticeText", "Generated with netlist.")
        self.assertIn(b"module link0(", self.read(self.netlist).lower())
        gui.until("the state", lambda: gui.rows("instanceTable")[0][1] == "generated")

    def test_cancel_keeps_the_former_netlist(self):
        self.ipgen("generate", self.project)
        former = b"// the netlist of before\n"
        with open(self.netlist, "wb") as file:
            file.write(former)
        self.fake_yosys('echo $$ > "%s/started"\nexec sleep 60\n' % self.tools)
        gui = self.opened()
        gui.key("F9")
        gui.window("Working")
        self.assertEqual(gui.nameless(), [])
        started = os.path.join(self.tools, "started")
        gui.until("the fake yosys", lambda: os.path.exists(started) and self.read(started))
        # The window lives: the seconds go on.
        for second in ("1 s", "2 s"):
            gui.until(second, lambda s=second: any(
                s in one["text"] for one in gui.ask("windows")))
        gui.click_on("progressCancel")
        gui.until_text("noticeText", "Cancelled; what stood before is kept.")
        self.assertEqual(self.read(self.netlist), former)
        gui.until("the end of yosys", lambda: not os.path.exists(
            "/proc/" + self.read(started).decode().strip()))
        # And it can be begun again.
        self.fake_yosys("echo 'ERROR: no good' > yosys.log\nexit 3\n")
        gui.window("project — ")
        gui.key("F9")
        self.assertIn("link0: yosys failed: ERROR: no good", gui.until_text("noticeText", "yosys"))
        self.assertEqual(self.read(self.netlist), former)

    def test_missing_program_is_told(self):
        gui = self.opened(self.tools)
        gui.key("F9")
        gui.until_text("noticeText",
                       'link0: the synthesis program "yosys" is not installed or cannot be run')


class TwoPrograms(WindowTest):
    def setUp(self):
        super().setUp()
        self.new_project("60k")
        self.create("link0", lanes("q0_l0"))

    def opened(self):
        gui = self.gui(self.project)
        gui.window("project — ")
        gui.until("link0", lambda: gui.rows("instanceTable"))
        return gui

    def test_second_window_is_told_and_both_are_kept(self):
        first = self.opened()
        self.assertIsNone(first.shown("noticeText"))
        second = self.opened()
        second.until_text("noticeText", "This project is open in ipgen (process %d) too"
                          % first.process.pid)
        # Each makes a copy; both are in the file, and each window shows the other's.
        for gui, name in ((first, "of-first"), (second, "of-second")):
            gui.window("project — ")
            gui.click_item("instanceTable", "link0")
            gui.key("ctrl+d")
            gui.window("Duplicate")
            gui.key("ctrl+a")
            gui.type(name)
            gui.key("Return")
            gui.gone("Duplicate")
            gui.until(name, lambda n=name: n in self.project_document()["instances"])
        names = ["link0", "of-first", "of-second"]
        self.assertEqual(sorted(self.project_document()["instances"]), names)
        for gui in (first, second):
            gui.until("all three", lambda g=gui: [
                row[0] for row in g.rows("instanceTable")] == names)
        # The one that ends takes its mark away; the next is told nothing.
        first.kill()
        second.end()
        third = self.opened()
        self.assertIsNone(third.shown("noticeText"))

    def test_same_instance_in_both_is_refused(self):
        gui = self.opened()
        gui.open_dialog("ctrl+e")
        gui.click_on("q0_l1")
        # Another program changes it while the dialog is open; the window waits a moment (150 ms)
        # after a change of the file, and shall have had the time to take it over by mistake.
        self.ipgen("open", self.project, "link0", "--set", "tab1/q0_l3=true")
        time.sleep(0.6)
        theirs = self.project_bytes()
        gui.until("the checked lane", lambda: gui.shown("q0_l1")["checked"])
        gui.accept_dialog(lambda: gui.shown("noticeText"))
        gui.until_text("noticeText", "link0: another program changed it in the meantime")
        self.assertEqual(self.project_bytes(), theirs)
        # Reloading shows theirs.
        gui.window("project — ")
        gui.key("F5")
        gui.until("their lanes", lambda: gui.rows("instanceTable")[0][3] == "Q0 Lane0, Q0 Lane3")
        self.assertEqual(self.project_bytes(), theirs)


if __name__ == "__main__":
    main()
