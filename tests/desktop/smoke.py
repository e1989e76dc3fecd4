#!/usr/bin/env python3
"""Starts Zolv on a hidden display, types a ratio with real keys, saves it, and leaves through the menu.

Usage: smoke.py PROGRAM
"""
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SIZE = (1400, 900)
DATA = Path(__file__).resolve().parents[2] / "data"
PATIENCE = 30  # seconds for anything that is waited for


def wait_for(what, found):
    """Returns the first true result of found()."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        if result := found():
            return result
        time.sleep(0.05)
    sys.exit(f"smoke: waited {PATIENCE} s for {what}")


class Display:
    """A hidden X display whose screen is a file."""

    def __init__(self, folder):
        self.screen = Path(folder, "Xvfb_screen0")
        reading, writing = os.pipe()
        # A number that no other run has: two servers that look for a free one at once can take each other's. And no
        # reset when the first client leaves, during which the server would turn the program away.
        number = 100 + os.getpid() % 59000
        self.server = subprocess.Popen(
            ["Xvfb", f":{number}", "-displayfd", str(writing), "-screen", "0", f"{SIZE[0]}x{SIZE[1]}x24", "-fbdir", folder,
             "-nolisten", "tcp", "-noreset"], pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as ready:
            self.name = ":" + ready.readline().strip()
        if self.name == ":":
            sys.exit("smoke: Xvfb did not start")

    def do(self, *command):
        """What a person's hands do: xdotool's words."""
        return subprocess.run(["xdotool", *map(str, command)], env={**os.environ, "DISPLAY": self.name}, check=False,
                              capture_output=True, text=True).stdout.split()

    def picture(self):
        """The pixels of the screen, in X's window dump format: a header that begins with its own length, a table of
        colours of 12 bytes each, the pixels."""
        dump = self.screen.read_bytes()
        header, colours = struct.unpack(">I", dump[:4])[0], struct.unpack(">I", dump[76:80])[0]
        return dump[header + 12 * colours:]

    def settled_picture(self):
        before = None
        while (now := self.picture()) != before:
            before = now
            time.sleep(0.3)
        return now


def changed_rows(one, other):
    """How much of the picture differs: a blinking caret is a few rows, a menu is a hundred."""
    row = 4 * SIZE[0]
    return sum(one[i:i + row] != other[i:i + row] for i in range(0, len(one), row))


def open_file_menu(display):
    before = display.settled_picture()
    display.do("key", "alt+f")
    wait_for("the menu", lambda: changed_rows(before, display.picture()) > 60)


def colours_of(picture):
    return {picture[i:i + 4] for i in range(0, len(picture), 4)}


def check(holds, otherwise):
    if not holds:
        sys.exit(f"smoke: {otherwise}")


def use(display, program, home):
    """One visit. The display has no window manager, so that the focus is given by hand."""
    environment = {**os.environ, "DISPLAY": display.name, "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C.UTF-8",
                   "XDG_CONFIG_HOME": str(Path(home, "config")), "XDG_DATA_HOME": str(Path(home, "data"))}
    environment.pop("WAYLAND_DISPLAY", None)
    zolv = subprocess.Popen([program], cwd=home, env=environment)
    try:
        window = wait_for("the window", lambda: display.do("search", "--onlyvisible", "--name", "^Tarmaq Zolv$"))[0]
        display.do("windowfocus", window)
        before = display.settled_picture()
        check(len(colours_of(before)) > 50, "the picture is blank")

        save(display, window, Path(home, "before.zolv"))
        third = third_gear(Path(home, "before.zolv"))

        reach_third_gear(display)
        display.do("key", "ctrl+a")
        display.do("type", "--delay", "60", "1,875")
        after = display.settled_picture()
        check(after != before, "typing changed nothing on the screen")
        save(display, window, Path(home, "after.zolv"))
        check(third_gear(Path(home, "after.zolv")) == "1.875" != third, "the typed ratio is not in the saved file")

        display.do("key", "ctrl+o")  # another window stays open
        wait_for("the options", lambda: len(display.do("search", "--onlyvisible", "--class", "zolv")) > 1)
        display.do("windowfocus", window)
        open_file_menu(display)
        display.do("key", "x")
        check(zolv.wait(PATIENCE) == 0, f"ended with status {zolv.returncode}")
        check("Gear3: 1.875" in Path(home, "data/zolv/set-up.ini").read_text("utf-8"), "the set-up has not been kept")
    finally:
        if zolv.poll() is None:
            zolv.kill()


def start_without_display(program, home):
    environment = {name: value for name, value in os.environ.items()
                   if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    zolv = subprocess.run([program], cwd=home, env=environment, capture_output=True, text=True, timeout=PATIENCE)
    check(zolv.returncode == 1 and zolv.stderr.count("\n") == 1 and "no display" in zolv.stderr,
          f"without a display: status {zolv.returncode}, {zolv.stderr}")


def third_gear(path):
    lines = path.read_text("utf-8").splitlines()
    return next(line.removeprefix("Gear3: ") for line in lines if line.startswith("Gear3: "))


def save(display, window, path):
    """By keys: File, Save As; then the name in the dialog."""
    def asked():
        """A busy machine can show the menu before it takes keys, and the key is lost: then once more from the start."""
        display.do("windowfocus", window)
        open_file_menu(display)
        time.sleep(0.2)
        display.do("key", "a")
        for _ in range(60):
            if found := display.do("search", "--onlyvisible", "--name", "Save settings"):
                return found
            time.sleep(0.05)
        display.do("key", "Escape")
        return None

    dialog = wait_for("the dialog", asked)[0]
    display.do("windowfocus", dialog)
    display.do("key", "ctrl+a")
    display.do("type", "--delay", "20", path)
    display.do("key", "Return")
    wait_for(path, path.exists)
    wait_for("the end of the dialog", lambda: not display.do("search", "--onlyvisible", "--name", "Save settings"))
    display.do("windowfocus", window)


def reach_third_gear(display):
    """From the list of cars: tabs of the pages, Right to Gearing, the directions, the tyres, box and slider of two
    gears, and the box of the third."""
    display.do("key", "Tab", "Right")
    display.do("key", *["Tab"] * (1 + 1 + 2 * 2 + 1))


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory() as home:
        for name in ("Options.ini", "language_English.txt"):
            shutil.copy(DATA / name, home)
        Path(home, "languages.lst").write_bytes(b"Language: 1\r\nEnglish\r\n")
        Path(home, "unknown.jpg").write_bytes(b"no picture, but no message either")
        start_without_display(Path(sys.argv[1]).resolve(), home)
        display = Display(folder)
        try:
            use(display, Path(sys.argv[1]).resolve(), home)
        finally:
            display.server.terminate()
            display.server.wait()
    print("smoke: typed, saved, left")


if __name__ == "__main__":
    main()
