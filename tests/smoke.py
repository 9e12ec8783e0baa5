#!/usr/bin/env python3
"""smoke.py PROGRAM: starts the real program on an X display of its own, rolls the dice with Enter, starts it a second
time, closes the window as a desktop would, and expects a clean end of both: status 0 and nothing on stderr."""

import sys
import tempfile
import time

from screen import Screen, wait_for

CLOCK_ROWS = 40  # at the bottom of the window, where the picture changes by itself


def play(screen, program, start_again):
    def find(title):
        if program.poll() is not None:
            raise RuntimeError(f"the program ended with status {program.returncode}, wanted the window {title}")
        return screen.find_window(title)

    def picture():
        x, y, width, height = screen.place(window)
        return screen.picture(x, y, width, height - CLOCK_ROWS)

    def stands_still():
        before = picture()
        time.sleep(0.5)
        return picture() == before

    def ended():
        if program.poll() is None and (question := screen.find_window("^Confirm$")):
            screen.press(question, "Return")
        return program.poll() is not None

    window = wait_for("the main window", lambda: find(r"^Lucky Cup 2\.3$"))
    screen.xdotool("windowfocus", "--sync", window)
    wait_for("a picture that stands still", stands_still)
    table = picture()
    screen.press(window, "Return")
    wait_for("the roll to show", lambda: picture() != table)
    wait_for("the end of the roll", stands_still)
    rolled = picture()
    second = start_again()
    message = wait_for("the word that the game runs", lambda: screen.find_window("^LuckyCup Running$"))
    screen.press(message, "Return")
    wait_for("the end of the second program", lambda: second.poll() is not None)
    if second.returncode != 0:
        raise RuntimeError(f"the second program ended with status {second.returncode}")
    if picture() != rolled or not find(r"^Lucky Cup 2\.3$"):
        raise RuntimeError("the second program changed the first")
    screen.ask_to_close(window)
    wait_for("the end of the program", ended, pause=0.5)


def main():
    with tempfile.TemporaryFile() as errors, Screen() as screen:
        program = screen.start(sys.argv[1], stderr=errors)
        failure = None
        try:
            play(screen, program, lambda: screen.start(sys.argv[1], stderr=errors, home_of=program))
            if program.returncode != 0:
                failure = f"the program ended with status {program.returncode}"
        except (RuntimeError, TimeoutError) as error:
            failure = str(error)
        errors.seek(0)
        complaints = errors.read().decode(errors="replace")
        if failure or complaints:
            sys.exit(f"smoke: {failure or 'the program complained'}\n{complaints}")


main()
