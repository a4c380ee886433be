#!/usr/bin/env python3
"""Drives the real program under Xvfb through its report states and keeps a picture of each.

usage: screenshots.py BIN_FOLDER OUT_FOLDER [STATE...]

BIN_FOLDER holds kestrelix and repository/DEMO.sqlite. Needs xvfb, xdotool and imagemagick.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

TWIPS = 15  # to a pixel
DEADLINE = 30  # seconds for a window to appear


class Screen:
    """A screen of its own, with a window that is found by its title."""

    def __init__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x900x24", "-dpi", "96", "-nolisten", "tcp"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            self.display = ":" + pipe.readline().strip()
        self.environment = {**os.environ, "DISPLAY": self.display, "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C.UTF-8"}
        self.environment.pop("WAYLAND_DISPLAY", None)

    def run(self, *command):
        return subprocess.run(command, env=self.environment, check=True, capture_output=True, text=True).stdout

    def window(self, title):
        end = time.monotonic() + DEADLINE
        while time.monotonic() < end:
            found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title], env=self.environment,
                                   capture_output=True, text=True).stdout.split()
            if found:
                return found[-1]
            time.sleep(0.1)
        sys.exit(f"no window '{title}' within {DEADLINE} s")

    def settle(self):
        """Waits until two pictures in a row are the same."""
        before = None
        for _ in range(100):
            now = subprocess.run(["import", "-window", "root", "-depth", "8", "rgb:-"], env=self.environment,
                                 check=True, capture_output=True).stdout
            if now == before:
                return
            before = now
            time.sleep(0.15)
        sys.exit("the screen does not come to rest")

    def keep(self, window, file):
        self.settle()
        if window is None:
            self.run("import", "-window", "root", str(file))
        else:
            x, y, width, height = self.place(window)
            self.run("import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage", str(file))
        print(file)

    def place(self, window):
        lines = dict(line.split("=") for line in
                     self.run("xdotool", "getwindowgeometry", "--shell", window).split())
        return tuple(int(lines[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))

    def click(self, window, left, top, times=1):
        """A click at a place of the window in twips."""
        x, y, _, _ = self.place(window)
        self.run("xdotool", "mousemove", str(x + left // TWIPS), str(y + top // TWIPS))
        time.sleep(0.05)
        self.run("xdotool", "click", "--repeat", str(times), "--delay", "60", "1")
        self.settle()

    def key(self, name):
        self.run("xdotool", "key", name)
        self.settle()

    def close(self):
        self.server.terminate()
        self.server.wait()


# Places in twips.
LIST_ROW = 13 * TWIPS
GRID_ROW = 15 * TWIPS
GRID_TOP = 3982
FIRST_LOGIN = (1500, 120 + 19 * TWIPS + 140)
BUTTONS = {"GRID": 255, "SQL": 645, "PLAN": 1035, "GRAPH_START": 1575, "GRAPH_LEFT": 1965, "GRAPH_DISP": 2355,
           "GRAPH_MAX": 2745, "LIST": 3135, "GRAPH_RIGHT": 3525, "GRAPH_END": 3915}


def pair(row):
    return 54 + 120 + 900, 1328 + 435 + row * LIST_ROW + 100


def section(row):
    return 8160 + 600, 1593 + row * LIST_ROW + 100


def cell(row, left=2000):
    return left, GRID_TOP + row * GRID_ROW + 120


class Tour:
    def __init__(self, screen, bin_folder, out):
        self.screen = screen
        self.out = out
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="kestrelix-pictures-"))
        shutil.copy(bin_folder / "kestrelix", self.folder)
        (self.folder / "repository").symlink_to((bin_folder / "repository").resolve())
        (self.folder / "Login.txt").write_bytes(b"DEMO,PERFSTAT,perfstat\r\nPROD,SYSTEM,manager\r\n")
        self.program = subprocess.Popen([self.folder / "kestrelix"], env=screen.environment)

    def go(self):
        screen = self.screen
        login = screen.window("^FormLogin$")
        self.keep(login, "login")
        screen.click(login, 1500, FIRST_LOGIN[1])
        self.keep(login, "login-filled")
        screen.click(login, 1500, 3300)
        screen.run("xdotool", "type", "wrong")
        screen.click(login, 700, 4300)
        self.keep(None, "login-refused")
        screen.key("Return")
        screen.key("Return")
        screen.click(login, *FIRST_LOGIN, times=2)
        main = screen.window("^Kestrelix ")
        self.keep(main, "first-report")
        screen.click(main, *cell(1), times=2)
        self.keep(main, "col")
        screen.click(main, *pair(1))
        self.drag(main, cell(1), cell(3, 6000))
        self.keep(main, "selection")
        screen.click(main, 11000, 451 + 560)
        self.keep(main, "instances")
        screen.key("Down")
        screen.key("Down")
        screen.key("Return")
        self.keep(main, "cluster-instance")
        self.choose(main, "Load Profile", 2)
        self.choose(main, "SQL ordered by CPU TOTAL", 18)
        self.button(main, "SQL", "sql-text")
        screen.click(main, *cell(1, 6000), times=2)
        self.keep(main, "sql-shaped")
        self.button(main, "PLAN", "plan")
        screen.key("ctrl+g")
        screen.click(main, *cell(1), times=2)
        self.keep(main, "sql-col")
        screen.click(main, *cell(1, 1200), times=2)
        self.keep(None, "graph-refused")
        screen.key("Return")
        screen.click(main, *cell(1, 6400), times=2)
        self.keep(main, "graph")
        self.button(main, "GRAPH_RIGHT", "graph-next")
        self.button(main, "GRAPH_MAX", "graph-max")
        self.button(main, "GRAPH_END", "graph-end")
        self.hover(main, 2100, 4000)
        self.keep(None, "graph-value")
        self.button(main, "LIST", "graph-left")
        self.choose(main, "Top 5 Timed Events", 4)
        screen.click(main, *cell(1), times=2)
        self.keep(main, "top-5-col")
        screen.click(main, *cell(1, 6800), times=2)
        self.keep(main, "top-5-graph")
        screen.click(main, 5000, 560, times=2)
        self.keep(main, "graph-left-by-frame")
        self.main = main
        return self

    def hover(self, main, left, top):
        x, y, _, _ = self.screen.place(main)
        for step in (0, 2):
            self.screen.run("xdotool", "mousemove", str(x + left // TWIPS + step), str(y + top // TWIPS))
            time.sleep(0.3)

    def choose(self, main, name, row):
        """Shows a Section by its row in the list."""
        self.screen.click(main, *section(0))
        self.screen.key("Home")
        for _ in range(row):
            self.screen.run("xdotool", "key", "Down")
        self.screen.click(main, *pair(2))
        self.keep(main, name.lower().replace(" ", "-"))

    def button(self, main, key, name):
        self.screen.click(main, BUTTONS[key], 210)
        self.keep(main, name)

    def drag(self, main, start, end):
        time.sleep(1)  # apart from the click before, not to make a double click of the two
        x, y, _, _ = self.screen.place(main)
        self.screen.run("xdotool", "mousemove", str(x + start[0] // TWIPS), str(y + start[1] // TWIPS), "mousedown", "1")
        self.screen.run("xdotool", "mousemove", str(x + end[0] // TWIPS), str(y + end[1] // TWIPS))
        self.screen.run("xdotool", "mouseup", "1")

    def keep(self, window, name):
        self.screen.keep(window, self.out / f"{name}.png")

    def close(self):
        self.program.terminate()
        self.program.wait()
        shutil.rmtree(self.folder)


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    out = pathlib.Path(sys.argv[2])
    out.mkdir(parents=True, exist_ok=True)
    screen = Screen()
    try:
        tour = Tour(screen, pathlib.Path(sys.argv[1]), out)
        try:
            tour.go()
        finally:
            tour.close()
    finally:
        screen.close()


if __name__ == "__main__":
    main()
