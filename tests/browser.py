#!/usr/bin/python3
"""browser.py PROGRAM: plays on the page for a browser in a real one, Debian's chromium, by its debugging protocol.
browser.py ADDRESS: the same on a page that ./play shows to a new user, and there a whole game, by mouse and by keys, to
the hall of fame. Leaves browser-*.png, pictures of what it has met.

Needs the Debian packages under [browser] and [browser-test] in packages.txt. Not among the tests of ctest, for the
browser's size; run it by hand when something in packaging/browser/ has changed."""

import base64
import json
import os
import pathlib
import re
import signal
import socket
import subprocess
import sys
import tempfile
import time
import urllib.request

import websocket

from screen import wait_for

SERVE = pathlib.Path(__file__).parent.parent / "packaging/browser/serve"
QUIET = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-sync",
         "--disable-background-networking", "--disable-component-update", "--force-device-scale-factor=1"]
SCREEN = 640, 600  # the page has this size, so that a place in the picture is one on the screen
KEYS = {"Enter": (13, "\r"), "Escape": (27, ""), "F2": (113, ""), " ": (32, " "), "1": (49, "1"), "ArrowDown": (40, "")}
CODES = {" ": "Space", "1": "Digit1"}
CONTROL = {"key": "Control", "code": "ControlLeft", "windowsVirtualKeyCode": 17}


