#!/usr/bin/env python3
"""smoke.py PROGRAM [SCORES]: starts the real program on an X display of its own, as a new user, who meets the welcome
window and leaves it, then plays from it with its box checked, a whole game of Yahtzee by keyboard and on into the hall of
fame; at the next start a picture stands before the table. Expects clean ends: status 0 and nothing on stderr. The program
is played where it lies and keeps its scores in the folder SCORES; without one a copy of its folder is played."""

import pathlib
import struct
import sys
import tempfile
import time

from own_copy import own_copy
from screen import Screen, wait_for

CLOCK_ROWS = 40  # at the bottom of the window, where the picture changes by itself
CHECK_BOX = 32, 308  # in the welcome window
SPLASH = (378, 210)
BOXES = 13
RECORD = "<10si10s"  # name, score and date
MARK, MARK_COLOUR = (300, 58), b"\xb8\x63\x35"  # in the first row of the hall of fame
WELCOME, OPTIONS, GUIDE, TABLE, HELP = ("^Welcome to LuckyCup", "^Options$", "^Quick Start$", r"^Lucky Cup 2\.3$",
                                        "^Lucky Cup Help$")
END, HALL_OF_FAME = "^Finish Game", "Hall of Fame$"


class Start:
    """One start of the program."""

    def __init__(self, screen, command, scores, home, errors):
        self.screen = screen
        self.scores = pathlib.Path(scores)
        self.home = home
        self.program = screen.start(command, stderr=errors, home=home)

    def window(self, title):
        def find():
            if self.program.poll() is not None:
                raise RuntimeError(f"the program ended with status {self.program.returncode}, wanted {title}")
            return self.screen.find_window(title)

        return wait_for(title, find)

    def wait_for_end_of(self, title):
        wait_for(f"the end of {title}", lambda: not self.screen.find_window(title))

    def wait_for_end(self):
        def ended():
            if self.program.poll() is None and (question := self.screen.find_window("^Confirm$")):
                self.screen.press(question, "Return")
            return self.program.poll() is not None

        wait_for("the end of the program", ended, pause=0.5)
        if self.program.returncode != 0:
            raise RuntimeError(f"the program ended with status {self.program.returncode}")

    def picture(self, window):
        x, y, width, height = self.screen.place(window)
        return self.screen.picture(x, y, width, height - CLOCK_ROWS)

    def settle(self, window, pause):
        """Waits until the window has not changed for so long, and returns its picture."""
        while (before := self.picture(window)) != (time.sleep(pause) or self.picture(window)):
            pass
        return before

    def play(self, window, *keys):
        """Presses keys that must change the picture."""
        table = self.settle(window, 0.2)
        self.screen.press(window, *keys)
        wait_for(f"what {keys} change", lambda: self.picture(window) != table)


def leave_the_welcome(start):
    start.screen.press(start.window(WELCOME), "Escape")
    start.wait_for_end()


def play_from_the_welcome(start):
    welcome = start.window(WELCOME)
    choose_yahtzee(start, welcome)
    x, y, _, _ = start.screen.place(welcome)
    start.screen.click(x + CHECK_BOX[0], y + CHECK_BOX[1])
    start.screen.press(welcome, "F1")
    start.window(HELP)
    start.screen.press(welcome, "Return")
    table = start.window(TABLE)
    start.wait_for_end_of(HELP)
    meet_the_running_game(start)
    play_a_game(start, table)
    start.screen.press(table, "F1")
    start.window(HELP)
    start.screen.press(table, "alt+h", "q")
    start.window(GUIDE)  # both go with the table
    start.screen.ask_to_close(table)
    start.wait_for_end()


def choose_yahtzee(start, welcome):
    start.screen.press(welcome, "alt+o")
    options = start.window(OPTIONS)
    start.play(options, "alt+y")
    start.settle(options, 0.2)  # the button is seen to be pressed first
    start.screen.press(options, "Return")
    start.wait_for_end_of(OPTIONS)


def play_a_game(start, table):
    for _ in range(BOXES):
        start.play(table, "Return")
        start.play(table, "Down", "ctrl+Return")
    start.screen.press(start.window(END), "Return")
    hall = start.window(HALL_OF_FAME)
    name, score, _ = struct.unpack_from(RECORD, (start.scores / "scores3.dat").read_bytes())
    # What is written without a thought may come to less than nothing: the ones count Max less Min.
    if name != b"Player 1  " or not -125 <= score <= 300:
        raise RuntimeError(f"the hall of fame holds {score} of {name}")
    x, y, _, _ = start.screen.place(hall)
    wait_for("the mark on the first place", lambda: start.screen.row(x + MARK[0], y + MARK[1], 1)[:3] == MARK_COLOUR)
    start.screen.press(hall, "Escape")
    start.wait_for_end_of(HALL_OF_FAME)


def meet_the_running_game(start):
    second = start.screen.start(start.program.args[0], home=start.home)
    message = wait_for("the word that the game runs", lambda: start.screen.find_window("^LuckyCup Running$"))
    start.screen.press(message, "Return")
    wait_for("the end of the second program", lambda: second.poll() is not None)
    if second.returncode != 0 or start.program.poll() is not None:
        raise RuntimeError(f"the second program ended with {second.returncode}, the first with {start.program.poll()}")


def meet_the_splash(start):
    splash = wait_for("a window", lambda: start.screen.find_window("LuckyCup", by="--class"), pause=0.01)
    place = start.screen.place(splash)
    if place[2:] != SPLASH:
        raise RuntimeError(f"the second start shows a window of {place[2:]}, wanted the splash of {SPLASH}")
    start.screen.ask_to_close(start.window(TABLE))
    start.wait_for_end()


def main():
    with tempfile.TemporaryFile() as errors, tempfile.TemporaryDirectory() as folder, Screen() as screen:
        if len(sys.argv) == 3:
            program, scores = sys.argv[1:]
        else:
            program = own_copy(sys.argv[1], folder + "/game")
            scores = program.parent / "scores"
        home = screen.new_home()
        failure = None
        try:
            for visit in (leave_the_welcome, play_from_the_welcome, meet_the_splash):
                visit(Start(screen, program, scores, home, errors))
        except (RuntimeError, TimeoutError) as error:
            failure = str(error)
        errors.seek(0)
        complaints = errors.read().decode(errors="replace")
        if failure or complaints:
            sys.exit(f"smoke: {failure or 'the program complained'}\n{complaints}")


main()
