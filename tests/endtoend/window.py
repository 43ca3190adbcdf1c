"""The window as a user has it: the real program on an X server of its own, a mouse and keys through
the X server's test extension, and a probe in the program that says where things are.

Everything waits for conditions. There is no window manager; the session gives the keyboard to the
window in front, as one would.
"""

import json
import os
import shutil
import signal
import subprocess
import time

import support
from support import EndToEnd

PATIENCE = 30  # s; only a failure waits that long


class Display:
    """An X server on a free number."""

    def __init__(self, size="1600x1200"):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size + "x24", "-nolisten", "tcp"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as numbers:
            number = numbers.readline().strip()
        if not number:
            raise RuntimeError("Xvfb does not start")
        self.name = ":" + number

    def stop(self):
        self.server.terminate()
        self.server.wait()


class Gui:
    """One run of the window."""

    def __init__(self, test, display, *arguments, path="/usr/bin:/bin", more=None):
        self.display = display
        to_read, self.out = os.pipe()
        self.back, to_write = os.pipe()
        environment = {
            "PATH": path, "HOME": test.folder, "LC_ALL": "C.UTF-8", "DISPLAY": display.name,
            "QT_QPA_GENERIC_PLUGINS": "windowprobe",
            "QT_PLUGIN_PATH": os.path.join(support.build_folder(), "tests", "probe"),
            "WINDOW_PROBE": "%d,%d" % (to_read, to_write), **(more or {})}
        self.log = open(os.path.join(test.folder, "window.log"), "ab")
        self.process = subprocess.Popen(
            [os.path.join(support.build_folder(), "bin", "ipgen"), "gui", *arguments],
            env=environment, cwd=test.folder, pass_fds=[to_read, to_write],
            stdin=subprocess.DEVNULL, stdout=self.log, stderr=self.log)
        os.close(to_read)
        os.close(to_write)
        self.replies = os.fdopen(self.back, "rb")

    # What there is to see

    def ask(self, what, name="", item=""):
        request = json.dumps({"what": what, "name": name, "item": item}) + "\n"
        os.write(self.out, request.encode())
        line = self.replies.readline()
        if not line:
            raise RuntimeError("the window has ended (%s)" % self.process.poll())
        return json.loads(line)["is"]

    def until(self, what, condition):
        """The condition's value as soon as it is true."""
        end = time.monotonic() + PATIENCE
        while True:
            value = condition()
            if value:
                return value
            if time.monotonic() > end:
                raise AssertionError("waited in vain for %s; there is: %s" % (
                    what, json.dumps(self.ask("windows"))))
            time.sleep(0.02)

    def find(self, name):
        """The visible widget of this object name; waits for it."""
        return self.until(name, lambda: self.ask("find", name))

    def shown(self, name):
        return self.ask("find", name)

    def until_text(self, name, part):
        """The text of a widget once this is in it."""
        def text():
            there = self.shown(name)
            return there["text"] if there and part in there["text"] else None
        return self.until('"%s" in %s' % (part, name), text)

    def rows(self, name):
        there = self.shown(name)
        return there["rows"] if there else []

    def window(self, title):
        """Waits for a window whose title begins like this; it comes to the top and gets the keys."""
        def front():
            for one in self.ask("windows"):
                if one["title"].startswith(title):
                    window = str(int(one["id"]))
                    # The program learns late that another took the keyboard; the server knows.
                    if one["active"] and self.x("getwindowfocus", "-f") == window:
                        return one
                    self.x("windowraise", window, "windowfocus", window)
            return None
        return self.until("the window " + title, front)

    def gone(self, title):
        self.until("the end of " + title, lambda: not any(
            one["title"].startswith(title) for one in self.ask("windows")))

    def nameless(self):
        return self.ask("nameless")

    def dialogs(self):
        return [one for one in self.ask("windows") if one["modal"]]

    # Hands

    def x(self, *arguments):
        run = subprocess.run(["xdotool", *arguments], check=False, timeout=PATIENCE,
                             env={"DISPLAY": self.display.name, "PATH": "/usr/bin:/bin"},
                             stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, encoding="ascii")
        return run.stdout.strip()

    def key(self, *keys):
        self.x("key", *keys)

    def type(self, text):
        self.x("type", "--delay", "2", text)

    def click(self, place, times=1):
        self.x("mousemove", str(int(place["x"] + place["width"] / 2)),
               str(int(place["y"] + place["height"] / 2)),
               "click", "--repeat", str(times), "--delay", "30", "1")

    def click_on(self, name):
        """Waits until it can be clicked."""
        self.until(name + " enabled", lambda: (self.shown(name) or {}).get("enabled"))
        self.click(self.shown(name))

    def click_item(self, view, text, times=1):
        self.click(self.until(text, lambda: self.ask("item", view, text)), times)

    def open_dialog(self, *keys):
        """The IP's dialog by keys that open it; in front when this returns."""
        self.key(*keys)
        self.window(self.until("a dialog", self.dialogs)[0]["title"])

    def tab_to(self, name):
        """Tab until the widget has the keyboard; the accessible names on the way."""
        seen = []
        for _ in range(200):
            focus = self.until("the keyboard somewhere", lambda: self.ask("focus"))
            seen.append(focus["accessible"])
            if focus["name"] == name:
                return seen
            self.key("Tab")
            self.until("the keyboard beyond %s" % seen, lambda f=focus: self.ask("focus") != f)
        raise AssertionError("Tab does not lead to %s, but to %s" % (name, seen))

    def accept_dialog(self, done):
        """OK, and Yes or OK to what is asked then, until done() holds and no dialog is left."""
        self.key("Return")

        def accepted():
            for one in self.dialogs():
                if one["class"] == "QMessageBox":
                    self.window(one["title"])
                    self.key("Return")
                return False
            return done()
        self.until("the accepted dialog", accepted)

    # The end

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.end()

    def end(self):
        """The process and what holds on to it; a second time does nothing."""
        if self.log.closed:
            return
        self.process.terminate()
        self.process.wait(PATIENCE)
        self.replies.close()
        os.close(self.out)
        self.log.close()


class WindowTest(EndToEnd):
    @classmethod
    def setUpClass(cls):
        for program in ("Xvfb", "xdotool"):
            if shutil.which(program) is None:
                raise RuntimeError(program + " is missing; see scripts/packages.txt")
        cls.display = Display()
        cls.addClassCleanup(cls.display.stop)

    def gui(self, *arguments, **options):
        gui = Gui(self, self.display, *arguments, **options)
        self.addCleanup(gui.end)
        return gui
