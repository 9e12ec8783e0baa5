#!/usr/bin/env python3
"""The score files of programs that are killed while they record, of a full disk, of several programs at once and of a
folder that others write to as well. Each program plays one game on the headless table and records its score."""

import os
import re
import shutil
import struct
import subprocess
import sys
import time

from hard_run import arguments, disk_with, folder, rooms

TABLE = "scores4.dat"  # of one column and five dice
SLOT, PLACES, SIZE = 24, 20, 484
UNUSED = -9999
NOBODY = 65534


class Game:
    """A game up to its last box, which records the score."""

    def __init__(self, tool, place, seed, **how):
        self.name = f"game {seed}"
        lines = ["set NumberOfColumns 1", "set NumberOfDice 4", f"set Player1 {self.name}", f"set AppPath {place}", f"seed {seed}",
                 "start", *(f"roll\nbox 3 {row}" for row in range(12)), "roll\n"]
        folder, program = os.path.split(os.path.abspath(tool))  # which a stranger may not be able to reach by its path
        self.process = subprocess.Popen(["./" + program], cwd=folder, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=subprocess.PIPE, **how)
        self.process.stdin.write("\n".join(lines).encode())
        self.process.stdin.flush()
        for _ in range(26):
            self.process.stdout.readline()

    def write_the_last_box(self):
        self.process.stdin.write(b"box 3 12\n")
        self.process.stdin.flush()

    def told(self):
        """Score and place, if it told them; place None when it told a failure."""
        out, err = self.process.communicate(timeout=20)
        assert self.process.returncode in (0, -9) and not err, (self.process.returncode, err)
        record = re.search(rb'"record 4\|(-?\d+)\|[^|]*\|(-?\d+)"', out)
        assert record or b'"record-failed 4"' in out or self.process.returncode, out[:300]
        return (int(record[1]), int(record[2])) if record else None

    def end(self):
        self.write_the_last_box()
        return self.told()


def records(path):
    """The used places of a table, from the best."""
    with open(path, "rb") as file:
        data = file.read()
    assert len(data) == SIZE, f"a table is whole or not there, but has {len(data)} bytes"
    slots = [struct.unpack_from("<10si10s", data, SLOT * place) for place in range(PLACES)]
    return [(score, name.decode().rstrip(" \0")) for name, score, _ in slots if score != UNUSED]


def with_record(table, record):
    """Below its equals."""
    return sorted([*table, record], key=lambda other: -other[0])[:PLACES]


def killed(options, scores, place, tool):
    """A score that was told is in the table; one on its way is there or not, and the rest as it was."""
    table, instants = [], {True: 0, False: 0}
    for seed in range(options.count):
        game = Game(tool, place, seed)
        game.write_the_last_box()
        end = time.perf_counter() + options.pick.random() * 0.0015
        while time.perf_counter() < end:
            pass
        game.process.kill()
        told = game.told()
        path = os.path.join(scores, TABLE)
        now = records(path) if os.path.exists(path) else []
        new = [record for record in now if record not in table]
        after = with_record(table, told and (told[0], game.name) or (new and new[0] or (-10000, "")))
        after = [record for record in after if record[1]]
        assert now == after and (not new or new[0][1] == game.name), (seed, told, table, now)
        assert len(os.listdir(scores)) <= 2, os.listdir(scores)
        instants[bool(told)] += 1
        table = now
    assert Game(tool, place, options.count).end()
    assert os.listdir(scores) == [TABLE], "what was left is cleared away"
    return f"killed {instants[False]} times before the score was told and {instants[True]} times after"


def full_disk(options, scores, place, tool):
    for seed in range(25):
        Game(tool, place, seed).end()
    table = records(os.path.join(scores, TABLE))
    tries = rooms(options.pick, SIZE, options.count // 2)
    for seed, room in enumerate(tries, 100):
        game = Game(tool, place, seed, **disk_with(room))
        told = game.end()
        assert bool(told) == (room >= SIZE), (room, told)
        if told:
            table = with_record(table, (told[0], game.name))
        assert records(os.path.join(scores, TABLE)) == table, room
        assert os.listdir(scores) == [TABLE], room
    return f"{len(tries)} places on a full disk"


def at_once(options, scores, place, tool):
    """Five programs, of which one is killed somewhere, while the others lose nothing."""
    rounds = max(1, options.count // 5)
    for number in range(rounds):
        games = [Game(tool, place, 5 * number + i) for i in range(5)]
        for game in games:
            game.write_the_last_box()
        time.sleep(options.pick.random() * 0.001)
        games[-1].process.kill()
        told = [(game.told(), game.name) for game in games]
        assert all(record for record, _ in told[:-1]), told
        wanted = {(record[0], name) for record, name in told if record}
        found = set(records(os.path.join(scores, TABLE)))
        assert wanted <= found and len(found - wanted) <= 1, (told, found)
        os.remove(os.path.join(scores, TABLE))
    return f"{rounds} times five at once"


def folder_of_all(options, scores, place, tool):
    """The game is run by the owner of the folder or by a stranger. The score stands in the table or a failure is told,
    and what lies there besides stays as it is."""
    theirs = os.path.join(place, "theirs")
    os.chmod(place, 0o755)
    os.chmod(scores, 0o777)
    plants = (
        lambda at: os.mkfifo(at, 0o666), lambda at: os.mkdir(at, 0o777), lambda at: os.mkdir(at, 0),
        lambda at: os.symlink("/dev/full", at), lambda at: os.symlink("/dev/zero", at), lambda at: os.symlink(TABLE, at),
        lambda at: os.symlink("no/where", at), lambda at: os.symlink(theirs, at), lambda at: os.link(theirs, at),
        lambda at: shutil.copy("/bin/true", at), lambda at: None,
    )
    recorded = 0
    for seed in range(options.count):
        for name in os.listdir(scores):
            path = os.path.join(scores, name)
            os.rmdir(path) if os.path.isdir(path) and not os.path.islink(path) else os.remove(path)
        if os.path.exists(theirs):
            os.remove(theirs)
        with open(theirs, "wb") as file:
            file.write(b"not a table")
        path = os.path.join(scores, TABLE)
        for at in (path, path + ".new"):
            options.pick.choice(plants)(at)
        table_is_theirs = os.path.realpath(path) == theirs
        stranger = os.geteuid() == 0 and options.pick.random() < 0.5
        how = {"user": NOBODY, "group": NOBODY, "extra_groups": []} if stranger else {}
        told = Game(tool, place, seed, **how).end()
        if told and told[1] > 0:
            recorded += 1
            with open(path, "rb") as file:
                slot = file.read()[SLOT * (told[1] - 1):][:SLOT]
            assert slot[:10].decode().rstrip() == f"game {seed}"[:10], (seed, slot)
        with open(theirs, "rb") as file:
            assert table_is_theirs or file.read() == b"not a table", seed
    return f"{options.count} folders, in {recorded} of which the score has its place"


def main():
    options = arguments(__doc__, 60, tool="luckycup-script")
    for run in (killed, full_disk, at_once, folder_of_all):
        with folder() as place:
            scores = os.path.join(place, "scores")
            os.mkdir(scores)
            try:
                print(f"{run(options, scores, place, options.tool)}, seed {options.seed}", flush=True)
            except AssertionError as fault:
                sys.exit(f"{run.__name__}, seed {options.seed}: {fault}")


main()
