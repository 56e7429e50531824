"""The five-second film of the music evening: five strings that swing in time.

MPEG-1, which every player of the target platform knows without an extra codec.
"""

import pathlib
import subprocess
import tempfile

import backdrops
import scenes
from artlib import put
from music import strings_sound
from tone import save_wav

SIZE = (320, 240)
RATE = 25  # frames per second; MPEG-1 knows no rate below 23.976
SECONDS = 5
SWINGS = 4  # whole swings over the film, so that it repeats without a jump


def frames(folder):
    count = RATE * SECONDS
    for n in range(count):
        phase = SWINGS * n / count
        image = scenes.picture(lambda: backdrops.strings(phase), *SIZE, scale=1)
        image.convert("RGB").save(folder / f"{n:03}.png")


def film(path):
    with tempfile.TemporaryDirectory() as work:
        folder = pathlib.Path(work)
        frames(folder)
        save_wav(strings_sound(), folder / "sound.wav")
        out = folder / "film.mpg"
        command = [
            "ffmpeg", "-v", "error", "-threads", "1", "-framerate", str(RATE), "-i", str(folder / "%03d.png"),
            "-i", str(folder / "sound.wav"), "-t", str(SECONDS), "-af", f"afade=out:st={SECONDS - 0.6}:d=0.6",
            "-c:v", "mpeg1video", "-b:v", "400k", "-maxrate", "520k", "-bufsize", "320k", "-g", "12", "-bf", "0",
            "-pix_fmt", "yuv420p", "-c:a", "mp2", "-ar", "44100", "-ac", "1", "-b:a", "64k",
            "-flags:v", "+bitexact", "-flags:a", "+bitexact", "-fflags", "+bitexact", "-f", "mpeg", str(out),
        ]
        subprocess.run(command, check=True)
        put(path, out.read_bytes())
