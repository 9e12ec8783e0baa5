#!/usr/bin/python3
"""Has the band play a lead sheet: music.py NAME FILE writes the piece to a MIDI file.

A piece names its players and its form: which parts follow one another, and what each player does in them.
"""

import random
import sys
from pathlib import Path
from typing import NamedTuple

import mido

from lead_sheet import Note, Sheet
from styles import *  # noqa: F403 every style

TICKS = 480  # a quarter
DRUM_CHANNEL = 9


class Player(NamedTuple):
    program: int  # of General MIDI, from 0
    volume: int  # 0 to 127
    pan: int = 64  # 0 is left, 127 right
    reverb: int = 40


class Piece(NamedTuple):
    sheet: str
    players: dict
    form: list  # of (part, {player: style})
    slowing: tuple = (0, 1.0)  # over how many last bars the tempo falls to which share


VIBES, GUITAR = Player(11, 127, 58, 50), Player(24, 90, 84)
BASS, KIT = Player(32, 102, 64, 20), Player(40, 122, 64, 30)

comping = {"guitar": strum(BOSSA), "bass": bossa_bass(), "kit": drums(BOSSA_DRUMS)}
turning = comping | {"kit": drums(BOSSA_DRUMS, BOSSA_FILL)}
swinging = {
    "guitar": strum([[(1, 0.4), (3, 0.4)]], velocity=50),
    "bass": walking_bass(),
    "kit": drums(SWING_DRUMS, BOSSA_FILL),
}
waltzing = {"guitar": strum(WALTZ), "bass": waltz_bass(), "kit": drums(WALTZ_DRUMS, WALTZ_FILL)}

PIECES = {
    "SONG01": Piece(
        "song01.abc",
        {
            "vibes": VIBES,
            "solo": Player(24, 108, 74, 50),
            "flute": Player(73, 84, 46, 60),
            "strings": Player(49, 74, 64, 70),
            "guitar": GUITAR,
            "bass": BASS,
            "kit": KIT,
        },
        [
            ("I", comping | {"vibes": tune(velocity=92), "kit": drums(SHAKER_ONLY, BOSSA_FILL)}),
            ("A", comping | {"vibes": tune(velocity=98)}),
            ("V", turning | {"vibes": tune(velocity=102)}),
            ("B", comping | {"vibes": tune(velocity=100), "strings": tune(2)}),
            ("A", turning | {"vibes": tune(velocity=100), "flute": below(58, 1)}),
            ("C", swinging | {"flute": tune(velocity=82), "vibes": pad(60, 52)}),
            ("S", turning | {"solo": tune(velocity=94), "strings": pad(57, 50)}),
            ("B", comping | {"flute": tune(velocity=82), "vibes": below(80), "strings": tune(2)}),
            (
                "A",
                turning | {"vibes": tune(velocity=102), "flute": tune(octaves=1, velocity=54), "strings": pad(57, 46)},
            ),
            (
                "K",
                comping
                | {
                    "vibes": tune(velocity=96),
                    "strings": pad(57, 44),
                    "guitar": strum(BALLAD),
                    "bass": slow_bass(),
                    "kit": drums([[(SHAKER, 40, *EIGHTHS)]] * 5 + [[(RIDE, 44, 0), (SWIRL, 44, 0)], []]),
                },
            ),
        ],
        slowing=(3, 0.72),
    ),
    "SONG02": Piece(
        "song02.abc",
        {
            "clarinet": Player(71, 72, 56, 50),
            "accordion": Player(21, 108, 76, 50),
            "cello": Player(42, 84, 44, 60),
            "piano": Player(0, 124, 70, 50),
            "guitar": GUITAR._replace(pan=88),
            "bass": BASS,
            "kit": KIT,
        },
        [
            ("I", waltzing | {"accordion": tune(velocity=84), "kit": drums(FAIR_DRUMS, WALTZ_FILL)}),
            ("A", waltzing | {"clarinet": tune()}),
            ("A", waltzing | {"clarinet": tune(velocity=88), "cello": tune(2, velocity=74)}),
            ("B", waltzing | {"piano": tune(velocity=104), "accordion": pad(57, 46)}),
            ("V", waltzing | {"clarinet": tune(velocity=84), "accordion": pad(57, 44), "cello": tune(2, velocity=72)}),
            ("C", {"accordion": tune(velocity=88), "piano": rolling(), "bass": slow_bass(), "kit": drums(FAIR_DRUMS)}),
            (
                "C",
                {
                    "accordion": tune(velocity=86),
                    "clarinet": tune(2, velocity=76),
                    "piano": rolling(velocity=52),
                    "bass": waltz_bass(),
                    "kit": drums(FAIR_DRUMS, WALTZ_FILL),
                },
            ),
            ("T", waltzing | {"piano": tune(velocity=100), "cello": pad(45, 56)}),
            (
                "A",
                waltzing
                | {
                    "clarinet": tune(velocity=88),
                    "piano": tune(octaves=1, velocity=70),
                    "cello": tune(2),
                    "accordion": pad(57, 44),
                },
            ),
            (
                "K",
                {
                    "clarinet": tune(velocity=84),
                    "accordion": below(64),
                    "cello": pad(48, 58),
                    "guitar": strum(WALTZ[:1]),
                    "bass": slow_bass(),
                    "kit": drums(FAIR_DRUMS),
                },
            ),
        ],
        slowing=(5, 0.62),
    ),
    "Intro": Piece(
        "intro.abc",
        {
            "vibes": VIBES,
            "piano": Player(0, 112, 72, 60),
            "strings": Player(49, 76, 64, 80),
            "bass": BASS,
            "kit": KIT,
        },
        [
            (
                "A",
                {
                    "vibes": tune(velocity=98),
                    "piano": rolling(velocity=58),
                    "strings": pad(57, 48),
                    "bass": slow_bass(),
                    "kit": drums([[(SWIRL, 54, 0, 2), (BRUSH, 54, 1, 3)]] * 9 + [[(RIDE, 50, 0)], []]),
                },
            ),
        ],
        slowing=(3, 0.7),
    ),
    "GameOver1": Piece(
        "game_over1.abc",
        {"clarinet": Player(71, 78, 58, 60), "vibes": VIBES, "guitar": GUITAR, "bass": BASS},
        [
            (
                "A",
                {
                    "clarinet": tune(velocity=84),
                    "vibes": below(80),
                    "guitar": strum(BALLAD, velocity=56, spread=0.05),
                    "bass": slow_bass(),
                },
            )
        ],
        slowing=(1, 0.85),
    ),
    "GameOver2": Piece(
        "game_over2.abc",
        {
            "trumpet": Player(56, 100, 56, 60),
            "horn": Player(60, 90, 76, 70),
            "vibes": VIBES,
            "strings": Player(48, 84, 64, 70),
            "bass": BASS,
            "timpani": Player(47, 104, 70, 60),
            "kit": KIT,
        },
        [
            (
                "A",
                {
                    "trumpet": tune(velocity=94),
                    "horn": tune(2, velocity=88),
                    "vibes": tune(octaves=1, velocity=92),
                    "strings": pad(57, 76),
                    "bass": slow_bass(),
                    "timpani": fixed((0, 1, 41, 96), (2, 1, 41, 100), (4, 1, 46, 92), (6, 1, 36, 96), (8, 2, 41, 108)),
                    "kit": drums(
                        [[(BRUSH, 70, 0, 0.5, 1, 1.5)], [(BRUSH, 74, 2, 2.5, 3, 3.25, 3.5, 3.75)], [(CRASH, 84, 0)]]
                    ),
                },
            )
        ],
        slowing=(1, 0.9),
    ),
}


