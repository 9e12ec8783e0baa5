#!/usr/bin/env python3
"""A monkey at the headless table: runs of random lines, each ended by the end of the input, by a damaged line or by an
output that takes no more. script_monkey.py LUCKYCUP-SCRIPT [--seed N] [--lines N]"""

import argparse
import json
import os
import random
import re
import subprocess
import sys
import tempfile

SET_UPS = (b"", b"set", b"seed", b"faces", b"answer", b"media")
TIMERS = ("tmrRollDice", "tmrTimeElapsed", "tmrGameOver", "tmrAnimation", "tmrCounter", "Timer3", "Timer4")
BLANKS = b" \t\r"
MEGABYTE = 1 << 20


def set_up(pick):
    yield b"set NumberOfDice %d" % pick.choice((4, 5))
    yield b"set NumberOfPlayers %d" % pick.choice((1, 2))
    yield b"set NumberOfColumns %d" % pick.choice((1, 4))
    yield b"set Player1 " + pick.choice((b"Ann", b"\xff\xfe \xed\xa0\x80", b"a\0b", "王 😀".encode(), b"x" * 10000))
    for name in (b"SoundEnabled", b"hintAllways", b"ConfirmOnExit", b"BGMusicEnabled", b"ShowStatusBar"):
        yield b"set %s %s" % (name, pick.choice((b"True", b"False")))
    yield b"seed %d" % pick.getrandbits(64)
    yield b"start"


def valid_line(pick):
    box = lambda: b"%d %d" % (pick.randint(1, 4), pick.randint(0, 12))
    kinds = (
        (20, lambda: b"roll"), (40, lambda: b"box " + box()), (8, lambda: b"die %d" % pick.randint(0, 5)),
        (6, lambda: b"tick tmrCounter"), (4, lambda: b"next"), (3, lambda: b"undo"), (3, lambda: b"redo"),
        (2, lambda: b"hover " + box()), (2, lambda: b"leave " + box()), (2, lambda: b"key enter"),
        (1, lambda: b"key space"), (1, lambda: b"board"), (1, lambda: b"new"), (1, lambda: b"hint"),
        (1, lambda: b"hints " + pick.choice((b"always", b"request"))),
        (1, lambda: pick.choice((b"sounds ", b"music ")) + pick.choice((b"on", b"off"))),
        (1, lambda: b"tick %s %d" % (pick.choice(TIMERS).encode(), pick.randint(1, 30))),
        (1, lambda: b"options NumberOfColumns=%d NumberOfPlayers=%d" % (pick.choice((1, 4)), pick.choice((1, 2)))),
        (1, lambda: b"options NumberOfDice=%d Player2=%s" % (pick.choice((4, 5)), pick.choice((b"", b"\xff", b"Bob")))),
        (1, lambda: b"minimize"), (1, lambda: b"restore"), (1, lambda: b"state"), (1, lambda: b""), (1, lambda: b"# \0"),
        (1, lambda: b"faces " + b" ".join(b"%d" % pick.randint(1, 6) for _ in range(6))),
        (1, lambda: b"media %d" % pick.getrandbits(70)), (0.02, lambda: b" " * MEGABYTE), (0.1, lambda: b"quit"),
    )
    return pick.choices([make for _, make in kinds], [weight for weight, _ in kinds])[0]()


