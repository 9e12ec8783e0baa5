#!/usr/bin/env python3
"""The settings of the real program, which is started without a screen and ended by a signal, at which it saves them: from
damaged stores, on a full disk, and killed while it saves."""

import os
import pathlib
import re
import signal
import subprocess
import sys
import time

from hard_run import arguments, disk_with, folder, rooms

# By field: the value of a first run, another one, and texts that are no value of it.
NO_TRUTH = "0", "", "yes", "2.5", "True, False", "@ByteArray(True)", "\\x0"
NO_NAME = "a, b", "@ByteArray(Ann)", "@Rect(1 2 3 4)"
FIELDS = {
    "ShowDialog": ("True", "False", ()),  # or no table would open, and nothing be saved
    "NumberOfDice": ("5", "4", ("6", "-4", "five", "99999999999999999999")),
    "NumberOfPlayers": ("1", "2", ("3", "0", "-1", "two", '" 2"', "1, 2")),
    "NumberOfColumns": ("4", "1", ("2", "7", "", "four", "-1")),
    "BGMusicVolume": ("500", "321", ("1001", "-1", "70 %", "loud", "1e9", "@Variant(x)")),
    "Player1": ("Player 1", "Ann", NO_NAME),
    "Player2": ("Player 2", "Bob", NO_NAME),
    "ShowSplash": ("False", "False", NO_TRUTH),
    **dict.fromkeys(("SoundEnabled", "hintAllways", "ShowStatusBar", "ConfirmOnExit", "ConfirmQuitGame", "ShowGridLines"),
                    ("True", "False", NO_TRUTH)),
    "BGMusicEnabled": ("False", "True", NO_TRUTH),
}


class User:
    """One who plays in a folder of his own."""

    def __init__(self, program, place):
        self.program = program
        self.runtime = pathlib.Path(place, "run")
        self.store = pathlib.Path(place, "config/LuckyCup/LuckyCup2.2.conf")
        self.store.parent.mkdir(parents=True)
        self.runtime.mkdir(mode=0o700)
        self.environment = {
            **os.environ, "QT_QPA_PLATFORM": "offscreen", "HOME": place, "TMPDIR": place, "XDG_RUNTIME_DIR": str(self.runtime),
            "XDG_CONFIG_HOME": str(self.store.parents[1]), "XDG_CACHE_HOME": place, "DBUS_SESSION_BUS_ADDRESS": "disabled:"}

    def start(self, **how):
        """The program from the time on when it hears signals."""
        process = subprocess.Popen([self.program], env=self.environment, stderr=subprocess.PIPE, **how)
        status = pathlib.Path(f"/proc/{process.pid}/status")
        end = time.monotonic() + 20
        while not int(re.search(r"^SigCgt:\s*(\w+)", status.read_text(), re.M)[1], 16) >> signal.SIGTERM - 1 & 1:
            assert process.poll() is None and time.monotonic() < end, "does not start"
            time.sleep(0.002)
        return process

    def plays(self, **how):
        process = self.start(**how)
        process.terminate()
        _, said = process.communicate(timeout=20)
        assert process.returncode == 0 and not said, (process.returncode, said)

    def saved(self):
        return dict(re.findall(r"^(\w+)=(.*)$", self.store.read_text(), re.M))

    def left(self):
        return sorted(path.name for path in (*self.runtime.iterdir(), *self.store.parent.iterdir()))


def store_of(values):
    return "[General]\n" + "".join(f"{name}={value}\n" for name, value in values.items())


def wrong_types(pick):
    """Values of all, of which some are none."""
    bad = {name: pick.choice(texts) for name, (_, _, texts) in FIELDS.items() if texts and pick.random() < 0.3}
    stored = {name: other for name, (_, other, _) in FIELDS.items()}
    return store_of({**stored, **bad}).encode(), {name: FIELDS[name][0] if name in bad else value for name, value in stored.items()}


def cut(pick):
    """What is missing has the value of a first run, and the line that is cut has what is left of it."""
    stored = {name: other for name, (_, other, _) in FIELDS.items()}
    data = store_of(stored).encode()
    data = data[:pick.randrange(data.index(b"NumberOfPlayers"), len(data))]
    lines = data.count(b"\n") - 1
    wanted = {name: stored[name] if i < lines else FIELDS[name][0] for i, name in enumerate(stored)}
    if lines < len(stored):
        del wanted[list(stored)[lines]]
    return data, wanted


def flipped(pick):
    """The line with a bit that is flipped has any value, and with a quote or backslash it can take others with it."""
    stored = {name: other for name, (_, other, _) in FIELDS.items()}
    data = bytearray(store_of(stored).encode())
    at = pick.choice([i for i in range(data.index(b"NumberOfPlayers"), len(data)) if data[i] != ord("\n")])
    line = data[:at].count(b"\n") - 1
    data[at] ^= 1 << pick.randrange(8)
    names = list(stored)
    sure = names[:line] if data[at] in b'"\\' else names[:line] + names[line + 1:]
    return bytes(data), {name: stored[name] for name in sure}


def damaged(user, options):
    for number in range(options.count):
        if number % 10 == 9:
            user.store.unlink()
            user.store.mkdir()
            user.plays()
            user.store.rmdir()
            continue
        data, wanted = options.pick.choice((wrong_types, cut, flipped))(options.pick)
        user.store.write_bytes(data)
        user.plays()
        saved = user.saved()
        assert set(FIELDS) <= set(saved), (number, data, saved)
        differing = {name: (value, saved[name]) for name, value in wanted.items() if saved[name] != value}
        assert not differing, (number, data, differing)
    return f"{options.count} damaged stores"


def old_and_new(user):
    """The bytes of a store before and after it is saved."""
    old = store_of({"NumberOfDice": 4, "ShowDialog": "False", "Player1": "A" * 500}).encode()
    user.store.write_bytes(old)
    user.plays()
    return old, user.store.read_bytes()


def full_disk(user, options):
    old, new = old_and_new(user)
    tries = rooms(options.pick, len(new), options.count // 2)
    for room in tries:
        user.store.write_bytes(old)
        user.plays(**disk_with(room))
        # The last line may lack its end, which says nothing.
        assert user.store.read_bytes().rstrip() == (new if room >= len(new) - 1 else old).rstrip(), room
    assert user.left() == ["LuckyCup.lock", user.store.name], user.left()
    return f"{len(tries)} places on a full disk"


def killed(user, options):
    old, new = old_and_new(user)
    seen = {old: 0, new: 0}
    for _ in range(options.count):
        user.store.write_bytes(old)
        process = user.start()
        time.sleep(options.pick.random() * 0.05)
        process.terminate()
        time.sleep(options.pick.random() * 0.03)
        process.kill()
        process.communicate()
        assert user.store.read_bytes() in seen, user.store.read_bytes()
        seen[user.store.read_bytes()] += 1
    user.plays()
    assert user.left() == ["LuckyCup.lock", user.store.name], f"what was left is cleared away: {user.left()}"
    return f"killed {seen[old]} times before the settings were saved and {seen[new]} times after"


def main():
    options = arguments(__doc__, 20, program="LuckyCup")
    for run in (damaged, full_disk, killed):
        with folder() as place:
            try:
                print(f"{run(User(options.program, place), options)}, seed {options.seed}", flush=True)
            except AssertionError as fault:
                sys.exit(f"{run.__name__}, seed {options.seed}: {fault}")


main()
