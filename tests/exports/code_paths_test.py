"""Code made by hand, of which it is known where it goes."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from code_paths import CannotFollow, bytes_taken_off  # noqa: E402

RET = "C3"
RET_4 = "C2 04 00"
JE = "74"  # with the distance from the next instruction; so have the other two
JMP = "EB"
JMP_FAR = "E9"
LOOP = "E2"
CALL = "E8"
PUSH_EBX, POP_EBX = "53", "5B"
XOR_EAX_EAX = "31 C0"

FOLLOWED = [
    ("returns at once", [RET], {0: 0}),
    ("takes its argument along", [RET_4], {0: 4}),
    ("takes 16-bit counts along", ["C2 00 80"], {0: 0x8000}),
    ("counts nothing, in so many words", ["C2 00 00"], {0: 0}),
    ("has a prefix before its return", ["F3", RET], {0: 0}),
    ("works first", [PUSH_EBX, XOR_EAX_EAX, POP_EBX, RET], {4: 0}),
    ("does not get beyond its return", [RET, RET_4], {0: 0}),
    ("jumps over data that look like a return", [JMP, "03", RET_4, RET], {5: 0}),
    ("jumps far", [JMP_FAR, "03 00 00 00", RET_4, RET], {8: 0}),
    ("jumps to the return that takes its argument along", [JMP, "01", RET, RET_4], {3: 4}),
    ("ends differently on the two ways of a condition", [JE, "01", RET, RET_4], {2: 0, 3: 4}),
    ("jumps back", [PUSH_EBX, POP_EBX, JE, "FC", RET], {4: 0}),
    ("loops", [PUSH_EBX, POP_EBX, LOOP, "FC", RET_4], {4: 4}),
    ("never ends", [JMP, "FE"], {}),
    ("gives up", [JE, "02", "0F 0B", RET], {4: 0}),
    ("calls what would take an argument along", [CALL, "04 00 00 00", RET, "90 90 90", RET_4], {5: 0}),
    ("calls through a pointer", ["FF D0", RET], {2: 0}),
    ("stores the bytes of a return", ["B8", RET_4, "00", RET], {5: 0}),
]

NOT_FOLLOWED = [
    ("jumps through a register", ["FF E0"], "jmp eax"),
    ("jumps through a table", ["FF 24 85 00 00 00 00"], "jmp dword ptr"),
    ("runs out of the code", [PUSH_EBX], "leaves the code for 0x1"),
    ("jumps out of the code, ahead", [JMP, "10", RET], "leaves the code for 0x12"),
    ("jumps out of the code, back", [JMP, "80", RET], "leaves the code for"),
    ("meets what is no instruction", ["FF FF"], "no instruction at 0x0"),
    ("is cut off within an instruction", ["E8 00"], "no instruction at 0x0"),
    ("returns to another segment", ["CB"], "retf at 0x0"),
    ("returns from an interrupt", ["CF"], "iretd at 0x0"),
]


def assembled(parts):
    return bytes.fromhex(" ".join(parts))


class CodePaths(unittest.TestCase):
    def test_every_reachable_return_is_found_and_no_other(self):
        for what, code, expected in FOLLOWED:
            with self.subTest(what):
                self.assertEqual(expected, bytes_taken_off(assembled(code), 0, 32))

    def test_what_cannot_be_followed_is_no_end(self):
        for what, code, why in NOT_FOLLOWED:
            with self.subTest(what):
                with self.assertRaisesRegex(CannotFollow, why):
                    bytes_taken_off(assembled(code), 0, 32)

    def test_the_entry_may_stand_anywhere(self):
        self.assertEqual({0: 4, 5: 0}, bytes_taken_off(assembled([RET_4, JE, "FB", RET]), 3, 32))

    def test_both_widths_are_read(self):
        load_from_address = assembled(["A1", "00 00 00 00", RET, "00 00 00", RET])
        self.assertEqual({5: 0}, bytes_taken_off(load_from_address, 0, 32))
        self.assertEqual({9: 0}, bytes_taken_off(load_from_address, 0, 64))


if __name__ == "__main__":
    unittest.main()
