"""Puts pictures into one icon file of Windows, which takes PNG files as they are."""

import struct

import gem
import icons

SIZES = tuple(size for size in sorted((*gem.SMALL, *icons.LARGE)) if size != 128)


def make(icon_folder, path):
    pictures = [(icon_folder / f"tessaro-{size}.png").read_bytes() for size in SIZES]
    entries, at = b"", 6 + 16 * len(pictures)
    for size, picture in zip(SIZES, pictures):
        # A size of 256 is written as 0.
        entries += struct.pack("<BBBBHHII", size & 255, size & 255, 0, 0, 1, 32, len(picture), at)
        at += len(picture)
    path.write_bytes(struct.pack("<HHH", 0, 1, len(pictures)) + entries + b"".join(pictures))
