"""Reads a lead sheet in ABC notation: one tune, in parts, with chord symbols and at most a second voice."""

import re
from typing import NamedTuple

NATURAL = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
KEYS = {"C": {}, "F": {"B": -1}}
QUALITIES = {
    "": (0, 4, 7),
    "m": (0, 3, 7),
    "6": (0, 4, 7, 9),
    "m6": (0, 3, 7, 9),
    "7": (0, 4, 7, 10),
    "m7": (0, 3, 7, 10),
    "maj7": (0, 4, 7, 11),
    "m7b5": (0, 3, 6, 10),
}
TOKEN = re.compile(r'"([A-G])([b#]?)([^"]*)"|([_^=]?)([A-Ga-gzZ])([,\']*)(\d*)(-?)|(\|)|(\S)')


class Note(NamedTuple):
    beat: float  # from the start of the part, in quarters
    length: float
    pitch: int  # as in MIDI, 60 is middle C
    velocity: int = 80


class Chord(NamedTuple):
    beat: float
    root: int  # 0 to 11, from C
    tones: tuple  # from 0 to 11, from C, the root first


class Part:
    def __init__(self):
        self.voices = {1: [], 2: []}
        self.chords = []
        self.beats = 0.0

    def chord_at(self, beat):
        return [chord for chord in self.chords if chord.beat <= max(beat, 0)][-1]


class Sheet:
    def __init__(self, path):
        self.parts = {}
        part = None
        with open(path) as file:
            for line in file.read().splitlines():
                if line[1:2] == ":":
                    if line[0] == "P":
                        part = self.parts[line[2:]] = Part()
                        at = {1: 0.0, 2: 0.0}
                    elif line[0] == "M":
                        self.beats_a_bar = int(line[2])
                    elif line[0] == "Q":
                        self.tempo = int(line.partition("=")[2])
                    elif line[0] == "K":
                        self.key = KEYS[line[2:]]
                    continue
                voice = 2 if line.startswith("[V:2]") else 1
                at[voice] = self._read(re.sub(r"^\[V:.\]", "", line), part, voice, at[voice])
                part.beats = at[1]

    def _read(self, line, part, voice, beat):
        """Adds the music of a line, which ends with a bar, and gives the beat after it."""
        accidentals, bar, tied = {}, beat, False
        for root, bend, quality, sign, letter, octave, length, tie, bar_line, other in TOKEN.findall(line):
            if other:
                raise ValueError(f"not understood: {other} in {line}")
            if root:
                pitch = (NATURAL[root] + {"": 0, "b": -1, "#": 1}[bend]) % 12
                part.chords.append(Chord(beat, pitch, tuple((pitch + step) % 12 for step in QUALITIES[quality])))
            elif bar_line:
                if beat - bar != self.beats_a_bar:
                    raise ValueError(f"a bar of {beat - bar} beats in {line}")
                accidentals, bar = {}, beat
            else:
                duration = int(length or 1) / 2
                if letter == "Z":  # that many bars
                    duration = int(length or 1) * self.beats_a_bar
                    bar = beat + duration - self.beats_a_bar
                elif letter != "z":
                    place = letter + octave
                    if sign:
                        accidentals[place] = {"_": -1, "^": 1, "=": 0}[sign]
                    bent = accidentals.get(place, self.key.get(letter.upper(), 0))
                    height = 12 * (5 + letter.islower() + octave.count("'") - octave.count(","))
                    self._add(part.voices[voice], Note(beat, duration, height + NATURAL[letter.upper()] + bent), tied)
                tied = bool(tie)
                beat += duration
        return beat

    @staticmethod
    def _add(notes, note, tied):
        if tied:
            notes[-1] = notes[-1]._replace(length=notes[-1].length + note.length)
        else:
            notes.append(note)
