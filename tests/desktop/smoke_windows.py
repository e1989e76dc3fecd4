#!/usr/bin/env python3
"""Starts the Windows program under Wine on a hidden display, types a ratio with real keys, saves it under a name that
no code page has, leaves through the menu, and looks where it keeps what.

Usage: smoke_windows.py FOLDER WINE PICTURE
  FOLDER   what the ZIP holds; it is started in a copy of that
  WINE     the loader; WINEPREFIX names where it keeps its own
  PICTURE  where the last picture of the screen goes, as PPM
"""
import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import smoke
from smoke import check, wait_for

NAME = "Größe ギヤ.zolv"
