"""The backdrop: a shaft of eight-sided rings, laid with triangular tiles, that leads to the gem."""

from math import cos, hypot, pi, sin
from random import Random

import gem
from draw import Canvas, blend, graded, grown, linear, radial, rectangle, rgb

SIDES = 16
GROWTH = 1.29
# Colour of the tiles by ring, from the light around the gem to the dark of the margin.
DEPTH = [(0, rgb("1f97a0")), (2, rgb("136473")), (4, rgb("0e3a4b")), (6, rgb("0b2233")),
         (8, rgb("0a1522")), (11, rgb("060b14"))]
EMBER = rgb("e08a2c")
SHADOW, SHEEN = rgb("03070c"), rgb("4fb7c4")
GROUND = rgb("060b13")


class Scene:
    """One backdrop: where its gem sits, and how far the rings are drawn out sideways."""

    def __init__(self, width, height, centre, gem_half, seed, aspect=1.0):
        self.canvas = Canvas(width, height)
        self.centre, self.gem_half, self.aspect = centre, gem_half, aspect
        self.chance = Random(seed)

    def draw(self):
        canvas = self.canvas
        canvas.fill(rectangle(0, 0, canvas.width, canvas.height), GROUND)
        rings = self._rings()
        for number, (inner, outer) in enumerate(zip(rings, rings[1:])):
            self._tiles(number, inner, outer)
        self._spokes(rings)
        self._glow()
        gem.draw(canvas, *self.centre, self.gem_half)

    def _rings(self):
        """Corner points ring by ring, until the farthest corner of the picture is inside."""
        cx, cy = self.centre
        far = 1.15 * hypot(max(cx, self.canvas.width - cx), max(cy, self.canvas.height - cy))
        rings, radius = [], self.gem_half * 0.72
        while not rings or radius < far * GROWTH:
            rings.append([self._point(radius, i, len(rings)) for i in range(SIDES)])
            radius *= GROWTH
        return rings

    def _point(self, radius, side, ring):
        # Every other ring is turned by half a side, which makes the tiles triangles.
        angle = (side + (ring % 2) / 2) * 2 * pi / SIDES - pi / 8
        near = radius * (1.0 + self.chance.uniform(-0.05, 0.05))
        return (self.centre[0] + near * cos(angle) * self.aspect,
                self.centre[1] + near * sin(angle))

    def _tiles(self, number, inner, outer):
        turn = number % 2
        for i in range(SIDES):
            after = (i + 1) % SIDES
            tip = after if turn else i
            self._tile(number, [inner[i], inner[after], outer[tip]])
            self._tile(number + 0.5, [outer[i], outer[after], inner[i if turn else after]])

    def _tile(self, depth, points):
        colour = graded(depth, DEPTH)
        shade = self.chance.uniform(-1, 1)
        colour = blend(colour, SHADOW if shade < 0 else SHEEN, abs(shade) * 0.17)
        if 1.5 < depth < 5 and self.chance.random() < 0.04:
            colour = blend(SHADOW, EMBER, 0.95 - depth * 0.12)
        self.canvas.fill(grown(points), colour)

    def _spokes(self, rings):
        """The joints between the tiles, brighter towards the gem."""
        for number, (inner, outer) in enumerate(zip(rings, rings[1:])):
            paint = rgb("9ff3ee", max(0.04, 0.30 - 0.035 * number))
            self.canvas.outline(inner, 1.1, paint)
            for i in range(SIDES):
                self.canvas.line(inner[i], outer[i], 1.1, paint)

    def _glow(self):
        cx, cy = self.centre
        reach = self.gem_half * 2.1
        halo = gem.octagon(cx, cy, reach, reach * 0.58)
        self.canvas.fill(halo, radial(self.centre, reach, rgb("58e6dc", 0.55), rgb("58e6dc", 0)))


def darken(canvas, start, end):
    """Lays a shadow that grows from one point to another, where text will stand."""
    shadow = linear(start, end, GROUND[:3] + (0.0,), GROUND[:3] + (0.78,))
    canvas.fill(rectangle(0, 0, canvas.width, canvas.height), shadow)
