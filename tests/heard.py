#!/usr/bin/python3
"""heard.py PROGRAM game|music: plays in the real window and listens to what would sound, which SDL's disk driver writes
into a pipe. game: a whole game with the sounds and songs that the game comes with, and with --picture PNG a picture of
it. music: all that starts, holds and softens songs, with songs that last a moment."""

import argparse
import bisect
import contextlib
import functools
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import threading
import time
import wave

import numpy as np

from own_copy import own_copy
from screen import Screen, wait_for

RATE = 44100  # frames a second
TABLE = r"^Lucky Cup 2\.3$"
SETTINGS = ("NumberOfColumns=1\nShowDialog=False\nShowSplash=False\nConfirmQuitGame=False\nConfirmOnExit=False\n"
            "BGMusicEnabled=True\n")
QUIET = 0.3  # of the full volume: songs beside which the dice stand out
BOXES = 13
HEADS = {"counter7": 0.09}  # seconds; the least of it that is heard, with two points to count
ROLL = 0.54  # seconds that the nine frames of a roll last, by the clock and not by the device
LAG = 0.4  # seconds that a busy machine may add


def expect(good, what):
    if not good:
        raise RuntimeError(what)


def frames(seconds):
    return int(seconds * RATE)


def read(path):
    """The sound of a WAV or MP3 file, in one channel."""
    with tempfile.NamedTemporaryFile(suffix=".wav") as decoded:
        if path.suffix == ".mp3":
            subprocess.run(["lame", "--quiet", "--decode", path, decoded.name], check=True)
        with wave.open(decoded.name if path.suffix == ".mp3" else str(path)) as file:
            samples = np.frombuffer(file.readframes(file.getnframes()), "<i2").reshape(-1, file.getnchannels())
    return samples.mean(axis=1) / 32768


def likeness(samples, sound):
    """At each place where the sound would fit: how loud it is there, as a part of its own amplitude, and what part it
    is of all that is heard there. Edges count more than long tones, since dice are made of those and music of these."""
    samples, sound = np.diff(samples), np.diff(sound)
    size = 1 << (len(samples) + len(sound)).bit_length()
    product = np.fft.irfft(np.fft.rfft(samples, size) * np.conj(np.fft.rfft(sound, size)), size)
    product = product[:len(samples) - len(sound) + 1]
    sums = np.concatenate([[0], np.cumsum(samples**2)])
    energy = (sound**2).sum()
    return product / energy, product / np.sqrt((sums[len(sound):] - sums[:-len(sound)] + 1e-9) * energy)


class Recording:
    """What sounds from now on, in one channel, with the times at which its parts came."""

    def __init__(self, path):
        os.mkfifo(path)
        self._pipe = os.open(path, os.O_RDWR)  # that also writes: it does not end when the device closes
        self._parts, self._ends, self._times = [], [], []
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        while True:
            data = os.read(self._pipe, 1 << 16)
            while len(data) % 4:
                data += os.read(self._pipe, 4 - len(data) % 4)
            self._parts.append(np.frombuffer(data, "<i2").reshape(-1, 2).mean(axis=1) / 32768)
            self._times.append(time.monotonic())
            self._ends.append(len(self) + len(data) // 4)

    def __len__(self):
        return self._ends[-1] if self._ends else 0

    def since(self, begin):
        first = bisect.bisect_right(self._ends, begin)
        before = self._ends[first - 1] if first else 0
        return np.concatenate([np.zeros(0), *self._parts[first:len(self._ends)]])[begin - before:]

    def time_of(self, frame):
        return self._times[bisect.bisect_right(self._ends, frame)]


class Sounds:
    """The sounds of a program's folder by the names of their files, and where they are in what has sounded."""

    def __init__(self, folder):
        self._paths = {path.stem: path for path in (*folder.glob("LCWAVS/*"), *folder.glob("BGMusic/*"))}
        self._read = functools.cache(read)

    def __getitem__(self, name):
        return self._read(self._paths[name])

    def beginnings(self, name, samples, volume=1.0):
        """The frames at which it begins, at this volume."""
        head = self[name][:frames(HEADS.get(name, 0.3))]
        if len(samples) <= len(head):
            return []
        loudness, part = likeness(samples, head)
        found = []
        for at in np.flatnonzero((part > 0.35) & (abs(loudness / volume - 1) < 0.15)):
            if not found or at - found[-1] > frames(0.05):
                found.append(int(at))
            elif part[at] > part[found[-1]]:
                found[-1] = int(at)
        return found

    def place(self, name, samples):
        """Which frame of it these samples begin with, and its volume; None if they are something else."""
        loudness, part = likeness(self[name], samples)
        at = int(part.argmax())
        return (at, part[at]**2 / loudness[at]) if part[at] > 0.5 else None


class Game:
    """The program in a folder of its own, perhaps with other songs; a hand on its keys and an ear at its sound."""

    def __init__(self, program, stack, settings, songs=None, window_manager=False):
        folder = pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory(prefix="lucky-cup-")))
        self.recording = Recording(folder / "heard")
        self.heard = []  # names and frames, in order
        os.environ.update(SDL_AUDIODRIVER="disk", SDL_DISKAUDIOFILE=str(folder / "heard"))
        self.screen = stack.enter_context(Screen())
        self._errors = stack.enter_context(tempfile.TemporaryFile())
        if window_manager:
            self.screen.start("openbox", "--config-file", "/dev/null", stderr=subprocess.DEVNULL)
            wait_for("the window manager", lambda: int(self.screen.xdotool("get_num_desktops") or 0))
        own = own_copy(program, folder / "game", songs)
        self.sounds = Sounds(own.parent)
        self.process = self.screen.start(own, stderr=self._errors, home=self.screen.new_home(SETTINGS + settings))
        self.table = self.window(TABLE)

    def window(self, title):
        def find():
            expect(self.process.poll() is None, f"the program ended with status {self.process.returncode}")
            return self.screen.find_window(title)

        return wait_for(title, find)

    def press(self, *keys, window=None):
        """Returns how much had sounded before."""
        before = len(self.recording)
        self.screen.xdotool("windowfocus", "--sync", window or self.table, "key", "--delay", "0", *keys)
        return before

    def wait(self, frame):
        wait_for("the device", lambda: len(self.recording) >= frame)

    def hear_any(self, names, after, volume=1.0):
        """Waits for one of them to begin, at or after that frame of the recording; returns its name and frame."""
        def heard():
            sounding = self.recording.since(after)
            return [(name, after + at) for name in names for at in self.sounds.beginnings(name, sounding, volume)]

        event = wait_for(f"the sound of {' or '.join(names)}", heard, seconds=10)[0]
        self.heard.append(event)
        return event

    def hear(self, name, after, volume=1.0):
        return self.hear_any([name], after, volume)[1]

    def leave(self):
        self.screen.ask_to_close(self.table)
        wait_for("the end of the program", lambda: self.process.poll() is not None)
        self._errors.seek(0)
        complaints = self._errors.read().decode(errors="replace")
        complaints = re.sub(r".*(SDL disk i/o audio driver!|Writing to file \[.*)\n", "", complaints)
        expect(self.process.returncode == 0 and not complaints, f"status {self.process.returncode}, {complaints}")


