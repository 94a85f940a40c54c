"""The small pictures that the store of skins keeps beside the frames."""

import gem
from draw import Canvas, linear, rectangle, rgb

BUTTON, TILE = 16, 22
INK = rgb("101418")
FACE_LIGHT, FACE_DARK = rgb("f2f4f6"), rgb("a4a9b0")
RIM = rgb("14181d")
GOOD, BAD = rgb("138a4a"), rgb("b3231c")


def make(folder):
    tray = Canvas(32, 32)
    gem.draw_small(tray, 32)
    tray.save(folder / "systraypic.png")
    _tile(gem.DEEP, gem.TABLE_FOOT).save(folder / "image4.png")
    _tile(gem.LIGHT, gem.BODY).save(folder / "image5.png")
    for name, glyph, ink in (("chno", _cross, BAD), ("chok", _tick, GOOD)):
        _button(False, glyph, ink).save(folder / f"{name}.png")
    for name, glyph in (("min", _bar), ("close", _cross)):
        _button(False, glyph, INK).save(folder / f"{name}up.png")
        _button(True, glyph, INK).save(folder / f"{name}dn.png")


def _tile(upper, lower):
    canvas, middle = Canvas(TILE, TILE), TILE / 2
    canvas.fill(gem.octagon(middle, middle, middle, 6), gem.RIM)
    canvas.fill(gem.octagon(middle, middle, middle - 1, 5.6), lower)
    canvas.fill(gem.octagon(middle, middle, middle - 4, 4), upper)
    return canvas


def _button(pressed, glyph, ink):
    canvas = Canvas(BUTTON, BUTTON)
    canvas.fill(gem.octagon(BUTTON / 2, BUTTON / 2, BUTTON / 2, 3), RIM)
    upper, lower = (FACE_DARK, FACE_LIGHT) if pressed else (FACE_LIGHT, FACE_DARK)
    face = gem.octagon(BUTTON / 2, BUTTON / 2, BUTTON / 2 - 1, 2.6)
    canvas.fill(face, linear((0, 1), (0, BUTTON - 1), upper, lower))
    glyph(canvas, 1 if pressed else 0, ink)
    return canvas


def _bar(canvas, shift, ink):
    canvas.fill(rectangle(4 + shift, 10 + shift, 12 + shift, 12 + shift), ink)


def _cross(canvas, shift, ink):
    low, high = 4.6 + shift, 11.4 + shift
    canvas.line((low, low), (high, high), 2, ink)
    canvas.line((low, high), (high, low), 2, ink)


def _tick(canvas, shift, ink):
    canvas.line((4 + shift, 8 + shift), (7.4 + shift, 11.4 + shift), 2, ink)
    canvas.line((6.7 + shift, 11.4 + shift), (12 + shift, 4.6 + shift), 2, ink)
