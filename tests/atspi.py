#!/usr/bin/python3
"""atspi.py PROGRAM [SETTING=VALUE...]: plays a whole game as a screen reader does, by what the controls say of themselves,
by what they announce and by their actions alone, from the welcome window to the hall of fame and out of the program.
Without settings it is Yahtzee for one with six dice; by hand it plays any game, such as NumberOfColumns=4
NumberOfPlayers=2 NumberOfDice=4 (which stands for five). Ends with status 77, which skips the test, where the bus of the
screen readers can't be had."""

import contextlib
import os
import re
import shutil
import subprocess
import sys
import tempfile

SKIPPED = 77

try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError) as missing:
    print(missing)
    sys.exit(SKIPPED)

from own_copy import own_copy
from screen import Screen, wait_for

TABLE, HALL_OF_FAME, FINISH, WINNER = "Lucky Cup( 2.3| - .*)", "Lucky Cup - Hall of Fame", "Finish Game.", "And the .*"
OPEN = "(Down|Up|Rand|Announce) column, .*, (open|announced).*"
NEXT, ROLL = "Next Player", "Roll the dice"
ROWS = 13


class Reader:
    """What a screen reader sees of the program, and hears from it."""

    def __init__(self, start):
        """start: starts the program."""
        self.heard = []  # new names, in order, and the names of what it was led to
        self._table = []  # the controls of the table, which stay
        self._listener = Atspi.EventListener.new(self._hear)
        for event in "object:property-change:accessible-name", "object:state-changed:focused":
            self._listener.register(event)
        # A program that asks who listens while that is still being told never hears of the rest.
        self.program = start()

    def _hear(self, event):
        self.heard.append(("focus: " if event.type.endswith("focused") else "") + (event.source.get_name() or ""))

    def windows(self):
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(i)
            if application and application.get_process_id() == self.program.pid:
                for k in range(application.get_child_count()):
                    if window := application.get_child_at_index(k):
                        yield window

    def controls(self, within):
        for i in range(within.get_child_count()):
            if child := within.get_child_at_index(i):
                yield child
                yield from self.controls(child)

    def find(self, title, name):
        """The controls of the window that show and have such a name."""
        if not (window := next((w for w in self.windows() if re.fullmatch(title, w.get_name() or "")), None)):
            return
        if title == TABLE and not self._table:
            self._table = list(self.controls(window))
        for control in self._table if title == TABLE else self.controls(window):
            if re.fullmatch(name, control.get_name() or ""):
                if control.get_state_set().contains(Atspi.StateType.SHOWING):
                    yield control

    def names(self, name):
        return [control.get_name() for control in self.find(TABLE, name)]

    def shows(self, title, name):
        return next(self.find(title, name), None)

    def wait(self, what, answer):
        def ask():
            if self.program.poll() is not None:
                raise RuntimeError(f"the program ended with status {self.program.returncode}, wanted {what}")
            # The name that was kept of a control gives way to its new one when that is heard.
            while GLib.MainContext.default().iteration(False):
                pass
            return answer()
        return wait_for(what, ask, pause=0.02)

    def wait_to_hear(self, *names):
        """Since the last press."""
        self.wait(f"word of {names}",
                  lambda: all(any(re.fullmatch(name, heard) for heard in self.heard) for name in names))

    def action(self, title, name):
        """A control and which of its actions presses it, once it can be pressed."""
        if control := self.shows(title, name):
            actions = [control.get_action_name(i) for i in range(control.get_n_actions())]
            return next(((control, i) for i, action in enumerate(actions) if action in ("Press", "Toggle")), None)

    def press(self, title, name):
        control, i = self.wait(f"{name} in {title}", lambda: self.action(title, name))
        self.heard.clear()
        control.do_action(i)


def score(name):
    return int((re.search(r"would score (-?\d+)", name) or [0, 0])[1])


def turn(reader, begin, announced, boxes):
    """Writes the box that scores most, after a second roll in which the sixes were held. begin: makes the first roll.
    announced: what else is told of it."""
    begin()
    reader.wait_to_hear("Die . shows ., free", "Roll 1 of 3", "focus: Roll 1 of 3", *announced)
    names = reader.names(OPEN)
    if boxes and len(names) != boxes:
        raise RuntimeError(f"{len(names)} boxes are open instead of {boxes}")
    if all(re.match("Announce column, .*, open", name) for name in names):  # the last one of all needs no word
        reader.press(TABLE, re.escape(names[0]))
        reader.wait_to_hear("Announce column, .*, announced.*")
    for die in reader.names("Die . shows 6, free")[:4]:
        reader.press(TABLE, die)
        reader.wait_to_hear("focus: " + die.replace("free", "held"))
    reader.press(TABLE, ROLL)
    reader.wait_to_hear("Roll 2 of 3", "focus: Roll 2 of 3")
    best = max(reader.names(OPEN), key=score)
    reader.press(TABLE, re.escape(best))
    reader.wait_to_hear(re.escape(re.sub(", (open|announced).*", "", best)) + r": -?\d+")


