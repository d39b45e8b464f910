"""What every shell has to complete, whichever way it does so."""

import pathlib
import tempfile
import unittest

from table import HELPS, PROGRAM_HELP

SAT_FILES = {"tower.sat", "OTHER.SAT", "site/"}
ALL_FILES = {*SAT_FILES, "notes.txt"}
FOLDERS = {"site/"}

# By the word that --help uses for it; of all others, numbers among them, nothing is offered.
CANDIDATES = {"STRUCTURE": SAT_FILES, "LOAD": SAT_FILES, "FOLDER": FOLDERS, "FILE": ALL_FILES, "MODEL": ALL_FILES,
              "PAGE": ALL_FILES, "NAME": set(), "N": set()}


class Completing:
    """The tests of a shell: its class has a method complete(line), which returns what is offered at the end of the
    line: each word with its description, or with None where the shell shows none."""

    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="satwecvt-")))
        (self.folder / "site").mkdir()
        for name in ("tower.sat", "OTHER.SAT", "notes.txt", "site/plan.sat", "site/plan.txt"):
            (self.folder / name).write_bytes(b"")

    def expect(self, words, line):
        with self.subTest(line):
            self.assertEqual(set(words), set(self.complete(line)))

    def expect_description(self, expected, description):
        """A completion does not tell defaults and exclusions, which --help has behind the description."""
        if description is not None:
            self.assertTrue(expected == description or expected.startswith(description + ";"), (expected, description))

    def test_commands(self):
        offered = self.complete("satwecvt ")
        self.assertEqual(set(PROGRAM_HELP.commands), set(offered))
        for name, description in offered.items():
            self.expect_description(PROGRAM_HELP.commands[name], description)
        self.expect({"convert"}, "satwecvt con")
        self.expect(set(), "satwecvt x")

    def test_options_of_the_program(self):
        self.expect(PROGRAM_HELP.names(), "satwecvt -")

    def test_options_of_every_command(self):
        for name, told in HELPS.items():
            with self.subTest(name):
                offered = self.complete(f"satwecvt {name} -")
                self.assertEqual(told.names(), set(offered))
                for row in told.options:
                    for option in row.names:
                        self.expect_description(row.text, offered[option])

    def test_a_part_of_an_option(self):
        self.expect({"--structure", "--strict"}, "satwecvt batch --str")

    def test_values_of_every_option(self):
        for name, told in HELPS.items():
            for row in told.options:
                for option in row.names if row.value else ():
                    self.expect(CANDIDATES[row.value], f"satwecvt {name} {option} ")

    def test_arguments_of_every_command(self):
        for name, told in HELPS.items():
            line = f"satwecvt {name} "
            for row in told.arguments:
                self.expect(CANDIDATES[row.value], line)
                line += "tower.sat "

    def test_arguments_behind_an_option(self):
        self.expect(SAT_FILES, "satwecvt convert --log a.msg --strict ")
        self.expect(FOLDERS, "satwecvt batch -j 4 site ")

    def test_files_of_a_folder(self):
        self.expect({"site/plan.sat"}, "satwecvt check site/")
        self.expect({"site/plan.sat", "site/plan.txt"}, "satwecvt check --json site/")
