"""The main path through the window, from its first page to the files, by mouse and keys."""

import os

from support import main
from window import WindowTest


class MainPath(WindowTest):
    def assert_all_named(self, gui):
        self.assertEqual(gui.nameless(), [])

    def instance(self, gui, name, lane):
        """An instance from the catalogue's search to the accepted dialog."""
        gui.window("board — ")
        gui.key("ctrl+f")
        gui.type("cust")
        gui.until("the IP", lambda: (gui.shown("catalogueCreate") or {}).get("enabled"))
        gui.key("Return")
        gui.window("New instance")
        self.assert_all_named(gui)
        gui.key("ctrl+a")
        gui.type(name)
        gui.key("Return")
        gui.find(lane)
        gui.window(gui.dialogs()[0]["title"])
        self.assert_all_named(gui)
        gui.click_on(lane)
        gui.until(lane + " checked", lambda: gui.shown(lane)["checked"])
        gui.accept_dialog(lambda: any(row[0] == name for row in gui.rows("instanceTable")))

    def test_first_page_to_command_line(self):
        gui = self.gui()
        gui.window("IP generator")
        self.assert_all_named(gui)
        # The first page by mouse.
        gui.click_on("welcomeNew")
        gui.window("New project")
        self.assert_all_named(gui)
        gui.key("ctrl+a")
        gui.type(self.path("board"))
        gui.click_on("newProjectOk")
        gui.window("board — ")
        self.project = self.path("board")
        # Two instances on one quad.
        self.instance(gui, "link0", "q0_l0")
        self.instance(gui, "link1", "q0_l1")
        self.assertEqual(sorted(self.project_document()["instances"]), ["link0", "link1"])
        gui.window("board — ")
        self.assert_all_named(gui)
        # The map says who has which lane; a click opens the owner, Escape leaves it as it is.
        gui.until_text("mapSummary", "Free: ")
        before = self.project_bytes()
        gui.click(gui.ask("resource", "map", "Q0_LANE1"))
        gui.window(gui.until("link1's dialog", gui.dialogs)[0]["title"])
        self.assertTrue(gui.find("q0_l1")["checked"])
        gui.key("Escape")
        gui.until("its end", lambda: not gui.dialogs())
        self.assertEqual(self.project_bytes(), before)
        # Generate all, then the files of the chosen one.
        gui.window("board — ")
        gui.key("shift+F8")
        gui.until_text("noticeText", "Generated: link0, link1")
        gui.until("the states", lambda: [
            row[1] for row in gui.rows("instanceTable")] == ["generated", "generated"])
        gui.click_item("instanceTable", "link1")
        gui.key("ctrl+3")
        gui.click_item("fileList", "define.vh")
        written = os.path.join(self.project, "transceiver", "link1", "temp", "CUSTOMIZED",
                               "define.vh")
        with open(written, encoding="utf-8") as file:
            self.assertEqual(gui.until_text("fileText", "`define"), file.read())
        self.assert_all_named(gui)
        for page in ("ctrl+2", "ctrl+4", "ctrl+5"):
            gui.key(page)
            gui.until(page, lambda p=page: gui.shown("views")["current"] == int(p[-1]) - 1)
            self.assert_all_named(gui)
        # The command line that does the same, and does it to the same bytes.
        gui.key("ctrl+shift+c")
        line = "ipgen generate %s link1" % self.project
        gui.until("the copied line", lambda: gui.ask("clipboard") == line)
        with open(written, "rb") as file:
            bytes_of_window = file.read()
        os.remove(written)
        self.ipgen(*line.split()[1:])
        with open(written, "rb") as file:
            self.assertEqual(file.read(), bytes_of_window)
        # And out, by keys.
        gui.key("ctrl+q")
        self.assertEqual(gui.process.wait(30), 0)


if __name__ == "__main__":
    main()
