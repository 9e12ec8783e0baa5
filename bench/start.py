#!/usr/bin/env python3
"""Start to first painted frame and resident memory of the game, beside an empty Qt window of the same size and place."""

import pathlib
import re
import statistics
import time

from programs import EMPTY, GAME, Screen, arguments, game_place, is_painted, start_until_painted

SETTLING = 1.0  # seconds between the first picture and the look at the memory


def memory(pid):
    """Resident set and proportional share of it, in MB (a page shared by n processes counts 1/n in the second)."""
    text = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text()
    return [int(re.search(rf"^{name}:\s+(\d+) kB", text, re.M)[1]) / 1024 for name in ("Rss", "Pss")]


def knows_sound(pid):
    """What it takes to play is loaded at the first sound, which no start has."""
    return re.search(r"/(libSDL|libmpg123|luckycup-sound)", pathlib.Path(f"/proc/{pid}/maps").read_text())


def measure(screen, place, command):
    process, seconds = start_until_painted(screen, place, command)
    time.sleep(SETTLING)
    values = [seconds * 1000, *memory(process.pid)]
    if knows_sound(process.pid):
        raise RuntimeError(f"{command[0]} has loaded the sound before anything was to sound")
    process.kill()
    process.wait()
    while is_painted(screen, place):
        time.sleep(0.01)
    return values


def main():
    options = arguments(__doc__, rounds=(20, "starts of each program"))
    with Screen() as screen:
        place = game_place(screen)
        commands = {"game": [GAME], "empty": [EMPTY, *place]}
        results = {name: [] for name in commands}
        for turn in range(options.rounds + 1):
            # They take turns in going first. The first round warms up and does not count.
            for name in sorted(commands, reverse=turn % 2 == 1):
                values = measure(screen, place, commands[name])
                if turn:
                    results[name].append(values)

    print(f"{options.rounds} starts of each program, in turn, window {place[2]} x {place[3]}")
    print(f"{'':28}{'game':>8}{'empty':>8}{'ratio':>7}")
    rows = (("first frame, ms, median", 0, statistics.median), ("first frame, ms, least", 0, min),
            ("resident (Rss), MB, median", 1, statistics.median), ("share (Pss), MB, median", 2, statistics.median))
    for what, index, summary in rows:
        game, empty = (summary(values[index] for values in results[name]) for name in ("game", "empty"))
        print(f"{what:28}{game:8.1f}{empty:8.1f}{game / empty:7.2f}")


main()
