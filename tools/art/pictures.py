"""The main window's background and the start-up screen."""

from draw import rectangle, rgb
from scene import Scene, darken


def make(folder):
    _background().save(folder / "main.png", opaque=True)
    _splash().save(folder / "splash.png", opaque=True)


def _background():
    """As large as its place in a main window of the size it comes up with, so that the first paint
    need not scale it."""
    scene = Scene(760, 473, (380, 236), 73, aspect=1.18, seed=8)
    scene.draw()
    return scene.canvas


def _splash():
    """The gem stands on the left; three lines of white text have the right to themselves."""
    scene = Scene(480, 270, (118, 135), 66, seed=4)
    scene.draw()
    darken(scene.canvas, (160, 0), (250, 0))
    _border(scene.canvas)
    return scene.canvas


def _border(canvas):
    for inset, colour in ((0, rgb("03070c")), (1, rgb("2c8f98"))):
        right, foot = canvas.width - inset, canvas.height - inset
        canvas.fill(rectangle(inset, inset, right, inset + 1), colour)
        canvas.fill(rectangle(inset, foot - 1, right, foot), colour)
        canvas.fill(rectangle(inset, inset, inset + 1, foot), colour)
        canvas.fill(rectangle(right - 1, inset, right, foot), colour)
