"""A conversion that something goes wrong with, and what its outputs may hold then: all of the old ones or all of the
new ones."""

import os
import re

from program import FINDING_LINE, LOG, ProgramTest

MODEL = "structure.vkm"
OUTPUTS = (MODEL, LOG)
OLD = {MODEL: b"an older model\n" * 100, LOG: b"an older log\n"}

# Names that outputs have until they are whole.
TEMPORARY = re.compile(r"\A\.(structure\.vkm|satwecvt\.msg|report\.json)\.satwecvt-[0-9a-z]{6}\Z")

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

    def put_old_outputs(self):
        self.remove_outputs()
        for name, content in OLD.items():
            (self.folder / name).write_bytes(content)

    def expect_whole_outputs(self):
        for name in OUTPUTS:
            self.assertTrue(self.read(name) == self.whole[name], f"{name} is not whole")

    def expect_no_outputs(self):
        self.assertEqual(set(), self.new_files())

    def expect_old_or_new_outputs(self):
        """Each of them whole. The log takes its place first: a new model never lies beside an old log."""
        for name in OUTPUTS:
            is_one = self.read(name) in (OLD[name], self.whole[name])
            self.assertTrue(is_one, f"{name} is neither the old nor the new one")
        if self.read(MODEL) == self.whole[MODEL]:
            self.assertTrue(self.read(LOG) == self.whole[LOG], "a new model beside an old log")

    def expect_no_other_files(self):
        self.assertLessEqual(self.new_files(), set(OUTPUTS))

    def expect_findings(self, lines):
        for line in lines:
            self.assertRegex(line, FINDING_LINE)

    def expect_one_message(self, ended, cause, code=4):
        """At the end, behind the findings."""
        self.assertEqual((code, ""), (ended.code, ended.out))
        *findings, message = ended.err.splitlines()
        self.expect_findings(findings)
        self.assertRegex(message, rf"\A(satwecvt|structure\.sat|load\.sat): error: .*{cause}")

    def expect_written_or_told(self, ended, cause):
        """All is written, or one message with the exit code for it tells why not. Returns whether all is."""
        self.expect_no_other_files()
        if ended.code == 0:
            self.expect_findings(ended.err.splitlines())
            self.expect_whole_outputs()
        else:
            self.expect_one_message(ended, cause)
        return ended.code == 0
