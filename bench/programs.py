"""What the window measurements share: the two programs, and one start of either until its picture stands."""

import argparse
import ctypes
import os
import pathlib
import select
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests"))

from screen import BLACK, Screen, wait_for  # noqa: E402 (found by the line above)

GAME = ROOT / "build/release/LuckyCup/LuckyCup"
EMPTY = ROOT / "build/release/bench/empty_window"
TABLE_TITLE, WELCOME_TITLE = "^Lucky Cup", "^Welcome"
TABLE_FIRST = "ShowDialog=False\nShowSplash=False\n"
WELCOME_FIRST = "ShowDialog=True\n"
LOOKS = 16  # rows of the window that are looked at

__all__ = ["EMPTY", "GAME", "TABLE_FIRST", "TABLE_TITLE", "WELCOME_FIRST", "WELCOME_TITLE", "Changes", "Screen", "arguments",
           "is_painted", "place_of", "start_until_painted", "wait_for"]


def arguments(description, **numbers):
    parser = argparse.ArgumentParser(description=description)
    for name, (value, help_text) in numbers.items():
        parser.add_argument("--" + name, type=int, default=value, help=f"{help_text} (default {value})")
    options = parser.parse_args()
    for program in (GAME, EMPTY):
        if not program.exists():
            parser.error(f"{program} is missing; ./check builds it")
    if os.access("/dev/shm", os.W_OK):
        tempfile.tempdir = "/dev/shm"  # homes and runtime folders in memory
    return options


class Changes:
    """Tells when the screen has changed, by the server's own events."""

    def __init__(self, display):
        self._x, damage = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXdamage.so.1")
        self._x.XOpenDisplay.restype = ctypes.c_void_p
        self._x.XDefaultRootWindow.restype = damage.XDamageCreate.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(self._x.XOpenDisplay(display.encode()))
        first_event, first_error = ctypes.c_int(), ctypes.c_int()
        if not self._display or not damage.XDamageQueryExtension(self._display, *map(ctypes.byref, (first_event, first_error))):
            raise RuntimeError("the X server tells no changes")
        root = ctypes.c_ulong(self._x.XDefaultRootWindow(self._display))
        raw_rectangles = 0
        damage.XDamageCreate(self._display, root, raw_rectangles)
        self._x.XSync(self._display, 0)
        self._file = self._x.XConnectionNumber(self._display)

    def wait(self, seconds):
        """Until something changes that has not been told yet."""
        event = ctypes.create_string_buffer(192)  # the size of an XEvent
        if not self._x.XPending(self._display):
            select.select([self._file], [], [], seconds)
        while self._x.XPending(self._display):
            self._x.XNextEvent(self._display, event)


def place_of(screen, title, settings):
    """x, y, width and height of the game's first window with these settings, from one start, which also warms the caches."""
    game = screen.start(GAME, home=screen.new_home(settings))
    window = wait_for("the game's window", lambda: screen.find_window(title))
    place = screen.place(window)
    game.kill()
    game.wait()
    wait_for("an empty screen", lambda: not is_painted(screen, place))
    return place


def is_painted(screen, place):
    """Whether half of the window is no longer black, in half of the rows looked at. Qt gives its windows no background
    of the server's, so that they stay as they are on the screen until the program has painted; and it sends a window's
    first picture in one piece."""
    x, y, width, height = place
    painted = 0
    for look in range(LOOKS):
        blue = screen.row(x, y + height * look // LOOKS, width)[::4]
        painted += blue.count(BLACK) < width // 2
    return painted > LOOKS // 2


def start_until_painted(screen, changes, place, command, settings=TABLE_FIRST):
    """Starts the program on the black screen; returns it with the seconds that passed until its first picture."""
    home = screen.new_home(settings)
    begin = time.perf_counter()
    process = screen.start(*command, home=home)
    while not is_painted(screen, place):
        if process.poll() is not None or time.perf_counter() - begin > 30:
            raise RuntimeError(f"{command[0]} has painted nothing; status {process.returncode}")
        changes.wait(1)
    return process, time.perf_counter() - begin
