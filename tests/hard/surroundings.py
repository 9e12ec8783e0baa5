#!/usr/bin/env python3
"""The real program in strange surroundings: without home, fonts, memory, descriptors or a language it knows, on small and
odd screens, on Wayland and on none, with its display lost, and ended by signals at any time. In each it plays a roll where
it can be seen, says nothing that it should not, and ends in its own way with the settings saved.
surroundings.py PROGRAM [PART OF A NAME...]: all cases, or those whose names have one of the parts."""

import contextlib
import multiprocessing.pool
import os
import pathlib
import re
import resource
import signal
import subprocess
import sys
import tempfile
import threading
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
from screen import Screen, wait_for  # noqa: E402 (found by the line above)

TABLE, WELCOME = r"^Lucky Cup 2\.3$", "^Welcome"
TABLE_FIRST = "ShowDialog=False\nShowSplash=False\nConfirmOnExit=True\n"
CLOCK_ROWS = 40  # at the bottom of the window, where the picture changes by itself
STRANGER = {"user": 65534, "group": 65534, "extra_groups": []} if os.geteuid() == 0 else {}
TWIPS, MENU_BAR = 15, 330  # to a pixel; of the normal size
FIRST_DIE = 245 + 400, 5655 + 400 + MENU_BAR
PATIENCE = 60
NO_LEAKS = {"ASAN_OPTIONS": "detect_leaks=0"}  # those of libraries, where Qt ends the process and on Wayland

# What Qt says about its surroundings where they are not as it wishes; the game itself says nothing.
SAID_BY_QT = re.compile(
    r"QStandardPaths: .*|Detected locale .*|Qt depends on a UTF-8 locale.*|If this causes problems.*|with the locale .*|"
    r"Fontconfig (warning|error): .*|qt\.qpa\..*|The (X11|Wayland) connection (broke|experienced).*|.*Could not find .*fonts.*|"
    r"QFontDatabase: .*|Failed to create secure directory .*/pulse.*| Note that Qt no longer ships fonts.*|")


class Failure(Exception):
    pass


def expect(true, what):
    if not true:
        raise Failure(what)


class Play:
    """One start of the program on a screen, which is thrown away at the end."""

    def __init__(self, program, size=(800, 700), depth=24, settings=TABLE_FIRST, changes=None, readable=False, **how):
        program = pathlib.Path(program)
        self.program, self.changes = f"./{program.name}", changes or {}
        self.how = {**how, "cwd": program.parent}  # which a stranger may not be able to reach by its path
        self.screen = Screen(size=size, depth=depth)
        self.settings, self.readable = settings, readable

    def __enter__(self):
        with contextlib.ExitStack() as stack:
            stack.enter_context(self.screen)
            self.errors = stack.enter_context(tempfile.TemporaryFile())
            self._start()
            self._end = stack.pop_all()
        return self

    def _start(self):
        self.home = self.screen.new_home(self.settings)
        self.store = self.home / "config/LuckyCup/LuckyCup2.2.conf"
        for path in (self.home.parent, self.home, *self.home.rglob("*")):
            if self.readable:
                os.chmod(path, 0o555 if path.is_dir() else 0o444)
        self.process = self.screen.start(self.program, home=self.home, stderr=self.errors, changes=self.changes, **self.how)

    def __exit__(self, *_):
        self._end.close()

    def window(self, title=TABLE):
        def find():
            expect(self.process.poll() is None, f"ended with status {self.process.returncode}: {self.said()}")
            return self.screen.find_window(title)

        return wait_for(title, find, PATIENCE)

    def picture(self, window):
        x, y, width, height = self.screen.place(window)
        return self.screen.picture(x, y, width, height - CLOCK_ROWS)

    def settle(self, window):
        def stands_still():
            before = self.picture(window)
            time.sleep(0.3)
            return self.picture(window) == before

        wait_for("a picture that stands still", stands_still, PATIENCE)
        return self.picture(window)

    def roll(self):
        window = self.window()
        self.screen.xdotool("windowfocus", "--sync", window)
        before = self.settle(window)
        self.screen.press(window, "Return")
        wait_for("the roll to show", lambda: self.picture(window) != before, PATIENCE)
        return window

    def said(self):
        self.errors.seek(0)
        lines = self.errors.read().decode(errors="replace").splitlines()
        return "; ".join(line for line in lines if not SAID_BY_QT.fullmatch(line))

    def listens(self):
        """Whether it would hear the three signals."""
        status = pathlib.Path(f"/proc/{self.process.pid}/status").read_text()
        caught = int(re.search(r"^SigCgt:\s*(\w+)", status, re.M)[1], 16)
        return all(caught >> number - 1 & 1 for number in (signal.SIGHUP, signal.SIGINT, signal.SIGTERM))

    def end(self, number=signal.SIGTERM, saves=True):
        wait_for("the signals to be heard", self.listens, PATIENCE)
        self.process.send_signal(number)
        self.ends(0)
        expect(self.process.returncode == 0, f"status {self.process.returncode}")
        names = re.findall(r"^(\w+)=", self.store.read_text(), re.M) if saves else []
        expect(not saves or len(names) == 15, f"saved are only {names}")

    def ends(self, status):
        try:
            self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise Failure("does not end") from None
        expect(self.process.returncode == status, f"status {self.process.returncode}, wanted {status}: {self.said()}")
        expect(not self.said(), f"says {self.said()}")
        left = [path.name for path in self.home.iterdir() if path.name.startswith("LuckyCup-")]
        expect(not left, f"leaves {left}")


