"""What a player makes of a part of a lead sheet. Each style takes the part and the beats of a bar, and gives notes."""

from lead_sheet import Note

# The drums of General MIDI that are used, as the brush kit has them.
KICK, STICK, BRUSH, SWIRL, HAT, CRASH, RIDE, SHAKER, TRIANGLE = 36, 37, 38, 40, 42, 49, 51, 70, 81


def tune(voice=1, octaves=0, velocity=84):
    """A voice as it is written; the first beat of a bar leans a little, and so does a high note."""

    def play(part, bar):
        for note in part.voices[voice]:
            lean = 6 * (note.beat % bar == 0) + (note.pitch - 70) // 3
            yield Note(note.beat, 0.95 * note.length, note.pitch + 12 * octaves, velocity + lean)

    return play


def below(velocity=66, octaves=0):
    """A second part under the tune: the next tone of the chord that is a minor third or more lower."""

    def play(part, bar):
        for note in part.voices[1]:
            tones = part.chord_at(note.beat).tones
            pitch = next(pitch for pitch in range(note.pitch - 3, 0, -1) if pitch % 12 in tones)
            yield Note(note.beat, 0.95 * note.length, pitch + 12 * octaves, velocity)

    return play


def voiced(chord, lowest):
    """The tones of a chord within an octave from the lowest pitch on; the bass has the root of a rich chord."""
    tones = chord.tones if len(chord.tones) == 3 else chord.tones[1:]
    return sorted(lowest + (tone - lowest) % 12 for tone in tones)


def spans(part):
    """Every chord with the beat where it ends."""
    return zip(part.chords, [chord.beat for chord in part.chords[1:]] + [part.beats])


def pad(lowest=57, velocity=45):
    def play(part, bar):
        for chord, end in spans(part):
            for pitch in voiced(chord, lowest):
                yield Note(chord.beat, end - chord.beat, pitch, velocity)

    return play


def strum(rhythm, lowest=52, velocity=58, spread=0.02):
    """Chords in a rhythm: for each bar in turn a list of (beat, length).

    On the last eighth of a bar the next bar's chord comes early.
    """

    def play(part, bar):
        for start in range(0, int(part.beats), bar):
            for beat, length in rhythm[start // bar % len(rhythm)]:
                ahead = 0.5 if beat == bar - 0.5 and start + bar < part.beats else 0
                for string, pitch in enumerate(voiced(part.chord_at(start + beat + ahead), lowest)):
                    yield Note(start + beat + spread * string, length, pitch, velocity + 5 * (beat == 0))

    return play


BOSSA = [[(0, 1.2), (1.5, 1.2), (3, 0.8)], [(0.5, 1.2), (2, 1.2), (3.5, 0.4)]]
BALLAD = [[(0, 1.9), (2, 1.9)]]
WALTZ = [[(1, 0.7), (2, 0.7)]]


def rolling(lowest=55, velocity=56):
    """The chord broken into eighths, up and down again."""

    def play(part, bar):
        for step in range(int(2 * part.beats)):
            tones = voiced(part.chord_at(step / 2), lowest)
            order = tones + [tones[0] + 12] + tones[::-1][:-1]
            yield Note(step / 2, 1.1, order[step % (2 * bar) % len(order)], velocity + 6 * (step % (2 * bar) == 0))

    return play


def bass_pitch(tone, lowest=31):
    return lowest + (tone - lowest) % 12


def bossa_bass(velocity=84):
    """Root and fifth, each with a push before the next half of the bar."""

    def play(part, bar):
        for beat in range(0, int(part.beats), 2):
            chord, following = part.chord_at(beat), part.chord_at(beat + 2)
            fifth_now = beat % bar == 2 and chord.beat < beat
            pitch = bass_pitch(chord.tones[2 if fifth_now else 0])
            push = following if following != chord else chord
            yield Note(beat, 1.4, pitch, velocity)
            pushed = push.tones[2 if push is chord and not fifth_now else 0]
            yield Note(beat + 1.5, 0.45, bass_pitch(pushed), velocity - 16)

    return play


def walking_bass(velocity=84):
    """Quarters: the root, two tones of the chord, and a half step into the next root."""

    def play(part, bar):
        for chord, end in spans(part):
            root, target = bass_pitch(chord.root), bass_pitch(part.chord_at(end).root)
            for step in range(int(end - chord.beat)):
                inner = chord.tones[(0, 1, 2, 1)[step % 4]]
                pitch = root + (inner - chord.root) % 12
                if step and chord.beat + step + 1 == end < part.beats:
                    pitch = target + (1 if pitch > target else -1)
                yield Note(chord.beat + step, 0.9, pitch, velocity - 8 * (step % 2))

    return play


def slow_bass(velocity=80):
    def play(part, bar):
        for chord, end in spans(part):
            yield Note(chord.beat, 0.95 * (end - chord.beat), bass_pitch(chord.root), velocity)

    return play


def waltz_bass(velocity=84):
    """The root, and the fifth in every other bar of the same chord."""

    def play(part, bar):
        for start in range(0, int(part.beats), bar):
            chord = part.chord_at(start)
            second = (start - chord.beat) // bar % 2 == 1
            yield Note(start, 1.6, bass_pitch(chord.tones[2 if second else 0]), velocity)

    return play


def drums(pattern, fill=()):
    """Bars of (drum, velocity, beats...) in turn; the last bar of the part has the fill on top."""

    def play(part, bar):
        for start in range(0, int(part.beats), bar):
            lines = list(pattern[start // bar % len(pattern)])
            if start + bar == part.beats:
                lines += fill
            for drum, velocity, *beats in lines:
                for beat in beats:
                    yield Note(start + beat, 0.2, drum, velocity + (4 if beat % 1 == 0 else -6))

    return play


EIGHTHS = [half / 2 for half in range(8)]
BOSSA_DRUMS = [
    [(SHAKER, 40, *EIGHTHS), (STICK, 50, 0, 1.5, 3), (KICK, 46, 0, 1.5, 2, 3.5), (HAT, 40, 1, 3)],
    [(SHAKER, 40, *EIGHTHS), (STICK, 50, 1, 2.5), (KICK, 46, 0, 1.5, 2, 3.5), (HAT, 40, 1, 3)],
]
BOSSA_FILL = [(BRUSH, 64, 2.5, 3, 3.5)]
SHAKER_ONLY = [[(SHAKER, 40, *EIGHTHS)]]
SWING_DRUMS = [[(RIDE, 50, 0, 1, 1.5, 2, 3, 3.5), (HAT, 48, 1, 3), (BRUSH, 58, 1, 3), (KICK, 34, 0, 2)]]
WALTZ_DRUMS = [[(KICK, 58, 0), (BRUSH, 64, 1, 2)], [(KICK, 56, 0), (BRUSH, 64, 1, 2, 2.5)]]
WALTZ_FILL = [(BRUSH, 64, 0.5, 1.5, 2.5)]
FAIR_DRUMS = [[(TRIANGLE, 42, 0), (SHAKER, 50, 0, 1, 2)], [(SHAKER, 50, 0, 1, 1.5, 2)]]


def fixed(*notes):
    """Notes of their own, as (beat, length, pitch, velocity)."""
    return lambda part, bar: (Note(*note) for note in notes)