def hear_the_count(reader):
    """Its text changes once, when it ends."""
    reader.wait_to_hear(r"Grand Total: -?\d+")
    counts = [name for name in reader.heard if name.startswith("Grand Total")]
    if len(counts) != 1 or not reader.shows(TABLE, re.escape(counts[0])):
        raise RuntimeError(f"the counter told {counts}")


def finish(reader):
    """Goes through the windows at the end of one player's game, up to the winner's or back to the table."""
    reader.press(FINISH, "Finish Game")
    reader.wait(HALL_OF_FAME, lambda: reader.shows(HALL_OF_FAME, "Player [12]"))
    # Of two players, in the second's hall of fame.
    totals = {control.get_name() for control in reader.find(HALL_OF_FAME, r"-?\d{2,4}")}
    reader.press(HALL_OF_FAME, "Return")
    reader.wait("the end of the hall of fame", lambda: not reader.shows(HALL_OF_FAME, "Return"))
    reader.wait("the total", lambda: reader.shows(TABLE, f"Grand Total: ({'|'.join(totals)})"))


def play(reader, columns=1, players=1, hold_enter=None):
    """hold_enter: keeps the key down for a while, which makes no more than the first roll."""
    reader.press("Welcome to LuckyCup.*", "Play")
    rounds = columns * ROWS
    for left in range(rounds, 0, -1):
        for player in range(1, players + 1):
            first = left == rounds
            announced = ["What to do: Place your score or roll the dice", f"Progress: Round {rounds - left + 1} of .*"]
            if players == 2:
                announced = [] if first and player == 1 else [f"On move: Player {player}"]
            name = NEXT if players == 2 and announced else ROLL
            begin = hold_enter if hold_enter and first else lambda: reader.press(TABLE, name)
            turn(reader, begin, announced, left if columns == 1 else 0)
            if first:
                hear_the_count(reader)
            if left == 1:
                finish(reader)
    if players == 2:
        reader.press(WINNER, "Close")
        reader.press(TABLE, "Show Player 1's Board")
        reader.wait_to_hear("Show Player 2's Board")
    reader.press(TABLE, "Exit Game")
    reader.press("Confirm", "OK")
    wait_for("the end of the program", lambda: reader.program.poll() is not None)


@contextlib.contextmanager
def session_bus(folder):
    """Its address; empty: there is none. The bus of the screen readers, which it starts, lies in that folder too: a user
    without a runtime folder has one place for all of them, where a second one cannot lie. The desktop that the test was
    started from must not hear of either."""
    environment = {**os.environ, "XDG_RUNTIME_DIR": folder}
    for name in ("DISPLAY", "WAYLAND_DISPLAY"):
        environment.pop(name, None)
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"], stdout=subprocess.PIPE,
                           stderr=subprocess.DEVNULL, text=True, env=environment)
    try:
        yield bus.stdout.readline().strip()
    finally:
        bus.terminate()
        bus.wait()


def main():
    settings = {"NumberOfColumns": "1", "hintAllways": "True", **dict(word.split("=") for word in sys.argv[2:])}
    os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
    with contextlib.ExitStack() as stack:
        folder = stack.enter_context(tempfile.TemporaryDirectory(ignore_cleanup_errors=True))
        errors = stack.enter_context(tempfile.TemporaryFile())
        bus = stack.enter_context(session_bus(folder)) if shutil.which("dbus-daemon") else ""
        if not bus:
            print("no session bus")
            sys.exit(SKIPPED)
        screen = stack.enter_context(Screen(bus=bus))
        os.environ.update(DISPLAY=screen.display, DBUS_SESSION_BUS_ADDRESS=bus)
        home = screen.new_home("".join(f"{name}={value}\n" for name, value in settings.items()))
        program = own_copy(sys.argv[1], folder + "/game")
        reader = Reader(lambda: screen.start(program, stderr=errors, home=home))
        failure = None

        def hold_enter():
            window = wait_for("the table", lambda: screen.find_window(TABLE))
            screen.xdotool("windowfocus", "--sync", window, "keydown", "Return", "sleep", "2", "keyup", "Return")

        try:
            play(reader, int(settings["NumberOfColumns"]), int(settings.get("NumberOfPlayers", 1)), hold_enter)
        except (RuntimeError, TimeoutError) as error:
            failure = f"{error}, heard {reader.heard}"
        errors.seek(0)
        complaints = errors.read().decode(errors="replace")
        if failure or complaints:
            sys.exit(f"atspi: {failure or 'the program complained'}\n{complaints}")


if __name__ == "__main__":
    main()
