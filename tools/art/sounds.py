"""The twelve short sounds for the pointer passing over a button (60 to 250 ms)."""

from artlib import PROGRAM
from tone import RATE, add, faded, hiss, levelled, note, save_wav, silence

FOLDER = PROGRAM / "Sound" / "Mouse over"

BELL = ((1, 1.0), (2.76, 0.35), (5.4, 0.12))
WOOD = ((1, 1.0), (3.9, 0.3), (9.2, 0.08))
GLASS = ((1, 1.0), (2.32, 0.5), (4.25, 0.2))
STRING = ((1, 1.0), (2, 0.5), (3, 0.28), (4, 0.14), (5, 0.08))
ROUND = ((1, 1.0), (2, 0.12))


def tick():
    return add(note(0.06, 1900, WOOD, 0.001, 9), hiss(0.02, (0.9, 0.4), 8, 0.001), gain=0.3)


def click():
    return add(hiss(0.07, (0.7, 0.1), 10, 0.001, seed=4), note(0.05, 620, ROUND, 0.001, 8), gain=0.7)


def pop():
    return note(0.09, 380, ROUND, 0.003, 6, bend=1.1)


def drop():
    return note(0.16, 1250, ROUND, 0.004, 5, bend=-1.2)


def wood():
    return note(0.12, 540, WOOD, 0.001, 8)


def glass():
    return note(0.24, 1480, GLASS, 0.002, 6)


def bell():
    return note(0.25, 1047, BELL, 0.002, 5)


def pluck():
    return note(0.22, 440, STRING, 0.002, 6)


def rise():
    return add(note(0.10, 587, ROUND, 0.004, 4), note(0.14, 880, ROUND, 0.004, 5), at=0.06)


def fall():
    return add(note(0.10, 880, ROUND, 0.004, 4), note(0.14, 587, ROUND, 0.004, 5), at=0.06)


def harp():
    out = silence(0)
    for k, pitch in enumerate((523, 659, 784, 1047)):
        add(out, note(0.25 - 0.03 * k, pitch, STRING, 0.002, 6), at=0.03 * k, gain=0.8)
    return out[: round(0.25 * RATE)]


def breeze():
    return hiss(0.2, (0.03, 0.12), 2.5, 0.08, seed=9)


SOUNDS = (tick, click, pop, drop, wood, glass, bell, pluck, rise, fall, harp, breeze)


def make():
    for sound in SOUNDS:
        save_wav(levelled(faded(sound()), 0.5), FOLDER / f"{sound.__name__}.wav")


if __name__ == "__main__":
    make()
