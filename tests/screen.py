"""An X display of our own, off-screen, whose picture can be read without asking the server."""

import ctypes
import mmap
import os
import pathlib
import struct
import subprocess
import tempfile
import time

WIDTH, HEIGHT = 800, 700  # pixels of 4 bytes: blue, green, red, unused
BLACK = b"\0"  # the empty screen


def wait_for(what, answer, seconds=30, pause=0.1):
    """Asks until the answer is not false, and returns it. Raises TimeoutError."""
    end = time.monotonic() + seconds
    while not (found := answer()):
        if time.monotonic() > end:
            raise TimeoutError(f"waited {seconds} s in vain for {what}")
        time.sleep(pause)
    return found


class Screen:
    """bus: the address of a message bus for the programs, or none, nor one launched for the purpose. size and depth:
    pixels, and bits of each; at another depth than 24 the pictures can only be held against each other."""

    def __init__(self, bus="disabled:", size=(WIDTH, HEIGHT), depth=24):
        self._bus = bus
        self._screen = "%dx%dx%d" % (*size, depth)

    def __enter__(self):
        self._folder = tempfile.TemporaryDirectory(prefix="lucky-cup-")
        self._programs = []
        read, write = os.pipe()
        # A server that resets when its last window has gone refuses a program that starts at that moment.
        self._server = subprocess.Popen(
            ["Xvfb", "-noreset", "-displayfd", str(write), "-screen", "0", self._screen, "-fbdir", self._folder.name],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as answer:
            number = answer.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        # Nothing of the desktop that this may have been started from.
        self.display = ":" + number
        self._environment = {**os.environ, "DISPLAY": self.display, "QT_QPA_PLATFORM": "xcb",
                             "DBUS_SESSION_BUS_ADDRESS": self._bus}
        for name in ("WAYLAND_DISPLAY", "QT_SCALE_FACTOR"):
            self._environment.pop(name, None)
        with open(pathlib.Path(self._folder.name, "Xvfb_screen0"), "rb") as file:
            self._buffer = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        header = struct.unpack_from(">25I", self._buffer)  # of an X window dump: its size, the colours of 12 bytes
        self._start = header[0] + 12 * header[19]
        self._pixel, self._line = header[11] // 8, header[12]  # bytes
        return self

    def __exit__(self, *_):
        for process in [*self._programs, self._server]:
            if process.poll() is None:
                process.kill()
                process.wait()
        self._buffer.close()
        self._folder.cleanup()

    def new_home(self, settings=""):
        """The folder of a new user, but for the cache, which holds the list of fonts; with these settings, if any."""
        home = pathlib.Path(tempfile.mkdtemp(dir=self._folder.name))
        if settings:
            store = home / "config/LuckyCup/LuckyCup2.2.conf"
            store.parent.mkdir(parents=True)
            store.write_text("[General]\nNumberOfDice=5\n" + settings)
        return home

    def start(self, *command, stderr=None, home=None, changes=None, **how):
        """Starts a program for the user of this home, or for a new one. changes: what is other in its environment, None
        for what is not there. how: goes to Popen."""
        home = home or self.new_home()
        environment = {**self._environment, "HOME": str(home), "XDG_CONFIG_HOME": str(home / "config"),
                       "XDG_CACHE_HOME": self._folder.name, "XDG_RUNTIME_DIR": str(home), "TMPDIR": str(home)}
        for name, value in (changes or {}).items():
            environment.pop(name, None)
            if value is not None:
                environment[name] = str(value)
        process = subprocess.Popen([*map(str, command)], env=environment, stdin=subprocess.DEVNULL, stderr=stderr, **how)
        self._programs.append(process)
        return process

    def xdotool(self, *arguments):
        result = subprocess.run(["xdotool", *arguments], env=self._environment, text=True, capture_output=True)
        return result.stdout

    def click(self, x, y):
        self.xdotool("mousemove", str(x), str(y), "click", "1")

    def find_window(self, title, by="--name"):
        """The first visible window whose title matches, or None."""
        return next(iter(self.xdotool("search", "--onlyvisible", by, title).split()), None)

    def place(self, window):
        """x, y, width and height in pixels."""
        lines = self.xdotool("getwindowgeometry", "--shell", window).split()
        values = dict(line.split("=") for line in lines)
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def row(self, x, y, width):
        first = self._start + y * self._line + x * self._pixel
        return self._buffer[first:first + width * self._pixel]

    def picture(self, x, y, width, height):
        return [self.row(x, y + line, width) for line in range(height)]

    def press(self, window, *keys):
        """Gives the window the focus, which no window manager does here, and types the keys."""
        self.xdotool("windowfocus", "--sync", window, "key", "--delay", "50", *keys)

    def ask_to_close(self, window):
        """What a window manager sends when the close box is pressed. (xdotool can only destroy a window.)"""
        x = ctypes.CDLL("libX11.so.6")
        x.XOpenDisplay.restype = ctypes.c_void_p
        x.XInternAtom.restype = ctypes.c_ulong
        display = ctypes.c_void_p(x.XOpenDisplay(self._environment["DISPLAY"].encode()))
        protocols, delete = (x.XInternAtom(display, name, 0) for name in (b"WM_PROTOCOLS", b"WM_DELETE_WINDOW"))
        client_message = 33
        event = ctypes.create_string_buffer(192)  # the size of an XEvent
        struct.pack_into("@iLiPLLi5l", event, 0, client_message, 0, 1, display.value, int(window), protocols, 32,
                         delete, 0, 0, 0, 0)
        x.XSendEvent(display, ctypes.c_ulong(int(window)), 0, ctypes.c_long(0), event)
        x.XCloseDisplay(display)