def first_turn(game):
    """Rolls all dice, holds one and lets it go, rolls some, one, and writes the sum of them."""
    song = game.hear("SONG01", 0, QUIET)
    expect(song < frames(0.1), "the song was not the first to sound")
    roll = game.hear("rollAll", game.press("Return", "1"))
    hold = game.hear("holdDice", roll)
    expect(hold - roll > frames(ROLL / 2), f"a die was held {(hold - roll) / RATE} s after the roll began")
    game.hear("UnHoldDice", game.press("1"))
    for held, rolled in (("123", "rollSome"), ("45", "rollOne")):
        for die in held:
            game.hear("holdDice", game.press(die))
        game.hear(rolled, game.press("Return"))
    # What lies on the table counts in one of the six upper rows.
    for row in reversed(range(6)):
        name, box = write(game, ["Up"] * BOXES + ["Down"] * row)
        if name == "score":
            break
        game.hear("undo", game.press("ctrl+z"))
    counter = game.hear("counter7", box)
    wait = counter - box - len(game.sounds["score"])
    expect(0 <= wait < frames(LAG), f"the counter began {wait / RATE} s after the end of the sound of the score")
    game.hear("counter0", counter)


def write(game, way):
    """Leads the mark to a box and writes there; returns the name of the sound and its frame."""
    return game.hear_any(["score", "scoreZero"], game.press(*way, "ctrl+Return"))


def other_turns(game, pause):
    """One roll and one box each."""
    for _ in range(BOXES - 1):
        game.hear("rollAll", game.press("Return"))
        if write(game, ["Down"])[0] == "score":
            time.sleep(pause)


def end(game):
    """The hall of fame with its jingle, the intro when it has closed, and a new game."""
    jingle = game.hear("GameOver2", game.press("Return", window=game.window("^Finish Game")))
    hall = game.window("Hall of Fame")
    game.wait(jingle + frames(1))
    second_half = slice(frames(0.5), frames(1))  # the counter has ended
    alone = game.recording.since(jingle)[second_half] - game.sounds["GameOver2"][second_half]
    expect(abs(alone).max() < 0.01, "the song sounds on beside the jingle")
    game.press("Escape", window=hall)
    closed = time.monotonic()
    intro = game.hear("Intro", jingle)
    pause = game.recording.time_of(intro) - closed
    expect(abs(pause - 2) < LAG, f"the intro came {pause} s after the end of the game")
    new = game.hear("newGame", game.press("F2"))
    game.hear("SONG02", new, QUIET)
    game.wait(new + frames(1))
    expect(not game.sounds.place("Intro", game.recording.since(new)[frames(0.6):frames(1)]), "the intro sounds on")


def whole_game(program, stack, pause=0.6):
    """pause: seconds after the sound of a score; a key that is pressed before the counter has begun goes first."""
    game = Game(program, stack, f"BGMusicVolume={QUIET * 1000:.0f}\n")
    first_turn(game)
    other_turns(game, pause)
    end(game)
    game.leave()
    return game


