"""The frames of the borderless windows, in three skins.

A side bar is drawn out downwards, a bottom bar sideways, and a top plate between its two end
caps. Every row (of a side bar, every column) is one colour there, so no scale shows a seam.
"""

from dataclasses import dataclass

from draw import Canvas, blend, graded, linear, rectangle, rgb

# Logical pixels; each picture is saved once more at twice the size.
SIDE_WIDTH, BOTTOM_HEIGHT, TOP_HEIGHT = 12, 14, 32
CAP, TOP_WIDTH, BAR_LENGTH = 24, 64, 16
SCALES = ((1, ""), (2, "@2x"))
BLACK, WHITE = bytes(3), b"\xff" * 3


@dataclass
class Skin:
    suffix: str
    title: bytes  # the colour that the program writes titles in
    bar: list     # stops across half a side or bottom bar, from its edge to its middle
    metal: tuple  # upper and lower colour of the top plate's ground,
    plate: tuple  # of the place where the title stands,
    edge: tuple   # and of the bright line around that


SKINS = (
    Skin("", BLACK,
         bar=[(0.00, rgb("000000")), (0.16, rgb("000000")), (0.17, rgb("3c3c3c")),
              (0.60, rgb("b4b4b4")), (1.00, rgb("f7f7f7"))],
         metal=(rgb("3a3a3a"), rgb("0a0a0a")), plate=(rgb("fbfbfb"), rgb("bcbec2")),
         edge=(rgb("ffffff"), rgb("7d7f84"))),
    Skin("2", WHITE,
         bar=[(0.00, rgb("020824")), (0.16, rgb("020824")), (0.17, rgb("173a8a")),
              (0.60, rgb("4f86e0")), (1.00, rgb("b9deff"))],
         metal=(rgb("5c8fe2"), rgb("0c2266")), plate=(rgb("1d46a4"), rgb("0a1d58")),
         edge=(rgb("cfe8ff"), rgb("4f8cf0"))),
    Skin("3", WHITE,
         bar=[(0.00, rgb("160000")), (0.16, rgb("160000")), (0.17, rgb("560404")),
              (0.60, rgb("b01410")), (1.00, rgb("ff6a3a"))],
         metal=(rgb("8e1410"), rgb("260202")), plate=(rgb("860c0c"), rgb("3a0303")),
         edge=(rgb("ffb070"), rgb("e0281a"))),
)


def make(folder):
    for skin in SKINS:
        for scale, mark in SCALES:
            name = f"{skin.suffix}{mark}.png"
            _side(skin, scale).save(folder / f"sideimg{name}", opaque=True)
            _bottom(skin, scale).save(folder / f"btmimg{name}", opaque=True)
            _top(skin, scale).save(folder / f"topimg{name}", opaque=True)


def _across(skin, position, size):
    """A bar's colour at a place across it: both halves are alike, so either side can use it."""
    return graded(1 - abs(2 * position / size - 1), skin.bar)


def _side(skin, scale):
    width, height = SIDE_WIDTH * scale, BAR_LENGTH * scale
    canvas = Canvas(width, height)
    for x in range(width):
        canvas.fill(rectangle(x, 0, x + 1, height), _across(skin, x + 0.5, width))
    return canvas


def _bottom(skin, scale):
    width, height = BAR_LENGTH * scale, BOTTOM_HEIGHT * scale
    canvas = Canvas(width, height)
    for y in range(height):
        canvas.fill(rectangle(0, y, width, y + 1), _across(skin, y + 0.5, height))
    return canvas


def _top(skin, scale):
    canvas = Canvas(TOP_WIDTH * scale, TOP_HEIGHT * scale)
    _ground(canvas, skin, scale)
    _caps(canvas, skin, scale)
    _plate(canvas, skin, scale)
    return canvas


def _ground(canvas, skin, scale):
    height = canvas.height
    dark = skin.bar[0][1]
    canvas.fill(rectangle(0, 0, canvas.width, height), dark)
    metal = linear((0, scale), (0, height - scale), *skin.metal)
    canvas.fill(rectangle(scale, scale, canvas.width - scale, height - scale), metal)
    light = blend(skin.metal[0], skin.edge[0], 0.55)
    canvas.fill(rectangle(scale, scale, canvas.width - scale, 2 * scale), light)


def _caps(canvas, skin, scale):
    """Two facets on either end, the upper one lit."""
    for x, step in ((0, scale), (TOP_WIDTH * scale, -scale)):
        middle = canvas.height / 2
        upper = [(x + step, 2 * scale), (x + 12 * step, 2 * scale), (x + 3 * step, middle),
                 (x + step, middle)]
        lower = [(px, canvas.height - py) for px, py in upper]
        canvas.fill(upper, skin.edge[0][:3] + (0.34,))
        canvas.fill(lower, rgb("000000", 0.30))


def _hexagon(inset, scale):
    """The plate's outline, pointed at both ends, all of its slants within the caps."""
    left, right = (4 + inset) * scale, (TOP_WIDTH - 4 - inset) * scale
    top, foot = (3 + inset) * scale, (TOP_HEIGHT - 3 - inset) * scale
    slant, middle = (13 - inset) * 0.78 * scale, TOP_HEIGHT / 2 * scale
    return [(left, middle), (left + slant, top), (right - slant, top), (right, middle),
            (right - slant, foot), (left + slant, foot)]


def _plate(canvas, skin, scale):
    height = canvas.height
    canvas.fill(_hexagon(0, scale), skin.bar[0][1])
    for inset, colours in ((1, skin.edge), (2, skin.plate)):
        top = (3 + inset) * scale
        canvas.fill(_hexagon(inset, scale), linear((0, top), (0, height - top), *colours))