def plays(saves=True, in_the_roll=False, **how):
    def case(program):
        with Play(program, **how) as play:
            if not how.get("settings", TABLE_FIRST):
                play.screen.press(play.window(WELCOME), "Return")
            window = play.roll()
            if not in_the_roll:
                play.settle(window)
            play.end(saves=saves)

    return case


def limited(kind, most):
    return lambda: resource.setrlimit(kind, (most, most))


def ended_by(number):
    def case(program):
        with Play(program) as play:
            play.window()
            play.end(number)

    return case


def ended_with_open(key, title):
    """A dialog, or several of them, by keys at the table."""
    def case(program):
        with Play(program) as play:
            window = play.window()
            for name in key.split():
                play.settle(window)
                play.screen.press(window, name)
            play.window(title)
            play.end()

    return case


def ended_before_the_table(settings, title):
    def case(program):
        with Play(program, settings=settings) as play:
            play.window(title)
            play.end(saves=False)

    return case


def hangs_up_unheard(program):
    """As nohup starts it."""
    with Play(program, preexec_fn=lambda: signal.signal(signal.SIGHUP, signal.SIG_IGN), restore_signals=False) as play:
        play.listens = lambda: True
        window = play.window()
        play.process.send_signal(signal.SIGHUP)
        play.settle(window)
        play.end()


