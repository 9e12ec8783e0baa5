#!/usr/bin/env python3
"""Processor time and wake-ups of the game when nobody has touched it since a roll was heard, beside a Qt window with as
many parts and nothing to do, at the same time; then the same with the table minimised."""

import os
import pathlib
import re
import subprocess
import time

from programs import EMPTY, GAME, TABLE_FIRST, TABLE_TITLE, Changes, Screen, arguments, place_of, start_until_painted, wait_for

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


def measure(what, programs, seconds):
    begin = time.monotonic()
    before = [spent(process.pid) for process in programs]
    time.sleep(seconds)
    after = [spent(process.pid) for process in programs]
    elapsed = time.monotonic() - begin
    (game_cpu, game_wakes), (empty_cpu, empty_wakes) = (rates(*pair, elapsed) for pair in zip(before, after))
    print(f"{what}, {elapsed:.0f} s")
    print(f"{'':24}{'game':>9}{'empty':>9}{'ratio':>7}")
    print(f"{'processor, %':24}{game_cpu * 100:9.3f}{empty_cpu * 100:9.3f}{ratio(game_cpu, empty_cpu):>7}")
    print(f"{'wake-ups a second':24}{game_wakes:9.2f}{empty_wakes:9.2f}{ratio(game_wakes, empty_wakes):>7}", flush=True)


def main():
    options = arguments(__doc__, seconds=(30, "length of each measurement"), music=(0, "1: the music plays meanwhile"))
    settings = TABLE_FIRST + ("BGMusicEnabled=True\n" if options.music else "")
    os.environ["SDL_AUDIODRIVER"] = "dummy"  # sounds like a card, where there is none too
    with Screen() as game_screen, Screen() as empty_screen:
        place = place_of(game_screen, TABLE_TITLE, TABLE_FIRST)
        game, _ = start_until_painted(game_screen, Changes(game_screen.display), place, [GAME], settings)
        empty, _ = start_until_painted(empty_screen, Changes(empty_screen.display), place, [EMPTY, *place])
        table = game_screen.find_window(TABLE_TITLE)
        game_screen.press(table, "Return")
        time.sleep(SETTLING)
        measure("idle", (game, empty), options.seconds)
        # Without a window manager nothing is minimised.
        game_screen.start("openbox", "--sm-disable", stderr=subprocess.DEVNULL)
        time.sleep(2)
        game_screen.press(table, "space")
        wait_for("the table to go", lambda: not game_screen.find_window(TABLE_TITLE))
        time.sleep(SETTLING)
        measure("idle, minimised", (game, empty), options.seconds)


main()