def performed(piece, sheet, chance):
    """The notes of every player in beats from the start, as people play them: neither quite in time nor evenly."""
    notes = {player: [] for player in piece.players}
    start = 0.0
    for name, band in piece.form:
        part = sheet.parts[name]
        for player, style in band.items():
            for note in style(part, sheet.beats_a_bar):
                beat = start + note.beat + max(-0.03, min(0.03, chance.gauss(0.004, 0.010)))
                velocity = max(1, min(127, round(note.velocity + chance.gauss(0, 3.5))))
                notes[player].append(Note(max(0.0, beat), note.length, note.pitch, velocity))
        start += part.beats
    return notes, start


def track(channel, player, notes):
    control = [(7, player.volume), (10, player.pan), (91, player.reverb), (93, 0)]
    result = mido.MidiTrack([mido.Message("control_change", channel=channel, control=c, value=v) for c, v in control])
    result.insert(0, mido.Message("program_change", channel=channel, program=player.program))
    events, free = [], {}
    for note in sorted(notes, reverse=True):
        start = round(note.beat * TICKS)
        # One string or bar: a note ends where the next one of its pitch starts.
        end = start + round(note.length * TICKS)
        end = min(end, free.get(note.pitch, end))
        free[note.pitch] = start
        events += [(end, "note_off", note.pitch, 0), (start, "note_on", note.pitch, note.velocity)]
    now = 0
    for tick, kind, pitch, velocity in sorted(events):
        result.append(mido.Message(kind, channel=channel, note=pitch, velocity=velocity, time=tick - now))
        now = tick
    return result


def tempo_track(piece, sheet, beats):
    bars, share = piece.slowing
    slow = bars * sheet.beats_a_bar
    steps = [(0, 1.0)] + [(beats - left, 1 - (1 - share) * (1 - left / slow)) for left in range(slow, 0, -1)]
    result, now = mido.MidiTrack(), 0
    for beat, factor in steps:
        tempo = mido.bpm2tempo(sheet.tempo * factor)
        result.append(mido.MetaMessage("set_tempo", tempo=tempo, time=round(beat * TICKS) - now))
        now = round(beat * TICKS)
    return result


def main(name, path):
    piece = PIECES[name]
    sheet = Sheet(Path(__file__).with_name(piece.sheet))
    notes, beats = performed(piece, sheet, random.Random(name))
    file = mido.MidiFile(ticks_per_beat=TICKS)
    file.tracks.append(tempo_track(piece, sheet, beats))
    for channel, (player, settings) in enumerate(piece.players.items()):
        file.tracks.append(track(DRUM_CHANNEL if player == "kit" else channel, settings, notes[player]))
    file.save(path)


main(*sys.argv[1:])
