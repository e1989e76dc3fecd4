#!/usr/bin/env python3
"""Puts pictures of one icon into the form that Windows reads: a list of sizes and places, then the pictures as they are.

Usage: icon.py ICON PNG ...
"""
import struct
import sys
from pathlib import Path

HEADER = struct.Struct("<HHH")       # 0, kind (1 for icons), pictures
ENTRY = struct.Struct("<BBBBHHII")   # width, height (0 for 256), colours, 0, planes, bits a pixel, length, place


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    pictures = [Path(name).read_bytes() for name in sys.argv[2:]]
    place = HEADER.size + ENTRY.size * len(pictures)
    icon = HEADER.pack(0, 1, len(pictures))
    for picture in pictures:
        width, height = struct.unpack(">II", picture[16:24])  # every PNG has them there
        icon += ENTRY.pack(width % 256, height % 256, 0, 0, 1, 32, len(picture), place)
        place += len(picture)
    Path(sys.argv[1]).write_bytes(icon + b"".join(pictures))


if __name__ == "__main__":
    main()