def damaged_line(pick, line):
    """A line that is none, or, in the last cases, one that may still be."""
    huge = pick.choice((b"18446744073709551616", b"-1", b"9" * 400, b"1e3", b"0x1", b"+1", b"1\0", b"\xd9\xa1"))
    sure = (
        lambda: b"die " + huge, lambda: b"seed " + huge, lambda: b"faces " + huge, lambda: b"tick Timer3 " + huge,
        lambda: b"tick Timer3 1000001", lambda: b"tick Timer3 18446744073709551615", lambda: b"box 1 " + huge,
        lambda: b"start", lambda: b"set Player1 Ann", lambda: b"\xff\xfe", lambda: b"roll\0", lambda: b"\0" * 9,
        lambda: b"x" * MEGABYTE, lambda: b"die " + b"1 " * (MEGABYTE // 2), lambda: b"options " + b"=" * MEGABYTE,
        lambda: b"answer " + bytes(pick.randrange(33, 256) for _ in range(40)),
    )
    if pick.random() < 0.6:
        return pick.choice(sure)(), True
    line = bytearray(line or b"roll")
    for _ in range(pick.randint(1, 3)):
        line[pick.randrange(len(line))] ^= 1 << pick.randrange(8)
    return bytes(line), False


def is_event(line):
    words = re.split(rb"[ \t\r]+", line.strip(BLANKS))
    return not words[0].startswith(b"#") and words[0] not in SET_UPS


def check_table(table):
    """What holds of every table, whatever was done."""
    session = table["session"]
    assert 0 <= session["RollCount"] <= 3 and 0 <= table["lamps"] <= 3, "rolls"
    assert -1 <= session["NextUpRow"] <= 12 and 0 <= session["NextDownRow"] <= 13, "rows"
    assert all(1 <= face <= 6 for face in table["dice"]["face"]), "faces"
    assert session["ComputeOnly"] is False and session["RedoInProgress"] is False, "left in the middle"
    for column in ("Down", "Up", "Rand", "Oblg"):
        texts = table["boxes"][column] + table["totals"][column]
        assert all(re.fullmatch(r"-?\d+|", text) for text in texts), "texts"
        assert all(0 <= row <= 12 for row in table["offered"][column]), "offered"


def check_run(script, lines, status, out, err, sure_end, full_output):
    """sure_end: the number of the line at which the run must end; 0 when it may end at any."""
    printed = out.splitlines()
    told = re.fullmatch(rb"line (\d+): (bad argument|not started|unknown command '.*')\n", err, re.DOTALL)
    if full_output and status == 1:
        assert err == b"cannot write the output\n", "told"
        return len(lines)
    assert status in (0, 2) and (status == 0) == (err == b"") and (status == 0 or told), f"status {status}, {err[:200]!r}"
    end = int(told.group(1)) if told else len(lines) + 1
    assert not sure_end or end <= sure_end, "went on behind a damaged line"
    if not full_output:
        assert len(printed) == sum(map(is_event, lines[:end - 1])), "one line for each event"
        for line in printed:
            check_table(json.loads(line))
    return min(end, len(lines))


def one_run(tool, pick, folder):
    lines = list(set_up(pick))
    lines += [valid_line(pick) for _ in range(int(pick.expovariate(1 / 600)))]
    sure_end = 0
    if pick.random() < 0.7:
        line, sure = damaged_line(pick, valid_line(pick))
        lines.append(line)
        lines.append(b"state")
        # A flipped bit may have made a second line of it.
        sure_end = len(lines) - 1 if sure else 0
    script = b"\n".join(lines) + pick.choice((b"\n", b""))
    lines = script.split(b"\n")
    if lines[-1] == b"":
        lines.pop()
    full_output = pick.random() < 0.05
    with open("/dev/full", "wb") as full:
        run = subprocess.run([tool], input=script, cwd=folder, stdout=full if full_output else subprocess.PIPE,
                             stderr=subprocess.PIPE, timeout=60)
    try:
        return check_run(script, lines, run.returncode, run.stdout or b"", run.stderr, sure_end, full_output)
    except (AssertionError, ValueError) as fault:
        with open("monkey-failed.txt", "wb") as file:
            file.write(script)
        sys.exit(f"script_monkey: {fault}; status {run.returncode}; the script lies in monkey-failed.txt\n"
                 + run.stderr.decode("latin-1")[:2000])


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("tool")
    arguments.add_argument("--seed", type=int, default=0)
    arguments.add_argument("--lines", type=int, default=10000)
    arguments = arguments.parse_args()
    pick = random.Random(arguments.seed)
    done = runs = 0
    with tempfile.TemporaryDirectory() as folder:
        os.mkdir(os.path.join(folder, "scores"))
        while done < arguments.lines:
            done += one_run(os.path.abspath(arguments.tool), pick, folder)
            runs += 1
    print(f"{done} lines in {runs} runs, seed {arguments.seed}: no crash, every line as expected")


if __name__ == "__main__":
    main()
