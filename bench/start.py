#!/usr/bin/env python3
"""Start to first painted frame and resident memory of the game, with either of its first windows, each beside a Qt window
of the same size and place with as many parts as the table and nothing to do."""

import pathlib
import re
import statistics
import time

from programs import (EMPTY, GAME, TABLE_FIRST, TABLE_TITLE, WELCOME_FIRST, WELCOME_TITLE, Changes, Screen, arguments,
                      is_painted, place_of, start_until_painted)

SETTLING = 1.0  # seconds between the first picture and the look at the memory
FIRST_WINDOWS = {"table": (TABLE_TITLE, TABLE_FIRST), "welcome": (WELCOME_TITLE, WELCOME_FIRST)}


def memory(pid):
    """Resident set and proportional share of it, in MB (a page shared by n processes counts 1/n in the second)."""
    text = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text()
    return [int(re.search(rf"^{name}:\s+(\d+) kB", text, re.M)[1]) / 1024 for name in ("Rss", "Pss")]


def knows_sound(pid):
    """What it takes to play is loaded at the first sound, which no start has."""
    return re.search(r"/(libSDL|libmpg123|luckycup-sound)", pathlib.Path(f"/proc/{pid}/maps").read_text())


def measure(screen, changes, place, command, settings):
    process, seconds = start_until_painted(screen, changes, place, command, settings)
    time.sleep(SETTLING)
    values = [seconds * 1000, *memory(process.pid)]
    if knows_sound(process.pid):
        raise RuntimeError(f"{command[0]} has loaded the sound before anything was to sound")
    process.kill()
    process.wait()
    while is_painted(screen, place):
        changes.wait(1)
    return values


def lower_quartile(values):
    return statistics.quantiles(values, n=4)[0]


def report(what, game, empty):
    print(f"{what:32}{game:8.1f}{empty:8.1f}{game / empty:7.2f}")


def main():
    options = arguments(__doc__, rounds=(40, "starts of each program with each window"))
    with Screen() as screen:
        changes = Changes(screen.display)
        for first, (title, settings) in FIRST_WINDOWS.items():
            place = place_of(screen, title, settings)
            commands = {"game": [GAME], "empty": [EMPTY, *place]}
            results = {name: [] for name in commands}
            for turn in range(options.rounds + 1):
                # They take turns in going first. The first round warms up and does not count.
                for name in sorted(commands, reverse=turn % 2 == 1):
                    values = measure(screen, changes, place, commands[name], settings)
                    if turn:
                        results[name].append(values)

            times, rss, pss = ([[values[i] for values in results[name]] for name in ("game", "empty")] for i in range(3))
            print(f"{first}: {options.rounds} starts of each program, in turn, window {place[2]} x {place[3]}")
            print(f"{'':32}{'game':>8}{'empty':>8}{'ratio':>7}")
            report("first frame, ms, lower quartile", *map(lower_quartile, times))
            report("first frame, ms, median", *map(statistics.median, times))
            report("first frame, ms, minimum", *map(min, times))
            print(f"{'first frame, median of the pairs':48}{statistics.median(a / b for a, b in zip(*times)):7.2f}")
            report("resident (Rss), MB, median", *map(statistics.median, rss))
            report("share (Pss), MB, median", *map(statistics.median, pss))


main()
