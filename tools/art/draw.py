"""A small canvas: polygons and lines with smooth edges, flat or graded colours."""

from array import array
from math import floor, hypot

import png

# Sub-lines per pixel row. Across a row the covered part of a pixel is exact.
SUBLINES = 8


def rgb(text, alpha=1.0):
    """A colour from "rrggbb", its parts from 0 to 1."""
    return tuple(int(text[i:i + 2], 16) / 255 for i in (0, 2, 4)) + (alpha,)


def blend(first, second, part):
    """The colour that lies `part` (0 to 1) of the way from the first to the second."""
    return tuple(a + (b - a) * part for a, b in zip(first, second))


def graded(position, stops):
    """The colour at a position among stops (position, colour) in rising order."""
    for (start, first), (end, second) in zip(stops, stops[1:]):
        if position < end:
            return blend(first, second, max(0.0, position - start) / (end - start))
    return stops[-1][1]


def linear(start, end, first, second):
    """A paint that runs from one colour at a point to another at a second point. Its `ends` tell
    both, for a drawing that keeps no pixels."""
    dx, dy = end[0] - start[0], end[1] - start[1]
    length = dx * dx + dy * dy

    def paint(x, y):
        part = ((x - start[0]) * dx + (y - start[1]) * dy) / length
        return blend(first, second, min(1.0, max(0.0, part)))
    paint.ends = start, end, first, second
    return paint


def radial(centre, radius, first, second):
    """A paint that runs from one colour at the centre to another at the radius."""
    def paint(x, y):
        part = min(1.0, hypot(x - centre[0], y - centre[1]) / radius)
        return blend(first, second, part * (2 - part))
    return paint


def grown(points, by=0.4):
    """The polygon with its corners moved out a little: neighbours overlap and show no seam."""
    cx = sum(x for x, _ in points) / len(points)
    cy = sum(y for _, y in points) / len(points)
    out = []
    for x, y in points:
        far = hypot(x - cx, y - cy) or 1.0
        out.append((x + (x - cx) / far * by, y + (y - cy) / far * by))
    return out


def rectangle(left, top, right, bottom):
    return [(left, top), (right, top), (right, bottom), (left, bottom)]


class Canvas:
    """Colours with alpha multiplied in, four floats per pixel, clear at first."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.pixels = array("d", bytes(32 * width * height))

    def fill(self, points, paint):
        """Fills a polygon, even-odd where it crosses itself."""
        flat = None if callable(paint) else paint
        for y, first, line in _coverage(points, self.width, self.height):
            for x, part in enumerate(line, first):
                if part > 1e-9:
                    colour = flat or paint(x + 0.5, y + 0.5)
                    self._put(4 * (y * self.width + x), colour, part)

    def _put(self, at, colour, part):
        alpha = min(1.0, part) * colour[3]
        keep = 1.0 - alpha
        pixels = self.pixels
        for i in range(3):
            pixels[at + i] = pixels[at + i] * keep + colour[i] * alpha
        pixels[at + 3] = pixels[at + 3] * keep + alpha

    def line(self, start, end, width, paint):
        """A straight line with flat ends."""
        dx, dy = end[0] - start[0], end[1] - start[1]
        half = width / 2 / (hypot(dx, dy) or 1.0)
        nx, ny = -dy * half, dx * half
        self.fill([(start[0] + nx, start[1] + ny), (end[0] + nx, end[1] + ny),
                   (end[0] - nx, end[1] - ny), (start[0] - nx, start[1] - ny)], paint)

    def outline(self, points, width, paint):
        for start, end in zip(points, points[1:] + points[:1]):
            self.line(start, end, width, paint)

    def save(self, path, opaque=False):
        channels = 3 if opaque else 4
        out = bytearray()
        for at in range(0, len(self.pixels), 4):
            alpha = self.pixels[at + 3]
            scale = 255 / alpha if alpha > 1e-9 else 0.0
            out += bytes(_byte(self.pixels[at + i] * scale) for i in range(3))
            if not opaque:
                out.append(_byte(alpha * 255))
        png.write(path, self.width, self.height, channels, bytes(out))


def _byte(value):
    # Rounded twice, so that a last-digit difference of the floats never shows.
    return min(255, max(0, floor(round(value, 4) + 0.5)))


def _coverage(points, width, height):
    """For each row touched: its number, the first column, the covered part per pixel."""
    top = max(0, floor(min(y for _, y in points)))
    bottom = min(height, floor(max(y for _, y in points)) + 1)
    first = max(0, floor(min(x for x, _ in points)))
    last = min(width, floor(max(x for x, _ in points)) + 1)
    for y in range(top, bottom if last > first else top):
        steps = [0.0] * (last - first + 2)
        for sub in range(SUBLINES):
            for x, sign in zip(_crossings(points, y + (sub + 0.5) / SUBLINES), _signs()):
                _step(steps, min(max(x, first), last) - first, sign / SUBLINES)
        yield y, first, _summed(steps[:-2])


def _crossings(points, y):
    found = []
    for (x0, y0), (x1, y1) in zip(points, points[1:] + points[:1]):
        if (y0 <= y) != (y1 <= y):
            found.append(x0 + (y - y0) * (x1 - x0) / (y1 - y0))
    return sorted(found)


def _signs():
    while True:
        yield 1.0
        yield -1.0


def _step(steps, x, amount):
    whole = int(x)
    steps[whole] += amount * (1 - (x - whole))
    steps[whole + 1] += amount * (x - whole)


def _summed(steps):
    total, line = 0.0, []
    for step in steps:
        total += step
        line.append(total)
    return line
