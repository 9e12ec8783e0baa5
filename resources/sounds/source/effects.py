#!/usr/bin/python3
"""Renders the effects into the folder named: ivory dice, a small wooden cup, a table with a felt cloth.

Every body is struck and rings: each of its modes is a sine that dies away, and the touch is a short breath of noise.
The few tones are bars of wood tuned to the scale of F, in which the music is at home too.
"""

import sys
from pathlib import Path

import numpy as np

from audio import RATE, loudness, write

CEILING = 10 ** (-1.1 / 20)
F4, A4, C5, F5, A5, C6 = 349.2, 440.0, 523.3, 698.5, 880.0, 1046.5


def seconds(duration):
    return np.arange(int(duration * RATE)) / RATE


def ring(modes, touch=0.0006):
    """Modes are (Hz, seconds to fall to a third, amplitude); the touch rounds the attack off."""
    time = seconds(6 * max(decay for _, decay, _ in modes))
    body = sum(level * np.sin(2 * np.pi * hertz * time) * np.exp(-time / decay) for hertz, decay, level in modes)
    return body * (1 - np.exp(-time / touch))


def noise(random, duration, low, high):
    """Noise between two frequencies, with soft shoulders, of mean power 1."""
    size = int(duration * RATE)
    hertz = np.fft.rfftfreq(size, 1 / RATE)
    shape = 1 / (1 + (low / np.maximum(hertz, 1)) ** 4) / (1 + (hertz / high) ** 4)
    sound = np.fft.irfft(np.fft.rfft(random.standard_normal(size)) * shape, size)
    return sound / np.sqrt(np.mean(sound**2))


def breath(random, decay, low, high):
    time = seconds(7 * decay)
    return noise(random, 7 * decay, low, high) * np.exp(-time / decay) * (1 - np.exp(-time / 0.0005))


def mixed(*sounds):
    longest = max(map(len, sounds))
    return sum(np.pad(sound, (0, longest - len(sound))) for sound in sounds)


def die_on_felt(random):
    """The cloth takes most of the ivory's ring; the table below answers."""
    size = random.uniform(0.93, 1.07)
    ivory = ring([(2050 * size, 0.006, 0.46), (3300 * size, 0.004, 0.22), (4900 * size, 0.002, 0.08)])
    table = ring([(170 * size, 0.018, 0.22), (330 * size, 0.014, 0.26), (610 * size, 0.009, 0.24)], 0.001)
    return mixed(ivory, table, 0.16 * breath(random, 0.004, 300, 2600))


def die_on_die(random):
    size = random.uniform(0.90, 1.10)
    ivory = ring([(1850 * size, 0.008, 0.34), (2900 * size, 0.005, 0.20), (4300 * size, 0.003, 0.07)])
    return mixed(ivory, 0.10 * breath(random, 0.002, 900, 4500))


def cup_knock(random, size=1.0):
    """A larger size sounds deeper."""
    wood = ring([(410 / size, 0.030, 0.5), (905 / size, 0.018, 0.3), (1490 / size, 0.010, 0.16)], 0.0008)
    return mixed(wood, ring([(150 / size, 0.030, 0.3)], 0.002), 0.12 * breath(random, 0.004, 250, 2200))


def bar(hertz, decay=0.22):
    """A bar of rosewood under a soft mallet, cut below so that its second mode is two octaves up."""
    return ring([(hertz, decay, 0.6), (3.98 * hertz, decay / 5, 0.10), (9.2 * hertz, decay / 16, 0.02)], 0.0015)


def slide(random, duration, low, high):
    """A die drawn over the cloth; the noise moves from the low to the high frequency."""
    place = np.linspace(0, 1, int(duration * RATE))
    dark, light = (noise(random, duration, hertz, 1.8 * hertz) for hertz in (low, high))
    return 0.10 * (dark * (1 - place) + light * place) * np.sin(np.pi * place) ** 1.2


class Scene:
    """Sounds laid at their moments, in seconds, and places from -1, left, to 1, right."""

    def __init__(self, duration, seed):
        self.samples = np.zeros((int(duration * RATE), 2))
        self.random = np.random.default_rng(seed)

    def lay(self, moment, sound, level=1.0, place=0.0):
        start = int(moment * RATE)
        sound = level * sound[: len(self.samples) - start]
        angle = (place + 1) * np.pi / 4
        self.samples[start : start + len(sound)] += np.outer(sound, [np.cos(angle), np.sin(angle)])

    def scatter(self, moments, strike, levels=(0.5, 1.0), width=0.5):
        for moment in moments:
            self.lay(moment, strike(self.random), self.random.uniform(*levels), self.random.uniform(-width, width))

    def moments(self, count, start, end, gap):
        """That many moments from the start on, in a random rhythm, none nearer to the next than the gap."""
        free = np.sort(self.random.uniform(0, end - start - gap * (count - 1), count))
        return start + free - free[0] + gap * np.arange(count)


