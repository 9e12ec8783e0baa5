"""The picture of a game that was heard: its waveform in lines, and what began where."""

import numpy as np
from PIL import Image, ImageDraw, ImageFont

RATE = 44100
LINE = 6  # seconds in a line
WIDTH, WAVE, LABELS, MARGIN = 1560, 96, 50, 24
PAPER, GROUND, INK, FAINT, CLOTH = (250, 248, 242), "white", (40, 40, 40), (200, 196, 186), (24, 96, 62)
FONT = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"
DICE, BOX, COUNTER, PIECE = (160, 82, 20), (176, 24, 48), (36, 84, 170), (110, 60, 140)
SAID = {
    "rollAll": ("roll", DICE), "rollSome": ("roll some", DICE), "rollOne": ("roll one", DICE),
    "holdDice": ("hold", DICE), "UnHoldDice": ("let go", DICE),
    "score": ("score", BOX), "scoreZero": ("zero", BOX), "undo": ("undo", BOX),
    "counter7": ("counter", COUNTER), "counter0": ("counter ends", COUNTER),
    "SONG01": ("first song", PIECE), "SONG02": ("second song", PIECE), "Intro": ("intro", PIECE),
    "GameOver2": ("hall of fame", PIECE), "newGame": ("new game", PIECE),
}


def events(game):
    """All that the game's player has listened for, and the counters, which began when the sound of a score had ended."""
    found = list(game.heard)
    for name, at in game.heard:
        if name != "score":
            continue
        after = at + len(game.sounds["score"])
        for counter, seconds in (("counter7", 0.3), ("counter0", 2)):
            heard = game.sounds.beginnings(counter, game.recording.since(after)[:int(seconds * RATE)])
            found += [(counter, after + begin) for begin in heard[:1]]
    return sorted(set(found), key=lambda event: event[1])


def waveform(pen, samples, x, y):
    middle = y + WAVE / 2
    pen.rectangle([x, y, x + WIDTH, y + WAVE], fill=GROUND)
    columns = int(WIDTH * len(samples) / (LINE * RATE))
    for column, part in enumerate(np.array_split(samples, max(columns, 1))):
        if len(part):
            pen.line([(x + column, middle - WAVE / 2 * part.max()), (x + column, middle - WAVE / 2 * part.min())], CLOTH)


def draw(game, path):
    samples = game.recording.since(0)
    samples = samples / abs(samples).max()
    lines = -(-len(samples) // (LINE * RATE))
    pitch = LABELS + WAVE + MARGIN
    page = Image.new("RGB", (WIDTH + 2 * MARGIN, MARGIN + lines * pitch), PAPER)
    pen = ImageDraw.Draw(page)
    font = ImageFont.truetype(FONT, 12)
    ends = {}
    for line in range(lines):
        y = MARGIN + line * pitch + LABELS
        waveform(pen, samples[line * LINE * RATE:(line + 1) * LINE * RATE], MARGIN, y)
        for second in range(LINE + 1):
            x = MARGIN + second * WIDTH // LINE
            pen.line([(x, y + WAVE), (x, y + WAVE + 4)], INK)
            pen.text((x, y + WAVE + 5), f"{line * LINE + second} s", INK, ImageFont.truetype(FONT, 10), anchor="ma")
    for name, at in events(game):
        text, colour = SAID[name]
        line, x = at // (LINE * RATE), MARGIN + at % (LINE * RATE) * WIDTH / (LINE * RATE)
        y = MARGIN + line * pitch + LABELS
        # On the lowest of three levels that is free.
        level = next((level for level in range(3) if ends.get((line, level), 0) < x), 2)
        length = pen.textlength(text, font)
        ends[line, level] = x + length + 10
        top = y - 16 * (level + 1)
        pen.line([(x, top + 2), (x, y + WAVE)], colour)
        pen.text((min(x + 3, MARGIN + WIDTH - length), top), text, colour, font)
    page.quantize(64).save(path, optimize=True)
