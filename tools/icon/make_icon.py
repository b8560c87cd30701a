#!/usr/bin/env python3
"""Draws the program's icons: a memory chip with a gauge in its middle, and a light bulb.

  make_icon.py chip FILE.ico    writes 32x32 and 16x16 pixels, each in 16 and in 256 colours
  make_icon.py bulb FILE.ico    writes 16x16 pixels in 16 colours

as uncompressed bitmaps, which is what Windows 95 reads.
"""
import struct
import sys

# The sixteen colours that every display of the time has, as red, green, blue.
VGA = [(0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0), (0, 0, 128), (128, 0, 128), (0, 128, 128), (192, 192, 192),
       (128, 128, 128), (255, 0, 0), (0, 255, 0), (255, 255, 0), (0, 0, 255), (255, 0, 255), (0, 255, 255),
       (255, 255, 255)]
# Softer shades after the sixteen, for the pictures with 256 colours only.
SHADES = [(16, 44, 72), (36, 84, 124), (84, 140, 180), (64, 64, 64), (0, 192, 192), (224, 224, 224), (160, 160, 160)]

TRANSPARENT = -1


class Palette:
    """Numbers of the colours that a picture uses."""

    def __init__(self, rich):
        first = len(VGA)
        self.edge = 0
        self.body = first + 1 if rich else 4
        self.body_light = first + 2 if rich else 6
        self.body_dark = first if rich else 0
        self.pin = first + 5 if rich else 15
        self.pin_dark = first + 6 if rich else 8
        self.lit = 14
        self.lit_dark = first + 4 if rich else 6
        self.unlit = first + 3 if rich else 8


def fill(picture, left, top, right, bottom, colour):
    for y in range(top, bottom + 1):
        for x in range(left, right + 1):
            picture[y][x] = colour


def draw_pins(picture, size, palette):
    """Draws pins on both sides, each a light row over a dark one."""
    step, reach = (5, 4) if size == 32 else (4, 2)
    for y in range(step - 1, size - step + 1, step):
        for left, right in ((0, reach), (size - 1 - reach, size - 1)):
            fill(picture, left, y, right, y, palette.pin)
            fill(picture, left, y + 1, right, y + 1, palette.pin_dark)


def draw_body(picture, size, palette):
    side = 5 if size == 32 else 3
    left, right, top, bottom = side, size - 1 - side, 1 if size == 32 else 0, size - 2 if size == 32 else size - 1
    fill(picture, left, top, right, bottom, palette.edge)
    fill(picture, left + 1, top + 1, right - 1, bottom - 1, palette.body)
    fill(picture, left + 1, top + 1, right - 1, top + 1, palette.body_light)
    fill(picture, left + 1, top + 1, left + 1, bottom - 1, palette.body_light)
    fill(picture, left + 1, bottom - 1, right - 1, bottom - 1, palette.body_dark)
    fill(picture, right - 1, top + 1, right - 1, bottom - 1, palette.body_dark)
    return left, right, top, bottom


def draw_gauge(picture, size, palette, body):
    """Draws segments from the bottom up, the lower ones lit."""
    left, right, top, bottom = body
    inset, height, count, lit = (5, 3, 5, 3) if size == 32 else (3, 2, 4, 2)
    gap = 1
    total = count * height + (count - 1) * gap
    y = top + (bottom - top + 1 - total) // 2
    for number in range(count):
        is_lit = number >= count - lit
        fill(picture, left + inset, y, right - inset, y + height - 1, palette.lit if is_lit else palette.unlit)
        if is_lit:
            fill(picture, left + inset, y + height - 1, right - inset, y + height - 1, palette.lit_dark)
        y += height + gap


def draw(size, rich):
    picture = [[TRANSPARENT] * size for _ in range(size)]
    palette = Palette(rich)
    draw_pins(picture, size, palette)
    body = draw_body(picture, size, palette)
    draw_gauge(picture, size, palette, body)
    return picture


def rows_bottom_up(picture, bits, value_of):
    """Returns packed rows, padded to four bytes."""
    packed = b""
    for row in reversed(picture):
        number = 0
        for pixel in row:
            number = number << bits | value_of(pixel)
        data = number.to_bytes(len(row) * bits // 8, "big")
        packed += data + b"\0" * (-len(data) % 4)
    return packed


# One letter per pixel: outline, glass, shine, socket and its shadow.
BULB = """
................
.....oooooo.....
....o######o....
...o##ww####o...
...o#ww#####o...
...o#w######o...
...o########o...
...o########o...
....o##oo##o....
.....o#oo#o.....
.....o#oo#o.....
.....ossssd.....
.....sddddd.....
.....ossssd.....
......dddd......
................
"""
BULB_COLOURS = {".": TRANSPARENT, "o": 0, "#": 11, "w": 15, "s": 7, "d": 8}


def draw_bulb():
    return [[BULB_COLOURS[letter] for letter in row] for row in BULB.split()]


def bitmap(picture, bits):
    size = len(picture)
    colours = (VGA + SHADES if bits == 8 else VGA) + [(0, 0, 0)] * 256
    table = b"".join(struct.pack("4B", blue, green, red, 0) for red, green, blue in colours[:1 << bits])
    colour_rows = rows_bottom_up(picture, bits, lambda pixel: max(pixel, 0))
    mask_rows = rows_bottom_up(picture, 1, lambda pixel: int(pixel == TRANSPARENT))
    # The height includes the picture and its mask.
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, bits, 0, len(colour_rows) + len(mask_rows), 0, 0, 0, 0)
    return header + table + colour_rows + mask_rows


def chip():
    return icon([(draw(size, bits == 8), bits) for bits in (4, 8) for size in (32, 16)])


def bulb():
    return icon([(draw_bulb(), 4)])


def icon(pictures):
    """Returns the file of the pictures, each with its bits per pixel."""
    kinds = [(len(picture), bits) for picture, bits in pictures]
    images = [bitmap(picture, bits) for picture, bits in pictures]
    directory = struct.pack("<HHH", 0, 1, len(kinds))
    offset = len(directory) + 16 * len(kinds)
    for (size, bits), image in zip(kinds, images):
        directory += struct.pack("<BBBBHHII", size, size, 16 if bits == 4 else 0, 0, 1, bits, len(image), offset)
        offset += len(image)
    return directory + b"".join(images)


if __name__ == "__main__":
    if len(sys.argv) != 3 or sys.argv[1] not in ("chip", "bulb"):
        sys.exit(__doc__)
    with open(sys.argv[2], "wb") as file:
        file.write(chip() if sys.argv[1] == "chip" else bulb())
