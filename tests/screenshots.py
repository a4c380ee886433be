#!/usr/bin/env python3
"""Drives the real program under Xvfb through its report states and keeps a picture of each.

usage: screenshots.py BIN_FOLDER OUT_FOLDER

BIN_FOLDER holds kestrelix, kestrelix-repository, Kestrelix.chm and repository/DEMO.sqlite. Needs xvfb, xdotool and
imagemagick.
OUT_FOLDER gets the pictures, those of a dark desktop and of a screen of double size in folders of their own.
"""

import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

TWIPS = 15  # to a pixel
DEADLINE = 30  # seconds for a window to appear


class Screen:
    """A screen of its own, with a window that is found by its title. `scale` is that of the desktop."""

    def __init__(self, scale=1):
        self.scale = scale
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{1280 * scale}x{900 * scale}x24", "-dpi", "96", "-nolisten", "tcp"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            self.display = ":" + pipe.readline().strip()
        self.environment = {**os.environ, "DISPLAY": self.display, "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C.UTF-8"}
        self.environment.pop("WAYLAND_DISPLAY", None)
        self.environment["QT_SCALE_FACTOR"] = str(scale)

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

    def point(self, window, left, top):
        """Moves the pointer to a place of the window in twips."""
        x, y, _, _ = self.place(window)
        self.run("xdotool", "mousemove", str(x + left * self.scale // TWIPS), str(y + top * self.scale // TWIPS))

    def click(self, window, left, top, times=1):
        self.point(window, left, top)
        time.sleep(0.05)
        self.run("xdotool", "click", "--repeat", str(times), "--delay", "60", "1")
        self.settle()

    def strip(self, window, top, height):
        """The pixels of a strip across the window, in pixels of a plain screen."""
        x, y, width, _ = self.place(window)
        crop = f"{width}x{height * self.scale}+{x}+{y + top * self.scale}"
        return subprocess.run(["import", "-window", "root", "-crop", crop, "-depth", "8", "rgb:-"],
                              env=self.environment, check=True, capture_output=True).stdout

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
           "GRAPH_MAX": 2745, "LIST": 3135, "GRAPH_RIGHT": 3525, "GRAPH_END": 3915, "HELP": 6435}
LONG_SERIES = 300  # snapshots
UNDO_SEGMENT_STATS = 55  # row among the Sections of an Oracle 10 cluster
BAR = (515, 10)  # top and height, in pixels, of what the bar of a long series covers
BAR_COLOUR = bytes.fromhex("b9d3ee")

DARK = """[Colors:Window]
BackgroundNormal=38,40,44
ForegroundNormal=236,238,240
[Colors:View]
BackgroundNormal=24,25,28
ForegroundNormal=236,238,240
BackgroundAlternate=30,31,35
[Colors:Button]
BackgroundNormal=48,51,56
ForegroundNormal=236,238,240
[Colors:Selection]
BackgroundNormal=58,120,190
ForegroundNormal=255,255,255
[Colors:Tooltip]
BackgroundNormal=48,51,56
ForegroundNormal=236,238,240
"""


def dark_desktop(folder):
    """The environment of a desktop whose colours are light on dark."""
    (folder / "kdeglobals").write_text(DARK)
    return {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "5",
            "XDG_CONFIG_HOME": str(folder)}


def pair(row):
    return 54 + 120 + 900, 1328 + 435 + row * LIST_ROW + 100


def section(row):
    return 8160 + 600, 1593 + row * LIST_ROW + 100


def cell(row, left=2000):
    return left, GRID_TOP + row * GRID_ROW + 120


class Tour:
    def __init__(self, screen, bin_folder, out, dark=False):
        self.screen = screen
        self.out = out
        self.out.mkdir(parents=True, exist_ok=True)
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="kestrelix-pictures-"))
        shutil.copy(bin_folder / "kestrelix", self.folder)
        (self.folder / "repository").mkdir()
        (self.folder / "repository" / "DEMO.sqlite").symlink_to((bin_folder / "repository" / "DEMO.sqlite").resolve())
        (self.folder / "Login.txt").write_bytes(b"DEMO,PERFSTAT,perfstat\r\nPROD,SYSTEM,manager\r\n")
        self.maker = bin_folder / "kestrelix-repository"
        if (bin_folder / "Kestrelix.chm").exists():
            shutil.copy(bin_folder / "Kestrelix.chm", self.folder)
        environment = {**screen.environment, **(dark_desktop(self.folder) if dark else {})}
        self.program = subprocess.Popen([self.folder / "kestrelix"], env=environment)

    def glance(self):
        """The states in which colours and sizes could go wrong."""
        screen = self.screen
        login = screen.window("^FormLogin$")
        self.keep(login, "login")
        screen.click(login, *FIRST_LOGIN, times=2)
        main = screen.window("^Kestrelix ")
        self.keep(main, "first-report")
        screen.click(main, 11000, 451 + 560)
        self.keep(main, "instances")
        screen.key("Return")
        self.choose(main, "Wait Events", 5)
        self.drag(main, cell(2), cell(4, 6000))
        self.keep(main, "selection")
        time.sleep(1)
        screen.click(main, *cell(1), times=2)
        self.keep(main, "col")
        screen.click(main, *cell(1, 1200), times=2)
        self.keep(None, "graph-refused")
        screen.key("Return")
        screen.click(main, *cell(1, 5600), times=2)
        self.hover(main, 2100, 4000)
        self.keep(None, "graph")
        self.button(main, "LIST", "graph-left")
        self.choose(main, "SQL ordered by Gets TOTAL", 7)
        self.button(main, "SQL", "sql-text")
        self.help(main)

    def busy(self):
        """Slows the program down in a long series until its bar shows, and keeps it standing for the picture."""
        screen = self.screen
        long = self.folder / "repository" / "LONG.sqlite"
        subprocess.run([self.maker, "demo", long, "--snapshots", str(LONG_SERIES)], check=True, stdout=subprocess.DEVNULL)
        login = screen.window("^FormLogin$")
        for row, typed in enumerate(("perfstat", "perfstat", "long")):
            screen.click(login, 2000, 2800 + row * 480)
            screen.run("xdotool", "type", typed)
        screen.key("Return")
        screen.click(login, 700, 4300)
        main = screen.window("^Kestrelix ")
        self.choose(main, "before a long series", 5)
        time.sleep(1)
        screen.point(main, *cell(1))
        self.program.send_signal(signal.SIGSTOP)
        screen.run("xdotool", "click", "--repeat", "2", "--delay", "60", "1")
        end = time.monotonic() + DEADLINE
        while BAR_COLOUR * 20 not in screen.strip(main, *BAR):
            self.program.send_signal(signal.SIGCONT)
            time.sleep(0.001)
            self.program.send_signal(signal.SIGSTOP)
            time.sleep(0.05)
            if time.monotonic() > end:
                sys.exit("no bar shows in a long series")
        self.keep(main, "busy")
        self.program.send_signal(signal.SIGCONT)
        screen.settle()

    def help(self, main):
        self.screen.click(main, BUTTONS["HELP"], 210)
        self.keep(self.screen.window("^Kestrelix ヘルプ"), "help")

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
        self.choose(main, "Undo Segment Stats", UNDO_SEGMENT_STATS)
        screen.click(main, *cell(1), times=2)
        self.keep(None, "series-refused")
        screen.key("Return")
        self.keep(main, "series-refused-left")
        self.help(main)

    def hover(self, main, left, top):
        for step in (0, 2 * TWIPS):
            self.screen.point(main, left + step, top)
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
        self.screen.point(main, *start)
        self.screen.run("xdotool", "mousedown", "1")
        self.screen.point(main, *end)
        self.screen.run("xdotool", "mouseup", "1")

    def keep(self, window, name):
        self.screen.keep(window, self.out / f"{name}.png")

    def close(self):
        self.program.send_signal(signal.SIGCONT)
        self.program.terminate()
        self.program.wait()
        shutil.rmtree(self.folder)


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    bin_folder = pathlib.Path(sys.argv[1])
    out = pathlib.Path(sys.argv[2])
    take(bin_folder, out, Tour.go)
    take(bin_folder, out, Tour.busy)
    take(bin_folder, out / "dark", Tour.glance, dark=True)
    take(bin_folder, out / "double", Tour.glance, scale=2)


def take(bin_folder, out, path, scale=1, dark=False):
    screen = Screen(scale)
    try:
        tour = Tour(screen, bin_folder, out, dark)
        try:
            path(tour)
        finally:
            tour.close()
    finally:
        screen.close()


if __name__ == "__main__":
    main()
