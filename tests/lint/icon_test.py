#!/usr/bin/env python3
"""The program's icons are what their script draws, in the sizes and colours that Windows 95 supports."""
import pathlib
import struct
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "icon"))
from make_icon import bulb, chip  # noqa: E402

FOLDER = ROOT / "src" / "app" / "win32"
CHIP = FOLDER / "qdix.ico"
BULB = FOLDER / "bulb.ico"


class Icon(unittest.TestCase):
    def images(self, file):
        """Returns width, height, bits per pixel and content of each image."""
        content = file.read_bytes()
        reserved, kind, count = struct.unpack_from("<HHH", content)
        self.assertEqual((reserved, kind), (0, 1))
        for index in range(count):
            entry = struct.unpack_from("<BBBBHHII", content, 6 + 16 * index)
            width, height, _, _, _, bits, size, offset = entry
            yield width, height, bits, content[offset:offset + size]

    def test_is_what_the_script_draws(self):
        self.assertEqual(CHIP.read_bytes(), chip())
        self.assertEqual(BULB.read_bytes(), bulb())

    def test_has_two_sizes_in_16_and_256_colours_each(self):
        self.assertEqual(sorted(image[:3] for image in self.images(CHIP)),
                         [(16, 16, 4), (16, 16, 8), (32, 32, 4), (32, 32, 8)])

    def test_bulb_is_small_and_in_16_colours(self):
        self.assertEqual([image[:3] for image in self.images(BULB)], [(16, 16, 4)])

    def test_holds_plain_bitmaps_only(self):
        for width, height, bits, content in [*self.images(CHIP), *self.images(BULB)]:
            header_size, bitmap_width, doubled_height, planes, bitmap_bits, compression = struct.unpack_from(
                "<IiiHHI", content)
            self.assertEqual((header_size, bitmap_width, doubled_height, planes, bitmap_bits, compression),
                             (40, width, 2 * height, 1, bits, 0))

    def test_pictures_of_a_size_differ_in_their_colours(self):
        contents = [image[3] for image in self.images(CHIP)]
        self.assertEqual(len(set(contents)), 4)


if __name__ == "__main__":
    unittest.main()
