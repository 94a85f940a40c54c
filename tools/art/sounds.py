"""All of the program's sounds."""

import dsp
import effects
import speech


def make(folder):
    for table in (speech.sounds(), effects.sounds()):
        for name, samples in table:
            dsp.write(folder / f"{name}.wav", samples)
