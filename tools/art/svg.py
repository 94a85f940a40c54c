"""The canvas's polygons and lines as an SVG drawing, for a picture that scales."""


class Drawing:
    """Takes the calls that a Canvas takes, on a square of `size` units."""

    def __init__(self, size):
        self.size, self.gradients, self.shapes = size, [], []

    def fill(self, points, paint):
        self.shapes.append(f'<polygon points="{_places(points)}" {self._attribute("fill", paint)}/>')

    def line(self, start, end, width, paint):
        self.shapes.append(f'<polyline points="{_places([start, end])}" stroke-width="{_number(width)}"'
                           f' {self._attribute("stroke", paint)}/>')

    def outline(self, points, width, paint):
        self.shapes.append(f'<polygon points="{_places(points)}" fill="none"'
                           f' stroke-width="{_number(width)}" {self._attribute("stroke", paint)}/>')

    def save(self, path):
        lines = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {self.size} {self.size}">',
                 "<defs>", *self.gradients, "</defs>", *self.shapes, "</svg>"]
        path.write_text("\n".join(lines) + "\n")

    def _attribute(self, name, paint):
        if callable(paint):
            return f'{name}="url(#{self._gradient(*paint.ends)})"'
        colour, alpha = _colour(paint)
        return f'{name}="{colour}"' + (f' {name}-opacity="{alpha}"' if alpha != "1" else "")

    def _gradient(self, start, end, first, second):
        name = f"g{len(self.gradients) + 1}"
        stops = "".join(f'<stop offset="{offset}" stop-color="{colour}" stop-opacity="{alpha}"/>'
                        for offset, (colour, alpha) in ((0, _colour(first)), (1, _colour(second))))
        (x1, y1), (x2, y2) = start, end
        self.gradients.append(f'<linearGradient id="{name}" gradientUnits="userSpaceOnUse"'
                              f' x1="{_number(x1)}" y1="{_number(y1)}" x2="{_number(x2)}"'
                              f' y2="{_number(y2)}">{stops}</linearGradient>')
        return name


def _colour(paint):
    red, green, blue, alpha = paint
    parts = (round(part * 255) for part in (red, green, blue))
    return "#" + "".join(f"{part:02x}" for part in parts), _number(alpha)


def _places(points):
    return " ".join(f"{_number(x)},{_number(y)}" for x, y in points)


def _number(value):
    return f"{value:.3f}".rstrip("0").rstrip(".")
