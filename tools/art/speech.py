"""The spoken sounds: espeak-ng says the words, twice for body, and a little room is added."""

import subprocess
import tempfile
from dataclasses import dataclass
from pathlib import Path

import dsp

VOICE = "en-us"


@dataclass
class Line:
    name: str
    words: str
    pitch: int  # 0 to 99
    speed: int  # words per minute
    room: float


# The three announcements tell how long an extraction is likely to take.
LINES = (
    Line("cd1min", "one minute", 34, 150, 0.20),
    Line("cd3min", "three minutes", 34, 158, 0.20),
    Line("cd5min", "five minutes", 34, 158, 0.20),
    Line("godlike", "god like", 20, 135, 0.34),
    Line("nasty", "nasty!", 22, 130, 0.34),
)
RADIO = Line("roger", "roger", 45, 185, 0.0)


def sounds():
    for line in LINES:
        voice = dsp.mix((0, 1.0, _said(line, 0)), (0.006, 0.35, _said(line, -14)))
        yield line.name, dsp.roomy(voice, line.room)
    yield RADIO.name, _radio(_said(RADIO, 0))


def _said(line, lower):
    with tempfile.TemporaryDirectory() as folder:
        path = Path(folder) / "line.wav"
        subprocess.run(["espeak-ng", "-v", VOICE, "-p", str(line.pitch + lower),
                        "-s", str(line.speed), "-w", str(path), line.words], check=True)
        return dsp.trimmed(dsp.read(path))


def _radio(voice):
    """A narrow band, and the short blip of a released key."""
    narrow = dsp.highpass(dsp.highpass(dsp.lowpass(dsp.lowpass(voice, 3000), 3000), 420), 420)
    blip = dsp.faded(dsp.tone(0.05, lambda part: 1480), 0.005, 0.015)
    return dsp.mix((0, 3.0, narrow), (len(voice) / dsp.RATE + 0.02, 0.25, blip))
