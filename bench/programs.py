"""What the window measurements share: the two programs, and one start of either until its picture stands."""

import argparse
import pathlib
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests"))

from screen import BLACK, Screen, wait_for  # noqa: E402 (found by the line above)

GAME = ROOT / "build/release/LuckyCup/LuckyCup"
EMPTY = ROOT / "build/release/bench/empty_window"
GAME_TITLE = "^Lucky Cup"
TABLE_FIRST = "ShowDialog=False\nShowSplash=False\n"
LOOKS = 16  # rows of the window that are looked at

__all__ = ["EMPTY", "GAME", "GAME_TITLE", "Screen", "arguments", "game_place", "is_painted", "start_until_painted"]


def arguments(description, **numbers):
    parser = argparse.ArgumentParser(description=description)
    for name, (value, help_text) in numbers.items():
        parser.add_argument("--" + name, type=int, default=value, help=f"{help_text} (default {value})")
    options = parser.parse_args()
    for program in (GAME, EMPTY):
        if not program.exists():
            parser.error(f"{program} is missing; ./check builds it")
    return options


def game_place(screen):
    """x, y, width and height of the game's window, from one start, which also warms the caches."""
    game = screen.start(GAME, home=screen.new_home(TABLE_FIRST))
    window = wait_for("the game's window", lambda: screen.find_window(GAME_TITLE))
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


def start_until_painted(screen, place, command, settings=""):
    """Starts the program on the black screen; returns it with the seconds that passed until its first picture."""
    home = screen.new_home(TABLE_FIRST + settings)
    begin = time.perf_counter()
    process = screen.start(*command, home=home)

    def shows():
        if process.poll() is not None:
            raise RuntimeError(f"{command[0]} ended with status {process.returncode} before it painted")
        return is_painted(screen, place)

    wait_for("a picture", shows, pause=0.0002)
    return process, time.perf_counter() - begin