def roll_all():
    scene = Scene(0.66, 11)
    scene.lay(0, slide(scene.random, 0.5, 350, 900), 0.5)
    scene.scatter(scene.moments(9, 0.002, 0.25, 0.018), die_on_die, (0.35, 0.7))
    scene.scatter(scene.moments(10, 0.27, 0.54, 0.020), die_on_felt, (0.6, 1.1))
    return scene


def roll_some():
    scene = Scene(0.64, 22)
    scene.lay(0, slide(scene.random, 0.5, 350, 800), 0.5)
    scene.lay(0.004, die_on_die(scene.random), 0.6, -0.2)
    scene.scatter(scene.moments(5, 0.13, 0.54, 0.045), die_on_felt, (0.6, 1.1), 0.4)
    return scene


def roll_one():
    scene = Scene(0.60, 33)
    scene.lay(0, slide(scene.random, 0.46, 420, 800), 0.6)
    scene.lay(0.44, die_on_felt(scene.random), 1.0, 0.1)
    return scene


def hold_dice():
    scene = Scene(0.110, 44)
    scene.lay(0.001, cup_knock(scene.random, 0.94), 0.8)
    scene.lay(0.001, die_on_felt(scene.random), 0.5)
    return scene


def unhold_dice():
    scene = Scene(0.110, 55)
    scene.lay(0.001, cup_knock(scene.random, 0.704), 0.8)
    scene.lay(0.001, die_on_felt(scene.random), 0.4)
    return scene


def lucky_cup():
    scene = Scene(2.4, 66)
    scene.scatter(scene.moments(16, 0.002, 0.55, 0.020), die_on_die, (0.5, 0.9))
    scene.lay(0.62, cup_knock(scene.random, 1.2), 1.2)
    for step, hertz in enumerate((F4, A4, C5, F5, A5, C6)):
        scene.lay(0.62 + 0.09 * step, bar(hertz, 0.35), 0.8, 0.12 * step - 0.3)
    for hertz, place in ((F4, -0.3), (A4, 0.3), (C5, 0.0), (F5, 0.1)):
        scene.lay(1.26, bar(hertz, 0.32), 0.55, place)
    return scene


def score():
    scene = Scene(0.36, 77)
    scene.lay(0.001, cup_knock(scene.random, 0.9), 0.4)
    scene.lay(0.001, bar(C5, 0.10), 0.8, -0.1)
    scene.lay(0.085, bar(F5, 0.12), 0.8, 0.1)
    return scene


def score_zero():
    scene = Scene(0.34, 88)
    scene.lay(0.001, cup_knock(scene.random, 1.1), 0.8)
    scene.lay(0.001, bar(F4, 0.04), 0.5)
    scene.lay(0.120, cup_knock(scene.random, 1.4), 0.7)
    scene.lay(0.120, bar(C5 / 2, 0.05), 0.6)
    return scene


def announce():
    scene = Scene(0.70, 99)
    for moment in (0.001, 0.13):
        scene.lay(moment, cup_knock(scene.random), 0.8, -0.1)
    scene.lay(0.26, bar(C5, 0.13), 0.8, 0.1)
    scene.lay(0.26, bar(F4, 0.13), 0.5, -0.1)
    return scene


def hint():
    scene = Scene(0.55, 110)
    for moment, hertz, place in ((0.001, A4, -0.2), (0.10, C5, 0.0), (0.20, A5, 0.2)):
        scene.lay(moment, bar(hertz, 0.10), 0.6, place)
    return scene


def new_game():
    scene = Scene(1.25, 121)
    scene.scatter(scene.moments(9, 0.002, 0.36, 0.022), die_on_die, (0.5, 0.9))
    scene.lay(0.44, cup_knock(scene.random, 1.4), 1.2)
    for step, hertz in enumerate((F4, C5, F5)):
        scene.lay(0.44 + 0.11 * step, bar(hertz, 0.16), 0.7, 0.2 * step - 0.2)
    return scene


def undo():
    scene = Scene(0.34, 132)
    scene.lay(0, slide(scene.random, 0.20, 1300, 350), 1.3, 0.2)
    scene.lay(0.19, cup_knock(scene.random, 1.15), 0.7, -0.2)
    return scene


