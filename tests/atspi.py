#!/usr/bin/python3
"""atspi.py PROGRAM: plays a whole Yahtzee game as a screen reader does, by what the controls say of themselves and by
their actions alone, from the welcome window to the hall of fame and out of the program. Needs a session bus of its own:
dbus-run-session. Ends with status 77, which skips the test, where the bus of the screen readers can't be had."""

import os
import re
import sys
import tempfile

SKIPPED = 77

try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi
except (ImportError, ValueError) as missing:
    print(missing)
    sys.exit(SKIPPED)

from screen import Screen, wait_for

HALL_OF_FAME, TABLE, SHOWING = "Lucky Cup - Hall of Fame", "Lucky Cup 2.3", Atspi.StateType.SHOWING
BOXES = 13


class Reader:
    """What a screen reader sees of the program."""

    def __init__(self, program):
        self.program = program

    def windows(self):
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(i)
            if application and application.get_process_id() == self.program.pid:
                for k in range(application.get_child_count()):
                    if window := application.get_child_at_index(k):
                        yield window

    def controls(self, within):
        """Everything that shows below a control."""
        for i in range(within.get_child_count()):
            child = within.get_child_at_index(i)
            if child and child.get_state_set().contains(SHOWING):
                yield child
                yield from self.controls(child)

    def find(self, title, name):
        """The controls of the window that show and have such a name."""
        for window in self.windows():
            if re.fullmatch(title, window.get_name() or ""):
                for control in self.controls(window):
                    if re.fullmatch(name, control.get_name() or ""):
                        yield control

    def names(self, name):
        return [control.get_name() for control in self.find(TABLE, name)]

    def wait(self, title, name):
        if self.program.poll() is not None:
            raise RuntimeError(f"the program ended with status {self.program.returncode}, wanted {name}")
        return wait_for(f"{name} in {title}", lambda: next(self.find(title, name), None))

    def press(self, title, name):
        control = self.wait(title, name)
        for i in range(control.get_n_actions()):
            if control.get_action_name(i) in ("Press", "Toggle"):
                return control.do_action(i)
        raise RuntimeError(f"{control.get_name()} can't be pressed")


def score(name):
    return int(re.search(r"would score (\d+)", name)[1])


def play(reader):
    """One box a turn: the one that scores most, after a second roll in which the sixes were held."""
    for turn in range(BOXES):
        reader.press(TABLE, "Roll the dice")
        reader.wait(TABLE, "Roll 1 of 3")
        for die in reader.names("Die . shows 6, free")[:4]:
            reader.press(TABLE, die)
            reader.wait(TABLE, die.replace("free", "held"))
        reader.press(TABLE, "Roll the dice")
        reader.wait(TABLE, "Roll 2 of 3")
        boxes = reader.names("Rand column.*, open.*")
        if len(boxes) != BOXES - turn:
            raise RuntimeError(f"{len(boxes)} boxes are open in turn {turn + 1}")
        best = max(boxes, key=lambda name: score(name) if "would score" in name else 0)
        reader.press(TABLE, re.escape(best))
        if turn < BOXES - 1:
            reader.wait(TABLE, re.escape(best.split(", open")[0]) + r": \d+")


def main():
    os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
    with tempfile.TemporaryFile() as errors, Screen(bus=os.environ["DBUS_SESSION_BUS_ADDRESS"]) as screen:
        os.environ["DISPLAY"] = screen.display
        home = screen.new_home("NumberOfColumns=1\nhintAllways=True\n")
        reader = Reader(screen.start(sys.argv[1], stderr=errors, home=home))
        failure = None
        try:
            reader.press("Welcome to LuckyCup.*", "Play")
            play(reader)
            reader.press("Finish Game.", "Finish Game")
            reader.wait(HALL_OF_FAME, "Player 1")
            # The list may hold games of others that were played in the same folder.
            totals = {control.get_name() for control in reader.find(HALL_OF_FAME, r"\d{2,3}")}
            reader.press(HALL_OF_FAME, "Return")
            reader.wait(TABLE, f"Grand Total: ({'|'.join(totals)})")
            reader.press(TABLE, "Exit Game")
            reader.press("Confirm", "OK")
            wait_for("the end of the program", lambda: reader.program.poll() is not None)
        except (RuntimeError, TimeoutError) as error:
            failure = str(error)
        errors.seek(0)
        complaints = errors.read().decode(errors="replace")
        if failure or complaints:
            sys.exit(f"atspi: {failure or 'the program complained'}\n{complaints}")


main()
