"""Writes and reads 8-bit PNG files, RGB or RGBA, with nothing but zlib."""

import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
COLOUR_TYPE = {3: 2, 4: 6}


def write(path, width, height, channels, pixels):
    """Saves rows of `channels` bytes per pixel, from the top left."""
    stride = width * channels
    rows = [pixels[i * stride:(i + 1) * stride] for i in range(height)]
    header = struct.pack(">IIBBBBB", width, height, 8, COLOUR_TYPE[channels], 0, 0, 0)
    data = min((zlib.compress(body, 9) for body in _filtered(rows, channels)), key=len)
    with open(path, "wb") as file:
        file.write(SIGNATURE)
        for kind, content in ((b"IHDR", header), (b"IDAT", data), (b"IEND", b"")):
            file.write(_chunk(kind, content))


def _chunk(kind, content):
    checksum = zlib.crc32(kind + content)
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", checksum)


def _filtered(rows, channels):
    """The whole picture under each of the filters 0 (none), 1 (left) and 2 (above)."""
    yield b"".join(b"\0" + row for row in rows)
    yield b"".join(b"\1" + _minus(row, bytes(channels) + row[:-channels]) for row in rows)
    above = [bytes(len(rows[0]))] + rows[:-1]
    yield b"".join(b"\2" + _minus(row, up) for row, up in zip(rows, above))


def _minus(row, other):
    return bytes((a - b) & 255 for a, b in zip(row, other))


def read(path):
    """Gives width, height, channels and the rows of a file that `write` saved."""
    content = path.read_bytes()
    width, height, _, colour = struct.unpack_from(">IIBB", content, 16)
    channels = 4 if colour == 6 else 3
    length, = struct.unpack_from(">I", content, 33)
    body = zlib.decompress(content[41:41 + length])
    return width, height, channels, _unfiltered(body, width * channels, channels)


def _unfiltered(body, stride, channels):
    rows = []
    for start in range(0, len(body), stride + 1):
        kind, row = body[start], bytearray(body[start + 1:start + 1 + stride])
        for i in range(stride if kind else 0):
            if kind == 1:
                row[i] = (row[i] + (row[i - channels] if i >= channels else 0)) & 255
            elif rows:
                row[i] = (row[i] + rows[-1][i]) & 255
        rows.append(bytes(row))
    return rows
