"""The window and tray icon in every size that desktops ask for, and as a drawing."""

import gem
from draw import Canvas
from svg import Drawing

LARGE = (48, 64, 128, 256)


def make(folder):
    for size in gem.SMALL:
        canvas = Canvas(size, size)
        gem.draw_small(canvas, size)
        canvas.save(folder / f"tessaro-{size}.png")
    for size in LARGE:
        canvas = Canvas(size, size)
        gem.draw(canvas, size / 2, size / 2, size / 2)
        canvas.save(folder / f"tessaro-{size}.png")
    drawing = Drawing(max(LARGE))
    gem.draw(drawing, drawing.size / 2, drawing.size / 2, drawing.size / 2)
    drawing.save(folder / "tessaro.svg")
