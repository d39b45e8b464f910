"""A conversion that something goes wrong with, and what its outputs may hold then."""

import os

from program import LOG, ProgramTest

MODEL = "structure.vkm"
OUTPUTS = (MODEL, LOG)

# A program that is traced cannot look for its own leaks.
WITHOUT_LEAK_SEARCH = {**os.environ, "ASAN_OPTIONS": "detect_leaks=0"}


class HarmTest(ProgramTest):
    """The tower, in a folder of its own, with what a conversion makes of it when all goes well."""

    def setUp(self):
        super().setUp()
        self.put_tower()
        self.convert_well("structure.sat", "load.sat")
        self.whole = {name: self.read(name) for name in OUTPUTS}
        self.remove_outputs()

    def remove_outputs(self):
        for name in self.new_files():
            (self.folder / name).unlink()

    def expect_whole_outputs(self):
        for name in OUTPUTS:
            self.assertTrue(self.read(name) == self.whole[name], f"{name} is not whole")

    def expect_beginnings(self):
        """An output that was not finished holds what it would hold otherwise, up to somewhere."""
        for name in OUTPUTS:
            self.assertTrue(self.whole[name].startswith(self.read(name) or b""), f"{name} holds something else")

    def expect_one_message(self, ended, cause, code=4):
        self.assertEqual((code, ""), (ended.code, ended.out))
        self.assertRegex(ended.err, rf"\Asatwecvt: .*{cause}.*\n\Z")

    def expect_written_or_told(self, ended, cause):
        """All is written, or one message with the exit code for it tells why not. Returns whether all is."""
        self.expect_beginnings()
        if ended.code == 0:
            self.assertEqual("", ended.err)
            self.expect_whole_outputs()
        else:
            self.expect_one_message(ended, cause)
        return ended.code == 0
