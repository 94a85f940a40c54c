"""The sounds without words: sweeps, chimes, a swell and a blast."""

from math import exp, pi, sin
from random import Random

import dsp


def sounds():
    yield "wopen", _sweep(330, 990)
    yield "wclose", _sweep(880, 262)
    yield "ladvance", _chimes((392.0, 493.9, 587.3, 784.0), 0.11, 0.46)
    yield "boom", _blast()
    yield "bigselect", _swell()


def _sweep(start, end):
    """A soft glide of two voices with air around it, for a window that grows or shrinks."""
    def glide(part):
        return start * (end / start) ** (part * part * (3 - 2 * part))

    def envelope(part):
        return sin(pi * part) ** 0.7 * (1 - 0.35 * part)

    low = dsp.shaped(dsp.tone(0.42, glide), envelope)
    high = dsp.shaped(dsp.tone(0.42, lambda part: 1.5 * glide(part)), envelope)
    air = dsp.shaped(dsp.highpass(dsp.lowpass(_noise(0.42, 3), 4500), 900), envelope)
    return dsp.roomy(dsp.mix((0, 0.7, low), (0, 0.35, high), (0, 0.16, air)), 0.22)


def _bell(pitch, length):
    """A struck tone: its higher partials die away sooner."""
    def partial(ratio, decay):
        return dsp.shaped(dsp.tone(length, lambda _: pitch * ratio),
                          lambda part: exp(-decay * part))
    struck = dsp.mix((0, 0.6, partial(1, 4)), (0, 0.25, partial(2, 6)),
                     (0, 0.12, partial(3.01, 9)), (0, 0.06, partial(5.4, 16)))
    return dsp.faded(struck, 0.002, 0.08)


def _chimes(pitches, step, length):
    """Notes that climb, the last one left to ring."""
    parts = [(number * step, 1.0, _bell(pitch, length))
             for number, pitch in enumerate(pitches[:-1])]
    parts.append((len(parts) * step, 1.1, _bell(pitches[-1], length * 1.25)))
    return dsp.roomy(dsp.mix(*parts), 0.16)


def _blast():
    """A falling thump under a burst of noise that grows dull."""
    thump = dsp.shaped(dsp.tone(0.75, lambda part: 38 + 110 * exp(-7 * part)),
                       lambda part: exp(-4.2 * part))
    crack = dsp.shaped(dsp.lowpass(_noise(0.25, 8), 3500), lambda part: exp(-7 * part))
    rumble = dsp.shaped(dsp.lowpass(dsp.lowpass(_noise(0.75, 9), 420), 420),
                        lambda part: exp(-4.5 * part))
    return dsp.roomy(dsp.mix((0, 1.0, thump), (0, 0.5, crack), (0, 2.2, rumble)), 0.25)


def _swell():
    """A chord that opens, with a bell at its height."""
    def envelope(part):
        return min(1.0, part / 0.28) ** 1.5 * (1 - part) ** 0.8

    def voice(pitch):
        return dsp.shaped(dsp.tone(0.95, lambda part: pitch, _reed, 0.003), envelope)

    chord = [(0.012 * number, 0.3, voice(pitch))
             for number, pitch in enumerate((130.8, 196.0, 261.6, 329.6))]
    soft = dsp.lowpass(dsp.mix(*chord), 2200)
    return dsp.roomy(dsp.mix((0, 1.0, soft), (0.24, 0.32, _bell(1046.5, 0.6))), 0.2)


def _reed(phase):
    return sin(phase) + 0.4 * sin(2 * phase) + 0.2 * sin(3 * phase) + 0.1 * sin(4 * phase)


def _noise(length, seed):
    chance = Random(seed)
    return [chance.uniform(-1, 1) for _ in range(dsp.seconds(length))]
