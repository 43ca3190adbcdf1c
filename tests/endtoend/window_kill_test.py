"""The window killed at any moment loses at most the edit in hand."""

import os
import time

from support import lanes, main
from window import WindowTest

DELAYS = (0, 0.003, 0.012, 0.05)  # s after a step


class Kill(WindowTest):
    def setUp(self):
        super().setUp()
        self.new_project("60k")
        self.create("link0", lanes("q0_l0"))
        self.ipgen("generate", self.project)

    def generated(self):
        files = {}
        for folder, _, names in os.walk(os.path.join(self.project, "transceiver", "link0")):
            for name in names:
                if name in ("define.vh", "param.v", "customized.ini"):
                    with open(os.path.join(folder, name), "rb") as file:
                        files[name] = file.read()
        return files

    def walk(self, gui, copy):
        """The main path: a step, then what it waits for. Yields between them."""
        gui.window("project — ")
        gui.until("link0", lambda: gui.rows("instanceTable"))
        # Nobody else has it open: the former process left nothing behind that says so.
        self.assertIsNone(gui.shown("noticeText"))
        gui.click_item("instanceTable", "link0")
        gui.key("ctrl+d")
        yield "the name asked for"
        gui.window("Duplicate")
        gui.key("ctrl+a")
        gui.type(copy)
        yield "the name typed"
        gui.key("Return")
        yield "the copy made"
        gui.until(copy, lambda: copy in self.project_document()["instances"])
        gui.window("project — ")
        gui.click_item("instanceTable", "link0")
        gui.key("ctrl+e")
        yield "the dialog opened"
        gui.window(gui.until("the dialog", gui.dialogs)[0]["title"])
        before = self.project_bytes()
        gui.click_on("q0_l1")
        yield "a lane changed"
        gui.key("Return")
        yield "the dialog accepted"
        gui.accept_dialog(lambda: self.project_bytes() != before)
        gui.window("project — ")
        gui.key("shift+F8")
        yield "the files written"

    def test_every_moment(self):
        steps = 7
        seen = set()
        for step in range(steps):
            for number, delay in enumerate(DELAYS):
                copy = "z%d%d" % (step, number)
                before = self.project_document()["instances"]
                files = self.generated()
                gui = self.gui(self.project)
                moment = ""
                walk = self.walk(gui, copy)
                for _ in range(step + 1):
                    moment = next(walk)
                    if moment == "the files written":
                        accepted = self.project_document()["instances"]
                time.sleep(delay)
                gui.kill()
                seen.add(moment)
                with self.subTest(moment=moment, delay=delay):
                    # Whole, and what was there before is there.
                    after = self.project_document()["instances"]
                    for name, instance in before.items():
                        if name != "link0":
                            self.assertEqual(after[name], instance)
                    self.assertIn("link0", after)
                    self.assertLessEqual(set(after) - set(before), {copy})
                    # Once a step is seen to be done, it stays done.
                    if step > 2:
                        self.assertIn(copy, after)
                    if step < 5:
                        self.assertEqual(after["link0"], before["link0"])
                    if step == 6:
                        self.assertEqual(after, accepted)
                    self.ipgen("list", self.project)
                    if copy in after:
                        self.ipgen("remove", self.project, copy)
                    left = self.generated()
                    self.ipgen("generate", self.project, "link0")
                    now = self.generated()
                    for name, text in left.items():
                        self.assertIn(text, (files.get(name), now[name]))
        self.assertEqual(len(seen), steps)


if __name__ == "__main__":
    main()