def without_home(home):
    """Nothing tells where the user's files lie, and none can be made."""
    nothing = dict.fromkeys(("XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "TMPDIR"))
    return plays(saves=False, settings="", changes={**nothing, "HOME": home}, **STRANGER)


def not_writable(program):
    """Its owner is another, or has forbidden it to himself."""
    with Play(program, changes={"XDG_RUNTIME_DIR": None}, readable=True, **STRANGER) as play:
        before = play.store.read_text()
        play.settle(play.roll())
        play.end(saves=False)
        expect(play.store.read_text() == before, "the settings have changed")


def little_memory(program):
    """256 MB beyond what it has when its window stands."""
    with Play(program) as play:
        play.window()
        text = pathlib.Path(f"/proc/{play.process.pid}/status").read_text()
        needed = int(re.search(r"^VmPeak:\s*(\d+)", text, re.M)[1]) << 10
        play.end()
    if needed < 1 << 40:  # the sanitizers take all there is
        plays(preexec_fn=limited(resource.RLIMIT_AS, needed + (256 << 20)))(program)


def no_threads(program):
    with Play(program, changes=NO_LEAKS, preexec_fn=limited(resource.RLIMIT_NPROC, 1), **STRANGER) as play:
        expect(play.process.wait(PATIENCE) == 1, f"status {play.process.returncode}")
        expect("no thread" in play.said(), f"says only {play.said()}")


def no_fonts(program):
    with tempfile.NamedTemporaryFile("w", suffix=".conf") as none:
        none.write('<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig></fontconfig>')
        none.flush()
        plays(changes={"FONTCONFIG_FILE": none.name})(program)


def in_language(name):
    def case(program):
        with tempfile.TemporaryDirectory() as folder:
            language, _, coding = name.partition(".")
            if coding:  # or it is taken for C, where it is not installed
                subprocess.run(["localedef", "-i", language, "-f", coding, f"{folder}/{name}"], capture_output=True)
            plays(changes={"LC_ALL": name, "LANG": name, "LOCPATH": folder if coding else None})(program)

    return case


def loses_the_display(program):
    with Play(program, changes=NO_LEAKS) as play:
        play.roll()
        play.screen._server.kill()
        play.ends(1)


def small_screen(program):
    """The first die can be held with the mouse."""
    with Play(program, size=(640, 480)) as play:
        window = play.roll()
        rolled = play.settle(window)
        x, y, _, _ = play.screen.place(window)
        expect(y >= 0, "the title is out of the screen")
        share = 0.75 / TWIPS
        play.screen.click(x + int(FIRST_DIE[0] * share), y + int(FIRST_DIE[1] * share))
        wait_for("the die to be held", lambda: play.picture(window) != rolled, PATIENCE)
        play.end()


def without_a_display(program):
    with Play(program, changes={"DISPLAY": None, "QT_QPA_PLATFORM": "offscreen"}) as play:
        play.end()


def on_wayland(program):
    with tempfile.TemporaryDirectory() as folder:
        environment = {**os.environ, "XDG_RUNTIME_DIR": folder}
        weston = subprocess.Popen(["weston", "--backend=headless-backend.so", "--socket=game", "--idle-time=0"], env=environment,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            socket = pathlib.Path(folder, "game")
            wait_for("weston", socket.exists)
            changes = {**NO_LEAKS, "DISPLAY": None, "WAYLAND_DISPLAY": socket, "QT_QPA_PLATFORM": "wayland"}
            with Play(program, changes=changes) as play:
                time.sleep(2)
                play.end()
            with Play(program, changes=changes) as play:
                wait_for("the start", play.listens)
                time.sleep(2)
                weston.kill()
                play.ends(1)
        finally:
            weston.kill()
            weston.wait()


CASES = {
    "SIGTERM in a roll": plays(in_the_roll=True),
    "SIGINT": ended_by(signal.SIGINT),
    "SIGHUP": ended_by(signal.SIGHUP),
    "SIGHUP ignored": hangs_up_unheard,
    "SIGTERM with the options open": ended_with_open("ctrl+o", "^Options"),
    "SIGTERM with the question open": ended_with_open("ctrl+x", "^Confirm$"),
    "SIGTERM with the help open": ended_with_open("F1", "^Lucky Cup Help$"),
    "SIGTERM at the welcome": ended_before_the_table("ShowDialog=True\n", WELCOME),
    "SIGTERM at the splash": ended_before_the_table("ShowDialog=False\nShowSplash=True\n", "."),
    # One after the other, for one user plays one game at a time.
    "no home, none there, not writable": lambda program: [case(program) for case in (without_home(None), without_home("/nowhere"), not_writable)],
    "no runtime folder": plays(changes={"XDG_RUNTIME_DIR": None}),
    "runtime folder that is not there": plays(changes={"XDG_RUNTIME_DIR": "/nowhere"}),
    "language C": in_language("C"),
    "language Turkish": in_language("tr_TR.UTF-8"),
    "language Arabic": in_language("ar_EG.UTF-8"),
    "language Japanese": in_language("ja_JP.UTF-8"),
    "language that is none": plays(changes={"LC_ALL": "xx_YY.UTF-8"}),
    "no fonts": no_fonts,
    "20 descriptors": plays(preexec_fn=limited(resource.RLIMIT_NOFILE, 20)),
    "256 MB": little_memory,
    "no threads": no_threads,
    "display lost": loses_the_display,
    "small screen": small_screen,
    "depth 16": plays(depth=16),
    "no display": without_a_display,
    "Wayland": on_wayland,
}


def outcome(item):
    name, case = item
    begin = time.monotonic()
    try:
        case(sys.argv[1])
        failure = None
    except (Failure, TimeoutError, RuntimeError, OSError) as error:
        failure = f"{name}: {error}"
    print(f"{time.monotonic() - begin:5.1f} s  {failure or name}", flush=True)
    return failure


def main():
    wanted = [(name, case) for name, case in CASES.items() if not sys.argv[2:] or any(part in name for part in sys.argv[2:])]
    with multiprocessing.pool.ThreadPool(4) as pool:
        failures = [failure for failure in pool.imap(outcome, wanted) if failure]
    print(f"{len(wanted)} surroundings, {len(failures)} failures")
    sys.exit(bool(failures))


main()
