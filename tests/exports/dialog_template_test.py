"""A template made by hand: every field is read, and what is no template is refused."""

import pathlib
import struct
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from dialog_template import Control, Dialog, Font, NoTemplate, read_dialog  # noqa: E402


def text(content):
    return (content + "\0").encode("utf-16-le")


def number(value):
    return struct.pack("<HH", 0xFFFF, value)


def padded(content, byte=b"\0"):
    return content + byte * (-len(content) % 4)


HEAD = struct.pack("<HHIII", 1, 0xFFFF, 11, 12, 0x40) + struct.pack("<Hhhhh", 2, -13, 14, 15, 16)
NAMES = text("menu") + number(17) + text("Türme")
FONT = struct.pack("<HHBB", 8, 700, 1, 238) + text("Tahoma")
FIRST = struct.pack("<III", 21, 22, 23) + struct.pack("<hhhhi", 24, 25, 26, 27, -1) + number(0x80) + text("OK")
SECOND = struct.pack("<III", 31, 32, 33) + struct.pack("<hhhhi", 34, 35, 36, 37, 38) + text("MSCTLS_x") + number(39)
NO_EXTRA = struct.pack("<H", 0)
EXTRA = struct.pack("<H", 3) + b"abc"
TEMPLATE = padded(padded(padded(HEAD + NAMES + FONT) + FIRST + EXTRA) + SECOND + NO_EXTRA)

EXPECTED = Dialog(
    11, 12, 0x40, -13, 14, 15, 16, "menu", 17, "Türme", Font(8, 700, 1, 238, "Tahoma"), [
        Control(21, 22, 23, 24, 25, 26, 27, -1, 0x80, "OK", b"abc"),
        Control(31, 32, 33, 34, 35, 36, 37, 38, "msctls_x", 39, b""),
    ])


class DialogTemplate(unittest.TestCase):
    maxDiff = None

    def expect_refused(self, why, template):
        with self.assertRaisesRegex(NoTemplate, why):
            read_dialog(template)

    def test_every_field_is_read(self):
        self.assertEqual(EXPECTED, read_dialog(TEMPLATE))

    def test_a_template_without_a_font_has_none(self):
        head = struct.pack("<HHIII", 1, 0xFFFF, 0, 0, 0) + struct.pack("<Hhhhh", 0, 0, 0, 0, 0)
        self.assertEqual(Dialog(0, 0, 0, 0, 0, 0, 0, "", "", "", None, []), read_dialog(padded(head + text("") * 3)))

    def test_the_older_kind_is_refused(self):
        template = struct.pack("<IIHhhhh", 0x80C80080, 0, 0, 0, 0, 1, 1) + bytes(6)
        self.expect_refused("not of the extended kind", template)

    def test_a_template_cut_off_is_refused_wherever_it_ends(self):
        for length in range(len(TEMPLATE)):
            with self.subTest(length):
                self.expect_refused("ends within a field", TEMPLATE[:length])

    def test_bytes_after_the_last_control_are_refused(self):
        self.expect_refused("goes on after its last control", TEMPLATE + bytes(4))

    def test_padding_that_is_not_empty_is_refused(self):
        before = padded(HEAD + NAMES + FONT) + FIRST + EXTRA
        self.expect_refused("padding that is not empty", padded(before, b"x") + SECOND + NO_EXTRA)


if __name__ == "__main__":
    unittest.main()
