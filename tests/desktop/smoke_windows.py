#!/usr/bin/env python3
"""Starts the Windows program under Wine on a hidden display with a set-up whose name no code page has, types a ratio with
real keys, saves, leaves through the menu, and looks where what is kept: once in a folder that may be written, once in
one that may not. Needs a user who is refused what he may not do.

Usage: smoke_windows.py FOLDER WINE PICTURE
  FOLDER   what the ZIP holds
  WINE     Wine's loader; WINEPREFIX is where its drive C lies
  PICTURE  where the last picture of the screen goes, as PNG
"""
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import zlib
from pathlib import Path

import smoke
from smoke import SIZE, Display, changed_rows, check, colours_of, open_file_menu, reach_third_gear, third_gear
from smoke import wait_for

os.environ["LC_ALL"] = "C.UTF-8"
smoke.PATIENCE = 90  # seconds; Wine looks at every font of the system before the first window

NAME = "Größe ギヤ.zolv"


def write_png(path, pixels):
    """Pixels of 4 bytes, blue first, as the screen has them."""
    width, height = SIZE
    rows = bytearray()
    for y in range(height):
        row = pixels[4 * width * y:4 * width * (y + 1)]
        colours = bytearray(3 * width)
        colours[0::3], colours[1::3], colours[2::3] = row[2::4], row[1::4], row[0::4]
        rows += b"\0" + colours

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
                     chunk(b"IDAT", zlib.compress(bytes(rows))) + chunk(b"IEND", b""))


def check_resources(wine, program):
    """The version that the program says is among its file's properties, and its icon is in the file."""
    said = subprocess.run([wine, program, "--version"], stdout=subprocess.PIPE, text=True, check=True).stdout.split()
    check(said and said[0] == "zolv", f"--version says {said}")
    content = program.read_bytes()
    check(any(f"ProductVersion\0{gap}{said[1]}\0".encode("utf-16-le") in content for gap in ("", "\0")),
          "the file is of another version")
    check(program.with_name("zolv.png").read_bytes() in content, "the file lacks its icon")


def type_and_save(display, wine, program, set_up, ratio):
    """One visit; returns the picture behind the typing."""
    zolv = subprocess.Popen([wine, program, set_up.name], cwd=set_up.parent)
    try:
        title = "^Tarmaq Zolv .*zolv"  # with the file that it was started with
        window = wait_for("the window", lambda: display.do("search", "--onlyvisible", "--name", title))[0]
        display.do("windowfocus", window)
        before = display.settled_picture()
        check(len(colours_of(before)) > 50, "the picture is blank")
        reach_third_gear(display)
        display.do("key", "ctrl+a")
        display.do("type", "--delay", "60", ratio)
        after = display.settled_picture()
        check(changed_rows(before, after) > 100, "typing has moved no plot")
        display.do("key", "ctrl+s")
        wait_for("the saved ratio", lambda: third_gear(set_up) == ratio)
        open_file_menu(display)
        display.do("key", "x")
        check(zolv.wait(smoke.PATIENCE) == 0, f"ended with status {zolv.returncode}")
        return after
    finally:
        if zolv.poll() is None:
            zolv.kill()


KEPT = ("zolv.ini", "set-up.ini")


def check_kept(folder, other, ratio):
    check(Path(folder, "zolv.ini").exists(), f"the visit is not kept in {folder}")
    check(f"Gear3: {ratio}" in Path(folder, "set-up.ini").read_text("utf-8"), f"the set-up is not kept in {folder}")
    for name in KEPT:
        check(not Path(other, name).exists(), f"something is kept in {other}")


def main():
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    unpacked, wine, picture = Path(sys.argv[1]), sys.argv[2], Path(sys.argv[3])
    with tempfile.TemporaryDirectory() as screen, tempfile.TemporaryDirectory() as home:
        set_up = Path(home, NAME)
        shutil.copy(unpacked / "examples/sable_t_road.zolv", set_up)
        folder = Path(shutil.copytree(unpacked, Path(home, "Zölv")))
        languages = folder / "languages.lst"
        languages.write_bytes(languages.read_bytes().replace(b": 0\r", b": 1\r"))
        display = Display(screen)
        os.environ["DISPLAY"] = display.name  # a Wine that has started without one draws nothing
        try:
            check_resources(wine, folder / "zolv.exe")
            users = next(Path(os.environ["WINEPREFIX"], "drive_c/users").glob("*/AppData/Roaming"), None)
            check(users, "Wine has no user")
            type_and_save(display, wine, folder / "zolv.exe", set_up, "1.875")
            check_kept(folder, users / "Zolv", "1.875")
            for name in KEPT:
                (folder / name).unlink()
            folder.chmod(0o555)
            write_png(picture, type_and_save(display, wine, folder / "zolv.exe", set_up, "1.625"))
            folder.chmod(0o755)
            check_kept(users / "Zolv", folder, "1.625")
        except SystemExit:
            write_png(picture, display.picture())
            raise
        finally:
            display.server.terminate()
            display.server.wait()
    print("smoke: typed, saved and left, in a folder of its own and in the user's")


if __name__ == "__main__":
    main()