def redo():
    scene = Scene(0.34, 143)
    scene.lay(0, slide(scene.random, 0.20, 350, 1300), 1.3, -0.2)
    scene.lay(0.19, cup_knock(scene.random, 0.8), 0.7, 0.2)
    return scene


def counter_runs():
    """A wheel of wood, a tooth every 50 ms. The longest count is one of 165 points at 10 ms each, and painting."""
    scene = Scene(2.5, 154)
    for tooth in range(49):
        moment = 0.001 + 0.05 * tooth + scene.random.uniform(0, 0.003)
        scene.lay(moment, cup_knock(scene.random, (0.62, 0.70)[tooth % 2]), 0.5, (-0.1, 0.1)[tooth % 2])
    return scene


def counter_stops():
    scene = Scene(0.32, 165)
    scene.lay(0.001, cup_knock(scene.random, 0.85), 0.7)
    scene.lay(0.001, bar(F5, 0.08), 0.45)
    return scene


def clap(random):
    """Two hollow palms: a dull pocket of air, and a little skin."""
    size = random.uniform(0.75, 1.3)
    return mixed(
        0.30 * breath(random, 0.012, 500 * size, 1100 * size),
        0.14 * breath(random, 0.006, 1200 * size, 2400 * size),
    )


def applause():
    """Fourteen people who each keep a pace of their own, and stop one after the other."""
    scene = Scene(2.9, 176)
    for _ in range(14):
        pace = scene.random.uniform(0.17, 0.26)
        distance = scene.random.uniform(0.35, 1.0)
        place = scene.random.uniform(-0.8, 0.8)
        moment = scene.random.uniform(0, 0.25)
        end = scene.random.uniform(1.5, 2.7)
        while moment < end:
            fade = min(1.0, (2.85 - moment) / 1.2)
            scene.lay(moment, clap(scene.random), distance * fade * scene.random.uniform(0.7, 1.0), place)
            moment += pace * scene.random.uniform(0.9, 1.1)
    scene.lay(0, clap(scene.random), 0.8)
    return scene


def draw():
    """The same call from either side, and both together."""
    scene = Scene(2.2, 187)
    for moment, place in ((0.001, -0.6), (0.50, 0.6)):
        scene.lay(moment, cup_knock(scene.random, 1.1), 0.6, place)
        scene.lay(moment, bar(F4, 0.20), 0.7, place)
        scene.lay(moment + 0.16, bar(C5, 0.20), 0.7, place)
    scene.lay(1.0, cup_knock(scene.random, 1.3), 0.8)
    for hertz, place in ((F4, -0.6), (C5, 0.6), (F4 / 2, 0.0)):
        scene.lay(1.0, bar(hertz, 0.30), 0.6, place)
    return scene


# Each effect with its momentary loudness in LUFS. What sounds most often is softest.
EFFECTS = {
    "rollAll": (roll_all, -16.5),
    "rollSome": (roll_some, -17.5),
    "rollOne": (roll_one, -19.0),
    "holdDice": (hold_dice, -20.5),
    "UnHoldDice": (unhold_dice, -20.5),
    "LuckyCup": (lucky_cup, -15.0),
    "score": (score, -17.5),
    "scoreZero": (score_zero, -19.0),
    "announce": (announce, -17.5),
    "hint": (hint, -18.5),
    "newGame": (new_game, -17.0),
    "undo": (undo, -19.0),
    "redo": (redo, -19.0),
    "counter7": (counter_runs, -20.0),
    "counter0": (counter_stops, -18.5),
    "applause": (applause, -16.0),
    "draw": (draw, -16.5),
}


def in_a_room(samples):
    """Two walls near by and no more: dry."""
    result = samples.copy()
    for delay, level in ((0.007, 0.16), (0.013, 0.10)):
        shift = int(delay * RATE)
        result[shift:] += level * samples[:-shift, ::-1]
    return result


def mastered(samples, target):
    """At the loudness asked for, with rounded peaks under the ceiling, and a clean end."""
    samples = in_a_room(samples)
    tail = int(min(0.25 * len(samples), 0.06 * RATE))
    samples[-tail:] *= np.cos(np.linspace(0, np.pi / 2, tail))[:, np.newaxis] ** 2
    result = samples
    for _ in range(4):
        samples = samples * 10 ** ((target - loudness(result).momentary) / 20)
        result = np.where(
            np.abs(samples) < CEILING / 2,
            samples,
            np.sign(samples) * CEILING / 2 * (1 + np.tanh(2 * np.abs(samples) / CEILING - 1)),
        )
    return result


for name, (make, target) in EFFECTS.items():
    write(Path(sys.argv[1]) / f"{name}.WAV", mastered(make().samples, target))
