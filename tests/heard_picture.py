"""The picture of a game that was heard: its waveform in lines, and what began where."""

import math

import numpy as np
from PIL import Image, ImageDraw, ImageFont

RATE = 44100
LINES = 6
WIDTH, WAVE, LABELS, MARGIN = 1560, 96, 50, 24
LEVEL = 16  # between labels above each other
PAPER, GROUND, INK, CLOTH = (250, 248, 242), "white", (40, 40, 40), (24, 96, 62)
DICE, BOX, COUNTER, PIECE = (160, 82, 20), (176, 24, 48), (36, 84, 170), (110, 60, 140)
LABEL, SECONDS = (ImageFont.truetype("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", size) for size in (12, 10))
SAID = {
    "rollAll": ("roll", DICE), "rollSome": ("roll some", DICE), "rollOne": ("roll one", DICE),
    "holdDice": ("hold", DICE), "UnHoldDice": ("let go", DICE),
    "score": ("score", BOX), "scoreZero": ("zero", BOX), "undo": ("undo", BOX),
    "counter7": ("counter", COUNTER), "counter0": ("counter ends", COUNTER),
    "SONG01": ("first song", PIECE), "SONG02": ("second song", PIECE), "Intro": ("intro", PIECE),
    "GameOver2": ("hall of fame", PIECE), "newGame": ("new game", PIECE),
}


def all_events(game):
    """What the game's player has listened for, and the counters, which begin when the sound of a score has ended."""
    events = set(game.heard)
    for name, at in game.heard:
        if name != "score":
            continue
        after = at + len(game.sounds["score"])
        for counter, seconds in (("counter7", 0.3), ("counter0", 2)):
            begins = game.sounds.beginnings(counter, game.recording.since(after)[:int(seconds * RATE)])
            events.update((counter, after + begin) for begin in begins[:1])
    return sorted(events, key=lambda event: event[1])


def draw_waveform(pen, samples, y):
    pen.rectangle([MARGIN, y, MARGIN + WIDTH, y + WAVE], fill=GROUND)
    for column, part in enumerate(np.array_split(samples, WIDTH)):
        x = MARGIN + column
        pen.line([(x, y + WAVE / 2 * (1 - part.max())), (x, y + WAVE / 2 * (1 - part.min()))], CLOTH)


def draw(game, path):
    events = all_events(game)
    line_frames = (events[-1][1] + 2 * RATE) // LINES
    samples = game.recording.since(0)[:line_frames * LINES]
    samples = samples / abs(samples).max()
    page = Image.new("RGB", (WIDTH + 2 * MARGIN, MARGIN + LINES * (LABELS + WAVE + MARGIN)), PAPER)
    pen = ImageDraw.Draw(page)

    def place(frame):
        """The line, and the point of the page at the head of its waveform."""
        line, rest = divmod(frame, line_frames)
        return line, MARGIN + rest * WIDTH / line_frames, MARGIN + LABELS + line * (LABELS + WAVE + MARGIN)

    for begin in range(0, len(samples), line_frames):
        draw_waveform(pen, samples[begin:begin + line_frames], place(begin)[2])
    for second in range(math.ceil(len(samples) / RATE)):
        _, x, y = place(second * RATE)
        pen.line([(x, y + WAVE), (x, y + WAVE + 4)], INK)
        pen.text((x, y + WAVE + 5), f"{second} s", INK, SECONDS, anchor="ma")
    ends = {}  # of the labels, by line and level
    for name, at in events:
        text, colour = SAID[name]
        line, x, y = place(at)
        level = next((level for level in range(3) if ends.get((line, level), 0) < x), 2)
        length = pen.textlength(text, LABEL)
        ends[line, level] = x + length + 10
        top = y - LEVEL * (level + 1)
        pen.line([(x, top + 2), (x, y + WAVE)], colour)
        pen.text((x + 3 if x + length < MARGIN + WIDTH else x - length - 3, top), text, colour, LABEL)
    page.quantize(64).save(path, optimize=True)
