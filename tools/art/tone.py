"""A small synthesiser: samples are floats, one channel, 22050 to the second."""

import io
import math
import random
import struct
import wave

from artlib import put

RATE = 22050


def silence(seconds):
    return [0.0] * round(seconds * RATE)


def note(seconds, pitch, partials=((1, 1.0),), attack=0.004, decay=5.0, bend=0.0):
    """A struck tone. decay is in time constants over the length, so higher
    partials die sooner; bend moves the pitch by that many octaves to the end."""
    count = round(seconds * RATE)
    out = []
    phase = 0.0
    for n in range(count):
        done = n / count
        phase += pitch * 2 ** (bend * done) / RATE
        level = min(1.0, n / RATE / attack)
        value = sum(a * math.exp(-decay * done * m**0.6) * math.sin(2 * math.pi * phase * m) for m, a in partials)
        out.append(level * value)
    return out


def hiss(seconds, colour, decay=6.0, attack=0.004, seed=1):
    """Noise through a one-pole filter that slides from colour[0] to colour[1], 0 dark to 1 bright."""
    noise = random.Random(seed)
    count = round(seconds * RATE)
    out, held = [], 0.0
    for n in range(count):
        done = n / count
        share = colour[0] + (colour[1] - colour[0]) * done
        held += share * (noise.uniform(-1, 1) - held)
        out.append(held * min(1.0, n / RATE / attack) * math.exp(-decay * done))
    return out


def add(base, extra, at=0.0, gain=1.0):
    """Mixes extra into base from the given second on, lengthening base as needed."""
    first = round(at * RATE)
    if len(base) < first + len(extra):
        base.extend([0.0] * (first + len(extra) - len(base)))
    for n, value in enumerate(extra):
        base[first + n] += value * gain
    return base


def faded(samples, seconds=0.008):
    """Ends in silence, so that playback stops without a click."""
    count = min(len(samples), round(seconds * RATE))
    for n in range(count):
        samples[-1 - n] *= n / count
    return samples


def levelled(samples, peak=0.6):
    top = max(abs(s) for s in samples) or 1.0
    return [s * peak / top for s in samples]


def save_wav(samples, path):
    """PCM, 16 bit, one channel."""
    out = io.BytesIO()
    with wave.open(out, "wb") as sound:
        sound.setnchannels(1)
        sound.setsampwidth(2)
        sound.setframerate(RATE)
        sound.writeframes(b"".join(struct.pack("<h", round(s * 32767)) for s in samples))
    put(path, out.getvalue())
