"""The main path through the window, from its first page to the files, by mouse and keys."""

import os

from support import lanes, main
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

    def test_by_keys_alone(self):
        gui = self.gui()
        gui.window("IP generator")
        gui.key("ctrl+n")
        gui.window("New project")
        gui.key("ctrl+a")
        gui.type(self.path("board"))
        gui.key("Return")
        gui.window("board — ")
        self.project = self.path("board")
        for name, lane in (("link0", "q0_l0"), ("link1", "q0_l1")):
            gui.window("board — ")
            gui.key("ctrl+f")
            gui.type("cust")
            gui.until("the IP", lambda: (gui.shown("catalogueCreate") or {}).get("enabled"))
            gui.key("Return")
            gui.window("New instance")
            gui.key("ctrl+a")
            gui.type(name)
            gui.key("Return")
            gui.find(lane)
            gui.window(gui.dialogs()[0]["title"])
            seen = gui.tab_to(lane)
            self.assertNotIn("", seen)  # a screen reader names each on the way
            gui.key("space")
            gui.until(lane + " checked", lambda n=lane: gui.shown(n)["checked"])
            gui.accept_dialog(lambda n=name: any(
                row[0] == n for row in gui.rows("instanceTable")))
        # The map as a table: Return on a resource opens its owner.
        gui.window("board — ")
        gui.key("ctrl+2")
        rows = gui.until("the resources", lambda: gui.rows("resourceTable"))
        at = [row[0] for row in rows].index("Q0_LANE1")
        gui.until("the keyboard there", lambda: gui.ask("focus")["name"] == "resourceTable")
        gui.key("Home", *["Down"] * at)
        gui.open_dialog("Return")
        self.assertTrue(gui.find("q0_l1")["checked"])
        gui.key("Escape")
        gui.until("its end", lambda: not gui.dialogs())
        # Generate, the files, the command line.
        gui.window("board — ")
        gui.key("ctrl+0")
        gui.until("the keyboard there", lambda: gui.ask("focus")["name"] == "instanceTable")
        gui.key("ctrl+a", "F8")
        gui.until_text("noticeText", "Generated: link0, link1")
        gui.key("ctrl+3")
        gui.until("the keyboard there", lambda: gui.ask("focus")["name"] == "fileList")
        gui.key("End")
        gui.until_text("fileText", "parameter")
        gui.key("ctrl+shift+c")
        gui.until("the copied line", lambda: gui.ask("clipboard") ==
                  "ipgen generate %s link0 link1" % self.project)

    def test_everything_in_every_dialog_has_a_name(self):
        self.new_project("60k")
        self.create("link0", lanes("q0_l0"))
        gui = self.gui(self.project)
        gui.window("project — ")
        gui.until("link0", lambda: gui.rows("instanceTable"))
        gui.click_item("instanceTable", "link0")
        for keys, title in (("ctrl+n", "New project"), ("ctrl+o", "Open a project folder"),
                            ("ctrl+i", "New instance"), ("ctrl+d", "Duplicate"), ("F2", "Rename"),
                            ("ctrl+e", "Customized PHY"), ("ctrl+p", "Print or export"),
                            ("F1", "Keys"), ("ctrl+F1", "About")):
            with self.subTest(dialog=title):
                gui.window("project — ")
                gui.key(keys)
                gui.window(title)
                self.assert_all_named(gui)
                self.assertNotEqual(gui.until("the keyboard in it", lambda: gui.ask("focus"))
                                    ["accessible"], "")
                gui.key("Escape")
                gui.until("its end", lambda: not gui.dialogs())


if __name__ == "__main__":
    main()
