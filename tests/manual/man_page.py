"""The man page says what --help says."""

import re
import subprocess
import unittest

from table import HELPS, MANUAL, PROGRAM_HELP, needs, row_of

PAGE = MANUAL / "satwecvt.1"


def formatted(*warnings):
    """Without bold and italics; a row in a line, its term in a column of its own."""
    return subprocess.run(["groff", "-man", *warnings, "-Tutf8", "-P-cbou", "-rLL=500n", "-rIN=40n", PAGE],
                          capture_output=True, text=True, encoding="utf-8", timeout=60, check=True)


def sections_of(text, indent):
    """The text below each heading with this many blanks before it."""
    parts = re.split(rf"(?m)^ {{{indent}}}(\S.*)\n", text)
    return dict(zip(parts[1::2], parts[2::2]))


def rows_of(text):
    """The rows of a section: a term with its text behind it."""
    return [row_of(line) for line in text.splitlines() if re.match(r" {40}\S.* {2,}\S", line)]


@needs("groff")
class ManPage(unittest.TestCase):
    def setUp(self):
        self.sections = sections_of(formatted().stdout, 0)

    def test_is_formatted_without_a_warning(self):
        self.assertEqual("", formatted("-ww").stderr)

    def test_has_the_sections_of_a_man_page_in_their_order(self):
        titles = [title for title in self.sections if not title.startswith(("SATWECVT", "satwecvt"))]
        self.assertEqual(["NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "COMMANDS", "EXIT STATUS", "FILES", "EXAMPLES"],
                         titles)

    def test_has_the_options_of_the_program(self):
        self.assertEqual(PROGRAM_HELP.options, rows_of(self.sections["OPTIONS"]))

    def test_has_the_commands_with_their_arguments_and_options(self):
        commands = sections_of(self.sections["COMMANDS"], 3)
        self.assertEqual(list(HELPS), list(commands))
        for name, text in commands.items():
            with self.subTest(name):
                self.assertEqual(HELPS[name].arguments + HELPS[name].options, rows_of(text))
                self.assertIn(f"{PROGRAM_HELP.commands[name]}.\n", text)

    def test_has_the_exit_codes_of_every_command(self):
        codes = sections_of(self.sections["EXIT STATUS"], 3)
        self.assertEqual([f"Of {name}" for name in HELPS], list(codes))
        for name, text in codes.items():
            with self.subTest(name):
                self.assertEqual(HELPS[name.removeprefix("Of ")].exit_codes, rows_of(text))

    def test_has_the_usage_and_the_examples_of_every_command(self):
        for name, told in HELPS.items():
            usage = re.search(r"(?m)^Usage: (.*)$", told.text)[1]
            self.assertIn(f" {usage}\n", self.sections["SYNOPSIS"])
            for example in told.examples:
                self.assertIn(f" {example}\n", self.sections["EXAMPLES"])

    def test_names_the_files(self):
        self.assertEqual(["satwecvt.msg", "*.vkm", ".NAME.satwecvt-XXXXXX"],
                         [row.value for row in rows_of(self.sections["FILES"])])


if __name__ == "__main__":
    unittest.main()
