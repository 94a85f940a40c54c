"""Sound samples as lists of floats from -1 to 1, and what is done to them."""

import wave
from array import array
from math import exp, pi, sin, sqrt, tanh

RATE = 22050
# The player cuts a file's last tenth of a second; this much silence at the end is safe.
SILENCE = 0.2
CEILING = 0.85
LOUDNESS = 0.16


def seconds(count):
    return round(count * RATE)


def read(path):
    with wave.open(str(path)) as file:
        assert (file.getnchannels(), file.getsampwidth(), file.getframerate()) == (1, 2, RATE)
        return [value / 32768 for value in array("h", file.readframes(file.getnframes()))]


def write(path, samples):
    """Saves 16-bit mono after bringing it to the common loudness, silence at its end."""
    values = [round(32767 * value) for value in levelled(samples)]
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(array("h", values + [0] * seconds(SILENCE)).tobytes())


def mix(*parts):
    """Adds (start in seconds, gain, samples) up."""
    length = max(seconds(start) + len(samples) for start, _, samples in parts)
    out = [0.0] * length
    for start, gain, samples in parts:
        for i, value in enumerate(samples, seconds(start)):
            out[i] += gain * value
    return out


def loudness(samples):
    """The mean level of the parts that are not near silence."""
    step = seconds(0.02)
    powers = [sum(v * v for v in samples[i:i + step]) / step
              for i in range(0, len(samples), step)]
    heard = [power for power in powers if power > max(powers) / 100]
    return sqrt(sum(heard) / len(heard))


def levelled(samples):
    """Brings samples to the common loudness; peaks bend below the ceiling, none is cut."""
    gain, out = 1.0, samples
    for _ in range(6):
        gain *= LOUDNESS / loudness(out)
        out = [CEILING * tanh(value * gain / CEILING) for value in samples]
    return faded(out, 0.002, 0.03)


def faded(samples, rise, fall):
    """Ramps at both ends, so that neither clicks."""
    up, down = seconds(rise), seconds(fall)
    out = list(samples)
    for i in range(up):
        out[i] *= i / up
    for i in range(down):
        out[-1 - i] *= i / down
    return out


def trimmed(samples, floor=0.01):
    """Without the quiet before and after."""
    loud = [i for i, value in enumerate(samples) if abs(value) > floor]
    return samples[loud[0]:loud[-1] + 1]


def lowpass(samples, cutoff):
    part, held, out = 1 - exp(-2 * pi * cutoff / RATE), 0.0, []
    for value in samples:
        held += part * (value - held)
        out.append(held)
    return out


def highpass(samples, cutoff):
    return [value - low for value, low in zip(samples, lowpass(samples, cutoff))]


def roomy(samples, gain, delays=(0.029, 0.047, 0.071, 0.109)):
    """A few reflections, each duller and softer than the one before."""
    parts, echo = [(0, 1.0, samples)], samples
    for number, delay in enumerate(delays):
        echo = lowpass(echo, 3200)
        parts.append((delay, gain * 0.75 ** number, echo))
    return mix(*parts)


def tone(length, pitch, shape=sin, vibrato=0.0):
    """A tone whose pitch in hertz is a function of the part (0 to 1) that has passed."""
    count, phase, out = seconds(length), 0.0, []
    for i in range(count):
        wobble = 1 + vibrato * sin(2 * pi * 5.5 * i / RATE)
        phase += 2 * pi * pitch(i / count) * wobble / RATE
        out.append(shape(phase))
    return out


def shaped(samples, envelope):
    """Multiplies by a function of the part that has passed."""
    return [value * envelope(i / len(samples)) for i, value in enumerate(samples)]