def make_songs(folder):
    """Noise, every moment of which is unlike the others. The third one lasts."""
    for seed, (name, seconds) in enumerate({"First": 2, "Second": 2, "Third": 20}.items()):
        noise = np.random.default_rng(seed).normal(0, 3000, frames(seconds)).clip(-9000, 9000).astype("<i2")
        lame = ["lame", "--quiet", "-r", "-s", str(RATE / 1000), "-m", "m", "-b", "320", "-", folder / f"{name}.mp3"]
        subprocess.run(lame, input=noise.tobytes(), stderr=subprocess.DEVNULL, check=True)
    (folder / "SONG01.mp3").symlink_to("First.mp3")
    (folder / "SONG02.mp3").symlink_to("Second.mp3")


def songs_alternate(game, songs):
    first = game.hear("First", 0)
    second = game.hear("Second", first)
    (songs / "SONG01.mp3").unlink()
    (songs / "SONG01.mp3").symlink_to("Third.mp3")
    third = game.hear("Third", second)
    for begin, name, then in ((first, "First", second), (second, "Second", third)):
        pause = (then - begin - len(game.sounds[name])) / RATE
        expect(-0.1 < pause < 0.5 + LAG, f"{pause} s passed between the end of the {name} song and the next one")


def expect_volume(game, volume, seconds):
    """Soon after now the third song, and nothing else, has this volume. Returns the frame from which on it has."""
    begin, now = len(game.recording), time.monotonic()
    step, loudness = frames(0.05), game.sounds["Third"].std()

    def reached():
        samples = game.recording.since(begin)
        steps = samples[:len(samples) // step * step].reshape(-1, step).std(axis=1) / loudness
        return [begin + step * int(at) for at in np.flatnonzero(abs(steps - volume) < 0.06)]

    frame = wait_for(f"the volume {volume}", reached)[0]
    passed = game.recording.time_of(frame) - now
    expect(passed < seconds + LAG, f"the volume {volume} came after {passed} s")
    return frame


def slider_is_heard(game):
    game.press("ctrl+o")
    options = game.window("^Options$")
    game.press(*["shift+Tab"] * 4, window=options)
    for keys, volume in ((["Home"], 0), (["End"], 1), (["Next"] * 5, 0.5)):
        game.press(*keys, window=options)
        expect_volume(game, volume, 0.5)
    game.press("Return", window=options)


def place_in_third(game):
    """The frames of the recording and of the third song that sound now."""
    begin = len(game.recording) - frames(0.1)
    place = game.sounds.place("Third", game.recording.since(begin)[:frames(0.1)])
    expect(place, "something else than the third song sounds")
    return begin, place[0]


def minimising_pauses(game):
    """Until after the device has closed."""
    begin, before = place_in_third(game)
    game.screen.xdotool("windowminimize", game.table)
    silence = expect_volume(game, 0, 0.5)

    def closes():
        length = len(game.recording)
        time.sleep(0.5)
        return len(game.recording) == length

    wait_for("the device to close", closes)
    expect(not game.recording.since(silence + frames(0.1)).any(), "a song sounds in the minimised window")
    closed = len(game.recording)
    game.screen.xdotool("windowactivate", "--sync", game.table)
    game.wait(closed + frames(0.3))
    end, after = place_in_third(game)
    silent = (game.recording.since(begin)[:end - begin] == 0).sum()
    skipped = (after - before - (end - begin - silent)) / RATE
    expect(abs(skipped) < 0.05, f"{skipped} s of the song passed in the minimised window")


def menu_switches(game):
    game.press("F10", "Right", "Up", "Return")
    silence = expect_volume(game, 0, 0.5)
    time.sleep(0.7)
    expect(not game.recording.since(silence + frames(0.1)).any(), "a song sounds with music off")
    game.hear("Second", game.press("F10", "Right", "Up", "Up", "Return"), volume=0.5)


def music(program, stack):
    songs = pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory(prefix="lucky-cup-")))
    make_songs(songs)
    game = Game(program, stack, "SoundEnabled=False\nBGMusicVolume=1000\n", songs, window_manager=True)
    songs_alternate(game, songs)
    roll = game.press("Return")
    slider_is_heard(game)
    minimising_pauses(game)
    menu_switches(game)
    expect(not game.sounds.beginnings("rollAll", game.recording.since(roll)), "a roll sounds with sounds off")
    game.leave()


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program", type=lambda path: pathlib.Path(path).resolve())
    parser.add_argument("what", choices=("game", "music"))
    parser.add_argument("--picture", help="of the game")
    options = parser.parse_args()
    with contextlib.ExitStack() as stack:
        try:
            if options.what == "music":
                music(options.program, stack)
            elif not options.picture:
                whole_game(options.program, stack)
            else:
                from heard_picture import draw  # needs more than a test does

                draw(whole_game(options.program, stack, pause=2.3), options.picture)
        except (RuntimeError, TimeoutError) as error:
            sys.exit(f"heard: {error}")


if __name__ == "__main__":
    main()
