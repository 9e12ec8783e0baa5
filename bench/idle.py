#!/usr/bin/env python3
"""Processor time and wake-ups of the game when nobody has touched it since a roll was heard, beside an empty Qt window at the same time."""

import os
import pathlib
import re
import time

from programs import EMPTY, GAME, GAME_TITLE, Screen, arguments, game_place, start_until_painted

SETTLING = 10.0  # seconds from the roll on, which do not count; the sound device closes in them


def spent(pid):
    """Seconds on the processor and voluntary waits (each ends in a wake-up), by thread."""
    threads = {}
    for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
        seconds = int((task / "schedstat").read_text().split()[0]) / 1e9
        waits = int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", (task / "status").read_text(), re.M)[1])
        threads[task.name] = (seconds, waits)
    return threads


def rates(before, after, elapsed):
    """Processor share and waits a second. A thread that ended in between is left out."""
    differences = [[b - a for a, b in zip(before.get(name, (0, 0)), now)] for name, now in after.items()]
    return [sum(column) / elapsed for column in zip(*differences)]


def ratio(a, b):
    return f"{a / b:.1f}" if b else "-"


def main():
    options = arguments(__doc__, seconds=(30, "length of the measurement"), music=(0, "1: the music plays meanwhile"))
    os.environ["SDL_AUDIODRIVER"] = "dummy"  # sounds like a card, where there is none too
    with Screen() as game_screen, Screen() as empty_screen:
        place = game_place(game_screen)
        game, _ = start_until_painted(game_screen, place, [GAME], "BGMusicEnabled=True\n" if options.music else "")
        empty, _ = start_until_painted(empty_screen, place, [EMPTY, *place])
        game_screen.press(game_screen.find_window(GAME_TITLE), "Return")
        time.sleep(SETTLING)
        begin = time.monotonic()
        before = [spent(process.pid) for process in (game, empty)]
        time.sleep(options.seconds)
        after = [spent(process.pid) for process in (game, empty)]
        elapsed = time.monotonic() - begin

    (game_cpu, game_wakes), (empty_cpu, empty_wakes) = (rates(*pair, elapsed) for pair in zip(before, after))
    print(f"idle for {elapsed:.0f} s")
    print(f"{'':24}{'game':>9}{'empty':>9}{'ratio':>7}")
    print(f"{'processor, %':24}{game_cpu * 100:9.3f}{empty_cpu * 100:9.3f}{ratio(game_cpu, empty_cpu):>7}")
    print(f"{'wake-ups a second':24}{game_wakes:9.2f}{empty_wakes:9.2f}{ratio(game_wakes, empty_wakes):>7}")


main()
