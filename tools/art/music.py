"""The music of the examples, our own small pieces.

A piece is a list of voices; a voice is a line of "pitch:beats" words, with
r for a rest. It leaves either as a MIDI file or as rendered samples.
"""

import struct

from tone import RATE, add, faded, levelled, note, silence

STEPS = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
PLUCKED = ((1, 1.0), (2, 0.42), (3, 0.2), (4, 0.1))
SOFT = ((1, 1.0), (2, 0.18))
TICKS = 96  # MIDI ticks to the beat
GUITAR, STRINGS, BASS, FLUTE, HARP = 24, 48, 32, 73, 46


def key_of(name):
    """The MIDI key of a name such as F#4; C4 is 60."""
    sharp = name[1] == "#"
    return STEPS[name[0]] + sharp + 12 * (int(name[1 + sharp :]) + 1)


def read(line):
    """A voice as (start, beats, key) triples."""
    at, out = 0.0, []
    for word in line.split():
        name, beats = word.split(":")
        if name != "r":
            out.append((at, float(beats), key_of(name)))
        at += float(beats)
    return out


def broken(chords, pattern, beats):
    """A chord accompaniment: every chord's tones in the order of the pattern."""
    words = []
    for chord in chords.split():
        tones = chord.split(",")
        words += [f"{tones[int(p)]}:{beats}" for p in pattern]
    return " ".join(words)


def render(voices, tempo, ring=1.6, echo=0.28):
    """Samples of the piece with a light echo; ring is how long a tone sounds on."""
    beat, out = 60 / tempo, silence(0)
    for line, partials, gain in voices:
        for start, beats, key in read(line):
            pitch = 440 * 2 ** ((key - 69) / 12)
            add(out, note(beats * beat * ring + 0.35, pitch, partials, 0.006, 5), start * beat, gain)
    delay = round(0.21 * RATE)
    for n in range(delay, len(out)):
        out[n] += out[n - delay] * echo
    return levelled(faded(out, 0.6), 0.55)


def variable(number):
    """A MIDI length: seven bits to the byte, highest first."""
    parts = [number & 0x7F]
    while number := number >> 7:
        parts.append(number & 0x7F | 0x80)
    return bytes(reversed(parts))


def track(events):
    """Events are (tick, bytes); the times between them are worked out here."""
    body, now = b"", 0
    for tick, data in sorted(events, key=lambda e: e[0]):
        body += variable(tick - now) + data
        now = tick
    body += b"\x00\xff\x2f\x00"
    return b"MTrk" + struct.pack(">I", len(body)) + body


def voice_track(channel, instrument, volume, line):
    events = [(0, bytes((0xC0 | channel, instrument))), (0, bytes((0xB0 | channel, 91, 60)))]
    for start, beats, key in read(line):
        events.append((round(start * TICKS), bytes((0x90 | channel, key, volume))))
        # Released a little early, so that a repeated key sounds anew.
        events.append((round((start + beats) * TICKS) - 2, bytes((0x80 | channel, key, 0))))
    return track(events)


def midi(title, tempo, voices):
    """A MIDI file, one track to a voice: (instrument, volume, line)."""
    name = title.encode("ascii")
    head = [
        (0, b"\xff\x03" + variable(len(name)) + name),
        (0, b"\xff\x51\x03" + struct.pack(">I", round(60_000_000 / tempo))[1:]),
    ]
    tracks = [track(head)] + [voice_track(c, *v) for c, v in enumerate(voices)]
    return b"MThd" + struct.pack(">IHHH", 6, 1, len(tracks), TICKS) + b"".join(tracks)


def tide():
    """Ten seconds of slow water, for the photo album."""
    chords = "D3,A3,D4,F#4 B2,F#3,B3,D4 G2,D3,G3,B3 A2,E3,A3,C#4"
    melody = "F#5:1 E5:1 D5:2 r:1 C#5:1 D5:2 B4:1 D5:1 G5:2 F#5:1 E5:3"
    return render([(broken(chords, "01232123", 0.5), PLUCKED, 0.5), (melody, SOFT, 0.5)], 96)


def welcome():
    """A short bright greeting."""
    return render([("C4:0.5 G4:0.5 C5:0.5 E5:0.5 G5:0.5 E5:0.5 C6:2", PLUCKED, 0.6), ("C3:1 E3:1 G3:1 C3:1.5", SOFT, 0.5)], 150)


def strings_sound():
    """What the five strings of the video play: one pluck to the beat, five seconds."""
    return render([("E3:1 B3:1 E4:1 G#4:1 B4:1 G#4:1 E4:1 B3:1 E3:1.5", PLUCKED, 0.6)], 115)


def first_light():
    chords = "C3,G3,C4,E4 A2,E3,A3,C4 F2,C3,F3,A3 G2,D3,G3,B3 " * 2 + "F2,C3,F3,A3 G2,D3,G3,B3 C3,G3,C4,E4 C3,G3,C4,E4"
    melody = (
        "r:4 E5:1.5 D5:0.5 C5:2 A4:1.5 C5:0.5 F5:2 E5:1 D5:3 "
        "G5:1.5 E5:0.5 C5:2 E5:1.5 C5:0.5 A4:2 C5:1.5 D5:0.5 F5:2 D5:1 B4:3 "
        "A4:1 C5:1 F5:2 E5:1 D5:1 B4:2 C5:6 r:2"
    )
    bass = "C2:4 A1:4 F1:4 G1:4 " * 2 + "F1:4 G1:4 C2:8"
    return midi("First light", 84, [(GUITAR, 74, broken(chords, "01232123", 0.5)), (FLUTE, 70, melody), (BASS, 66, bass)])


def quiet_street():
    chords = "A2,E3,C4 D3,A3,F4 E3,B3,G#4 A2,E3,C4 F2,C4,A4 D3,A3,F4 E3,B3,G#4 A2,E3,C4 " * 2
    melody = (
        "A4:1 B4:1 C5:1 D5:2 F5:1 E5:1 D5:1 B4:1 C5:3 C5:1 A4:1 F5:1 D5:2 A4:1 B4:1 C5:1 D5:1 A4:3 "
        "E5:2 A4:1 F5:2 D5:1 G#4:1 B4:1 E5:1 E5:2 C5:1 A5:2 F5:1 F5:1 E5:1 D5:1 C5:1 B4:1 G#4:1 A4:3"
    )
    return midi("Quiet street", 126, [(GUITAR, 70, broken(chords, "012", 1)), (STRINGS, 64, melody)])


def evening_round():
    tune = "G4:1 A4:1 B4:2 D5:1 B4:1 A4:2 C5:1 B4:1 A4:1 F#4:1 G4:4 "
    second = "B4:1 C5:1 D5:2 E5:1 D5:1 C5:2 A4:1 G4:1 F#4:1 A4:1 B4:4 "
    floor = "G2,D3,G3,B3 D3,A3,D4,F#4 D3,A3,D4,F#4 G2,D3,G3,B3 " * 4
    return midi(
        "Evening round", 100,
        [
            (HARP, 72, tune + second + tune + second),
            (STRINGS, 54, "r:16 " + tune + second + tune),
            (GUITAR, 56, broken(floor, "02130213", 0.5)),
        ],
    )
