#!/usr/bin/env python3
"""The program's icons match their script and have only sizes and colour depths that Windows 95 supports."""
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

    def test_icon_matches_what_the_script_draws(self):
        self.assertEqual(CHIP.read_bytes(), chip())
        self.assertEqual(BULB.read_bytes(), bulb())

    def test_icon_has_two_sizes_in_16_and_256_colours_each(self):
        self.assertEqual(sorted(image[:3] for image in self.images(CHIP)),
                         [(16, 16, 4), (16, 16, 8), (32, 32, 4), (32, 32, 8)])

    def test_bulb_is_16_pixels_wide_in_16_colours(self):
        self.assertEqual([image[:3] for image in self.images(BULB)], [(16, 16, 4)])

    def test_icons_contain_only_plain_bitmaps(self):
        for width, height, bits, content in [*self.images(CHIP), *self.images(BULB)]:
            header_size, bitmap_width, doubled_height, planes, bitmap_bits, compression = struct.unpack_from(
                "<IiiHHI", content)
            self.assertEqual((header_size, bitmap_width, doubled_height, planes, bitmap_bits, compression),
                             (40, width, 2 * height, 1, bits, 0))

    def test_all_images_of_the_icon_differ(self):
        contents = [image[3] for image in self.images(CHIP)]
        self.assertEqual(len(set(contents)), 4)


if __name__ == "__main__":
    unittest.main()
