#!/usr/bin/env python3
"""smoke.py PROGRAM: starts the real program on an X display of its own, as a new user, who meets the welcome window and
leaves it, then plays from it with its box checked, rolls the dice with Enter and closes the window as a desktop would;
at the next start a picture stands before the table. Expects clean ends: status 0 and nothing on stderr."""

import sys
import tempfile
import time

from screen import Screen, wait_for

CLOCK_ROWS = 40  # at the bottom of the window, where the picture changes by itself
CHECK_BOX = 32, 308  # in the welcome window
SPLASH = (378, 210)
WELCOME, TABLE, HELP = "^Welcome to LuckyCup", r"^Lucky Cup 2\.3$", "^Lucky Cup Help$"


class Start:
    """One start of the program."""

    def __init__(self, screen, command, home, errors):
        self.screen = screen
        self.home = home
        self.program = screen.start(command, stderr=errors, home=home)

    def window(self, title):
        def find():
            if self.program.poll() is not None:
                raise RuntimeError(f"the program ended with status {self.program.returncode}, wanted {title}")
            return self.screen.find_window(title)

        return wait_for(title, find)

    def wait_for_end(self):
        def ended():
            if self.program.poll() is None and (question := self.screen.find_window("^Confirm$")):
                self.screen.press(question, "Return")
            return self.program.poll() is not None

        wait_for("the end of the program", ended, pause=0.5)
        if self.program.returncode != 0:
            raise RuntimeError(f"the program ended with status {self.program.returncode}")

    def roll(self, window):
        def picture():
            x, y, width, height = self.screen.place(window)
            return self.screen.picture(x, y, width, height - CLOCK_ROWS)

        def stands_still():
            before = picture()
            time.sleep(0.5)
            return picture() == before

        self.screen.xdotool("windowfocus", "--sync", window)
        wait_for("a picture that stands still", stands_still)
        table = picture()
        self.screen.press(window, "Return")
        wait_for("the roll to show", lambda: picture() != table)
        wait_for("the end of the roll", stands_still)


def leave_the_welcome(start):
    start.screen.press(start.window(WELCOME), "Escape")
    start.wait_for_end()


def play_from_the_welcome(start):
    welcome = start.window(WELCOME)
    x, y, _, _ = start.screen.place(welcome)
    start.screen.click(x + CHECK_BOX[0], y + CHECK_BOX[1])
    start.screen.press(welcome, "Return")
    table = start.window(TABLE)
    start.roll(table)
    meet_the_running_game(start)
    start.screen.press(table, "F1")
    start.window(HELP)  # goes with the table
    start.screen.ask_to_close(table)
    start.wait_for_end()


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
    with tempfile.TemporaryFile() as errors, Screen() as screen:
        home = screen.new_home()
        failure = None
        try:
            for visit in (leave_the_welcome, play_from_the_welcome, meet_the_splash):
                visit(Start(screen, sys.argv[1], home, errors))
        except (RuntimeError, TimeoutError) as error:
            failure = str(error)
        errors.seek(0)
        complaints = errors.read().decode(errors="replace")
        if failure or complaints:
            sys.exit(f"smoke: {failure or 'the program complained'}\n{complaints}")


main()
