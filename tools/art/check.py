"""Looks the finished files over: what the program relies on is asserted here."""

import dsp
import png
from skins import CAP, SCALES, SKINS, TOP_WIDTH

SOUNDS = {"cd1min", "cd3min", "cd5min", "godlike", "roger", "wclose", "wopen", "nasty",
          "ladvance", "boom", "bigselect"}
SOUND_BYTES = range(8_000, 61_441)
# The program leaves this long for its farewell before it ends.
FAREWELL_SECONDS = 1.7
BACKGROUND_BYTES = 250_000
# Logical rows of a top plate that a title may cover, and the contrast it needs.
TITLE_ROWS = range(7, 25)
CONTRAST = 7.0


def check(resources):
    assert {path.stem for path in (resources / "sounds").iterdir()} == SOUNDS
    for name in sorted(SOUNDS):
        _sound(resources / "sounds" / f"{name}.wav")
    assert (resources / "pictures" / "main.png").stat().st_size < BACKGROUND_BYTES
    for skin in SKINS:
        for scale, mark in SCALES:
            _frame(resources / "pictures", f"{skin.suffix}{mark}.png", scale, skin.title)


def _sound(path):
    samples, size = dsp.read(path), path.stat().st_size
    peak = max(abs(value) for value in samples)
    level = dsp.loudness(samples)
    print(f"{path.name:14} {size:6} bytes {len(samples) / dsp.RATE:5.2f} s"
          f"  peak {peak:.2f}  level {level:.3f}")
    assert size == 44 + 2 * len(samples) and size in SOUND_BYTES
    assert not any(samples[-dsp.seconds(dsp.SILENCE):])
    assert peak < dsp.CEILING + 0.01 and abs(level / dsp.LOUDNESS - 1) < 0.12
    assert path.stem != "nasty" or len(samples) / dsp.RATE < FAREWELL_SECONDS


def _frame(folder, ending, scale, title):
    """Stretched parts are of one colour along the stretch, and a title can be read."""
    side = png.read(folder / f"sideimg{ending}")[3]
    assert len(set(side)) == 1
    bottom = _pixels(folder / f"btmimg{ending}")
    assert all(len(set(row)) == 1 for row in bottom)
    # One more column on either side, for a smooth stretch looks past its border.
    middle = [row[CAP * scale - 1:(TOP_WIDTH - CAP) * scale + 1]
              for row in _pixels(folder / f"topimg{ending}")]
    assert all(len(set(row)) == 1 for row in middle)
    for y in TITLE_ROWS:
        assert _contrast(_luminance(middle[y * scale][0]), _luminance(title)) >= CONTRAST


def _pixels(path):
    width, _, channels, rows = png.read(path)
    return [[row[i * channels:(i + 1) * channels] for i in range(width)] for row in rows]


def _luminance(colour):
    """The relative luminance of a colour in bytes."""
    parts = [value / 255 for value in colour[:3]]
    linear = [v / 12.92 if v <= 0.04045 else ((v + 0.055) / 1.055) ** 2.4 for v in parts]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def _contrast(first, second):
    return (max(first, second) + 0.05) / (min(first, second) + 0.05)
