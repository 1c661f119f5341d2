"""PNG files (W3C PNG) of 8 bits a sample in red, green, blue and, as the tool writes it where it matters, alpha."""

import functools
import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
SAMPLES = {2: 3, 6: 4}  # by colour type


def chunk(name, data):
    """A chunk with its length and checksum."""
    return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))


def encode(width, height, pixel_at):
    """A file whose pixel at (x, y) is (red, green, blue, alpha)."""
    rows = b"".join(b"\0" + bytes(v for x in range(width) for v in pixel_at(x, y)) for y in range(height))
    head = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    return SIGNATURE + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b"")


def paeth(left, above, corner):
    """The predictor of filter 4."""
    return min((left, above, corner), key=lambda value: abs(left + above - corner - value))


def unfilter(kind, row, above, step):
    """A row's bytes from what its filter left of them, in place."""
    for i in range(len(row)):
        left = row[i - step] if i >= step else 0
        corner = above[i - step] if i >= step else 0
        row[i] = (row[i] + (0, left, above[i], (left + above[i]) // 2, paeth(left, above[i], corner))[kind]) & 255


class Picture:
    """The pixels of a file."""

    def __init__(self, file):
        assert file.startswith(SIGNATURE), file[:20]
        self.file = file
        self.width, self.height, depth, kind = struct.unpack(">IIBB", file[16:26])
        assert depth == 8
        self.step = SAMPLES[kind]

    def data(self):
        """The rows as they are filtered."""
        data, place = b"", 8
        while place < len(self.file):
            length, name = struct.unpack(">I4s", self.file[place:place + 8])
            data += self.file[place + 8:place + 8 + length] if name == b"IDAT" else b""
            place += 12 + length
        return zlib.decompress(data)

    @functools.cached_property
    def rows(self):
        """The pixels of each row."""
        data, rows, size = self.data(), [], self.width * self.step + 1
        row = bytearray(size - 1)
        for start in range(0, len(data), size):
            above, row = row, bytearray(data[start + 1:start + size])
            if data[start]:
                unfilter(data[start], row, above, self.step)
            alpha = row[3::4] if self.step == 4 else b"\xff" * self.width
            rows.append(list(zip(*(row[sample::self.step] for sample in range(3)), alpha)))
        return rows

    @property
    def size(self):
        """(width, height)"""
        return self.width, self.height

    def at(self, x, y):
        """(red, green, blue, alpha)"""
        return self.rows[y][x]

    def colours(self):
        """All that there are."""
        return {pixel for row in self.rows for pixel in row}

    def where(self, wanted):
        """(left, top, right, bottom) around the pixels for which wanted(x, y, pixel) holds; None: there are none."""
        found = [(x, y) for y, row in enumerate(self.rows) for x, pixel in enumerate(row) if wanted(x, y, pixel)]
        xs, ys = [x for x, _ in found], [y for _, y in found]
        return (min(xs), min(ys), max(xs) + 1, max(ys) + 1) if found else None
