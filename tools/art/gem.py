"""The program's mark: a step-cut gem, seen from above, with a T cut into its table."""

from math import atan2, cos, pi

from draw import blend, grown, linear, rgb

DEEP, BODY, LIGHT = rgb("073a46"), rgb("12909a"), rgb("a8f7ea")
TABLE_TOP, TABLE_FOOT = rgb("0b3a49"), rgb("05202c")
CUT_TOP, CUT_FOOT, CUT_RIM = rgb("fff3cf"), rgb("ffb43c"), rgb("5a3206")
RIM = rgb("031a22")
LIGHT_FROM = -0.68 * pi

# Per small size, in pixels: the table's inset, then the T's top, foot, width, bar and stem.
SMALL = {
    16: (3, 4, 12, 8, 2, 2),
    22: (4, 6, 17, 10, 3, 4),
    24: (4, 6, 18, 12, 3, 4),
    32: (5, 8, 24, 14, 4, 4),
}


def octagon(cx, cy, half, corner):
    """Eight corners clockwise, from the left end of the top edge."""
    near = half - corner
    return [(cx - near, cy - half), (cx + near, cy - half), (cx + half, cy - near),
            (cx + half, cy + near), (cx + near, cy + half), (cx - near, cy + half),
            (cx - half, cy + near), (cx - half, cy - near)]


def letter(cx, top, width, height, bar, stem):
    """The outline of the T: its bar's and its stem's thickness are given apart."""
    left, right, half = cx - width / 2, cx + width / 2, stem / 2
    return [(left, top), (right, top), (right, top + bar), (cx + half, top + bar),
            (cx + half, top + height), (cx - half, top + height), (cx - half, top + bar),
            (left, top + bar)]


def facet_colour(angle, tier):
    """A facet's colour by the way it faces; inner tiers lie flatter and differ less."""
    towards = cos(angle - LIGHT_FROM) * (1.0 if tier == 0 else 0.62)
    if towards >= 0:
        return blend(BODY, LIGHT, towards * 0.85)
    return blend(BODY, DEEP, -towards * 0.9)


def _ring(canvas, outer, inner, tier):
    """The ring of eight facets between two octagons."""
    cx = sum(x for x, _ in outer) / 8
    cy = sum(y for _, y in outer) / 8
    for i in range(8):
        j = (i + 1) % 8
        angle = atan2((outer[i][1] + outer[j][1]) / 2 - cy, (outer[i][0] + outer[j][0]) / 2 - cx)
        canvas.fill(grown([outer[i], outer[j], inner[j], inner[i]]), facet_colour(angle, tier))


def draw(canvas, cx, cy, half):
    """The full mark, two tiers of facets, for sizes from about 40 pixels up."""
    rings = [octagon(cx, cy, half * size, half * size * corner)
             for size, corner in ((0.95, 0.56), (0.78, 0.55), (0.60, 0.52))]
    canvas.fill(octagon(cx, cy, half, half * 0.57), RIM)
    _ring(canvas, rings[0], rings[1], 0)
    _ring(canvas, rings[1], rings[2], 1)
    _table(canvas, rings[2], half)
    _edges(canvas, rings, half)
    _cut(canvas, cx, cy, half)


def _table(canvas, ring, half):
    top, foot = ring[0][1], ring[4][1]
    canvas.fill(ring, linear((0, top), (0, foot), TABLE_TOP, TABLE_FOOT))
    gleam = [ring[7], ring[0], ring[1], (ring[1][0] - half * 0.55, foot - half * 0.38)]
    canvas.fill(gleam, rgb("7fe9e0", 0.10))


def _edges(canvas, rings, half):
    """Thin lights where facets meet."""
    width = max(0.6, half * 0.012)
    glint = rgb("d8fff8", 0.45)
    for outer, inner in zip(rings, rings[1:]):
        for start, end in zip(outer, inner):
            canvas.line(start, end, width, glint)
    for ring in rings[1:]:
        canvas.outline(ring, width, glint)


def _cut(canvas, cx, cy, half):
    width, height, thick = half * 0.74, half * 0.80, half * 0.22
    top = cy - half * 0.40
    shade = max(0.7, half * 0.035)
    rim = thick + 2 * shade
    canvas.fill(letter(cx, top - shade, width + 2 * shade, height + 2 * shade, rim, rim), CUT_RIM)
    gold = linear((0, top), (0, top + height), CUT_TOP, CUT_FOOT)
    canvas.fill(letter(cx, top, width, height, thick, thick), gold)


def draw_small(canvas, size):
    """The mark for 16 to 32 pixels: one tier, and a T that keeps to whole pixels."""
    inset, top, foot, width, bar, stem = SMALL[size]
    middle, corner = size / 2, size * 0.28
    inner = octagon(middle, middle, middle - inset, corner * 0.55)
    canvas.fill(octagon(middle, middle, middle, corner), RIM)
    _ring(canvas, octagon(middle, middle, middle - size / 32, corner), inner, 0)
    canvas.fill(inner, linear((0, inset), (0, size - inset), TABLE_TOP, TABLE_FOOT))
    gold = linear((0, top), (0, foot), CUT_TOP, CUT_FOOT)
    canvas.fill(letter(middle, top, width, foot - top, bar, stem), gold)