class Browser:
    def __init__(self, folder):
        self._process = subprocess.Popen(
            ["chromium", *QUIET, "--remote-debugging-port=0", "--remote-allow-origins=*", f"--user-data-dir={folder}",
             f"--window-size={SCREEN[0]},{SCREEN[1]}", "about:blank"],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        note = pathlib.Path(folder, "DevToolsActivePort")
        port = wait_for("chromium", lambda: note.exists() and note.read_text().split("\n")[0])
        with urllib.request.urlopen(f"http://127.0.0.1:{port}/json/list") as answer:
            page = next(target for target in json.load(answer) if target["type"] == "page")
        self._socket = websocket.create_connection(page["webSocketDebuggerUrl"], timeout=20)
        self._asked = 0
        self.ask("Emulation.setDeviceMetricsOverride", width=SCREEN[0], height=SCREEN[1], deviceScaleFactor=1,
                 mobile=False)

    def close(self):
        self.ask("Browser.close")
        self._process.wait()

    def ask(self, method, **parameters):
        self._asked += 1
        self._socket.send(json.dumps({"id": self._asked, "method": method, "params": parameters}))
        while (answer := json.loads(self._socket.recv())).get("id") != self._asked:
            pass
        if "error" in answer:
            raise RuntimeError(f"{method}: {answer['error']}")
        return answer["result"]

    def value(self, expression):
        return self.ask("Runtime.evaluate", expression=expression)["result"].get("value")

    def open(self, address):
        self.ask("Page.navigate", url="about:blank")
        self.ask("Page.navigate", url=address)

    def message(self):
        return self.value("document.getElementById('message')?.hidden ? '' : document.body.innerText.trim()")

    def keep(self, name):
        pathlib.Path(f"browser-{name}.png").write_bytes(self.picture())

    def picture(self, x=0, y=0, width=SCREEN[0], height=SCREEN[1]):
        clip = {"x": x, "y": y, "width": width, "height": height, "scale": 1}
        return base64.b64decode(self.ask("Page.captureScreenshot", format="png", clip=clip)["data"])

    def mouse(self, kind, x, y, button="none"):
        self.ask("Input.dispatchMouseEvent", type=kind, x=x, y=y, button=button, clickCount=1)

    def click(self, x, y):
        self.mouse("mouseMoved", x, y)
        self.mouse("mousePressed", x, y, "left")
        time.sleep(0.05)
        self.mouse("mouseReleased", x, y, "left")

    def press(self, key):
        code, text = KEYS[key]
        names = {"key": key, "code": CODES.get(key, key), "windowsVirtualKeyCode": code}
        self.ask("Input.dispatchKeyEvent", type="keyDown", text=text, **names)
        self.ask("Input.dispatchKeyEvent", type="keyUp", **names)

    def press_with_control(self, key):
        self.ask("Input.dispatchKeyEvent", type="keyDown", **CONTROL)
        self.press(key)
        self.ask("Input.dispatchKeyEvent", type="keyUp", **CONTROL)

    def drag(self, x, y, right, down):
        self.mouse("mouseMoved", x, y)
        self.mouse("mousePressed", x, y, "left")
        for step in range(1, 6):
            self.mouse("mouseMoved", x + right * step // 5, y + down * step // 5, "left")
        self.mouse("mouseReleased", x + right, y + down, "left")


# Places on the screen, in whose middle the window of the four-column board stands: x, y, width, height.
EVERYTHING = 0, 0, *SCREEN
WINDOW = 160, 20, 320, 545
DICE = 168, 435, 190, 125
BOARD = 168, 98, 300, 300
BOXES = 303, 98, 165, 300
FIRST_BOX, BOX_WIDTH, BOX_TOPS = (327, 110), 40, [0, 17, 34, 51, 68, 85, 126, 143, 184, 201, 218, 235, 252]
FIRST_DIE, CUP, FREE_COLUMN_ONES, DESK = (200, 465), (415, 490), (395, 110), (20, 300)
BESIDE = 20, 300, 100, 100
SETTINGS = "[General]\nNumberOfDice=5\nNumberOfColumns=4\nShowDialog=False\nShowSplash=False\nShowStatusBar=False\n"

# Keeps the picture, or tells where it differs from the kept one by more than the compression does, but for the window's
# title: left, top, right, bottom.
PICTURE = """
    const canvas = document.querySelector("canvas");
    const now = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height).data;
"""
KEEP = f"(() => {{ {PICTURE} window.kept = now; }})()"
CHANGED = f"""(() => {{
    {PICTURE}
    let box = [canvas.width, canvas.height, 0, 0];
    for (let i = 4 * canvas.width * {WINDOW[1] + 30}; i < now.length; i += 4) {{
        if ([0, 1, 2].every(colour => Math.abs(now[i + colour] - window.kept[i + colour]) < 40)) continue;
        const x = i / 4 % canvas.width, y = Math.floor(i / 4 / canvas.width);
        box = [Math.min(box[0], x), Math.min(box[1], y), Math.max(box[2], x), Math.max(box[3], y)];
    }}
    return box.join(" ");
}})()"""

# How much of the picture has the colour of the hall of fame's rows.
PALE_ROWS = f"""(() => {{
    {PICTURE}
    let count = 0;
    for (let i = 0; i < now.length; i += 4)
        if ([239, 255, 210].every((part, colour) => Math.abs(now[i + colour] - part) < 8)) ++count;
    return count;
}})()"""


def still(browser, place):
    def stands():
        before = browser.picture(*place)
        time.sleep(0.4)
        return browser.picture(*place) == before
    wait_for("a picture that stands still", stands)
    return browser.picture(*place)


def change(browser, what, place, action):
    """Does it, and waits until that part of the picture has changed and stands still again."""
    before = still(browser, place)
    action()
    wait_for(what, lambda: browser.picture(*place) != before)
    return still(browser, place)


def shows(browser, what, place, action):
    change(browser, what, place, action)
    print("  " + what)


def holds(truth, what):
    if not truth:
        raise AssertionError("not so: " + what)
    print("  " + what)


def play(browser):
    shut = still(browser, BOXES)
    shows(browser, "Enter rolls", DICE, lambda: browser.press("Enter"))
    holds(still(browser, BOXES) != shut, "the roll opens boxes")
    shows(browser, "a click holds a die", DICE, lambda: browser.click(*FIRST_DIE))
    shows(browser, "a click on the cup rolls the others", DICE, lambda: browser.click(*CUP))
    shows(browser, "a click writes a box", BOXES, lambda: browser.click(*FREE_COLUMN_ONES))


def changed(browser):
    left, top, right, bottom = map(int, browser.value(CHANGED).split())
    return (left, top, right, bottom) if left <= right else None


def ask_and_move(browser):
    browser.mouse("mouseMoved", *DESK)
    still(browser, WINDOW)
    browser.value(KEEP)
    shows(browser, "F2 opens a question", EVERYTHING, lambda: browser.press("F2"))
    left, top, right, _ = changed(browser)
    title = (left + right) // 2, top + 8
    shows(browser, "the question is moved by its title", BESIDE, lambda: browser.drag(*title, -200, 60))
    shows(browser, "Escape answers it", BESIDE, lambda: browser.press("Escape"))
    browser.mouse("mouseMoved", *DESK)
    wait_for("the table as it was", lambda: not changed(browser))
    shows(browser, "the space bar puts the table away", WINDOW, lambda: browser.press(" "))
    shows(browser, "a click beside it brings it back", WINDOW, lambda: browser.click(*DESK))
    wait_for("the table as it was", lambda: not changed(browser))


def play_whole_game(browser):
    """As a new user, whom the welcome meets before a table of four columns."""
    shows(browser, "Enter leaves the welcome for the table", EVERYTHING, lambda: browser.press("Enter"))
    for column, rows in enumerate([range(13), range(12, -1, -1)]):
        for row in rows:
            box = FIRST_BOX[0] + column * BOX_WIDTH, FIRST_BOX[1] + BOX_TOPS[row]
            change(browser, f"a roll for row {row}", DICE, lambda: browser.click(*CUP))
            change(browser, f"row {row} written", BOXES, lambda: browser.click(*box))
    print("  the mouse fills two columns")
    for turn in range(26):
        change(browser, f"roll {turn} by a key", DICE, lambda: browser.press("Enter"))
        if turn == 0:  # from here on a mark goes from box to box by itself
            shows(browser, "an arrow marks a box", BOARD, lambda: browser.press("ArrowDown"))
            browser.keep("table")
        # A box of the last column is announced by the first press, and written by the second.
        change(browser, f"box {turn} by a key", BOXES, lambda: [browser.press_with_control("Enter") for _ in range(2)])
    print("  keys fill the other two")
    shows(browser, "Enter finishes the game", EVERYTHING, lambda: browser.press("Enter"))
    browser.keep("hall-of-fame")
    holds(browser.value(PALE_ROWS) > 100000, "the hall of fame is on the table")
    shows(browser, "Enter leaves it", BOARD, lambda: browser.press("Enter"))


def stay_out(browser, address, port):
    for wrong, answer in [("", "password is missing"), ("#password=12345678", "not that of the game")]:
        browser.open(address.split("#")[0] + wrong)
        wait_for(f"'{answer}'", lambda: answer in (browser.message() or ""))
        holds(not browser.value("document.querySelector('canvas')?.checkVisibility()"), f"no picture, but '{answer}'")
    others = subprocess.run(["hostname", "-I"], text=True, capture_output=True, check=True).stdout.split()
    for other in ["127.0.0.2", "::1", *others]:
        family = socket.AF_INET6 if ":" in other else socket.AF_INET
        with socket.socket(family, socket.SOCK_STREAM) as line:
            line.settimeout(3)
            holds(line.connect_ex((other, port)) != 0, f"{other} does not answer")


def processes(session):
    return subprocess.run(["ps", "-o", "pid=,args=", "-s", str(session)], text=True, capture_output=True).stdout


def serve(folder, program):
    """The process, which leads a session of its own, and the address that it printed."""
    config = pathlib.Path(folder, "LuckyCup")
    config.mkdir()
    config.joinpath("LuckyCup2.2.conf").write_text(SETTINGS)
    environment = {**os.environ, "HOME": folder, "XDG_CONFIG_HOME": folder, "XDG_RUNTIME_DIR": folder}
    for name in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"):
        environment.pop(name, None)
    command = [SERVE, program]
    served = subprocess.Popen(command, env=environment, stdout=subprocess.PIPE, text=True, start_new_session=True)
    lines = [served.stdout.readline() for _ in range(3)]
    address = re.search(r"http://127\.0\.0\.1:(\d+)/#password=\w{8}$", lines[1].strip())
    if not address:
        raise RuntimeError(f"no address in {lines}")
    again = subprocess.run(command, env=environment, text=True, capture_output=True)
    holds(again.returncode == 0 and address[0] in again.stdout, "a second run tells where the game is")
    return served, address[0], int(address[1])


def play_where_told(browser, address):
    stay_out(browser, address, int(address.split(":")[2].split("/")[0]))
    browser.open(address)
    wait_for("the welcome", lambda: browser.message() == "")
    play_whole_game(browser)


def serve_and_play(browser, program, folder):
    served, address, port = serve(folder, program)
    try:
        stay_out(browser, address, port)
        browser.open(address)
        wait_for("the table", lambda: browser.message() == "")
        holds(browser.value("document.title") == "Lucky Cup", "the page has the name of the game")
        play(browser)
        ask_and_move(browser)
        os.killpg(served.pid, signal.SIGINT)  # as the terminal does
        holds(served.wait(20) == 130, "Ctrl+C ends it")
        holds(not processes(served.pid), "nothing of it runs on")
        holds(os.listdir(pathlib.Path(folder, f"luckycup-browser-{os.getuid()}")) == ["lock"], "no secret is left")
        wait_for("'has ended'", lambda: "has ended" in (browser.message() or ""))
    finally:
        if served.poll() is None:
            os.killpg(served.pid, signal.SIGTERM)
            served.wait()


def main():
    target = sys.argv[1]
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as profile:
        browser = Browser(profile)
        try:
            if target.startswith("http://"):
                play_where_told(browser, target)
            else:
                serve_and_play(browser, target, folder)
        except BaseException:
            browser.keep("failure")
            raise
        finally:
            browser.close()
    print("browser: passed")


main()
