"""The commands and options as --help prints them: what the man page and the completions are held against.

Environment: SATWECVT is the program, with a command in front of it where it needs one; MANUAL the folder with the man
page and the completions.
"""

import collections
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import unittest

PROGRAM = shlex.split(os.environ["SATWECVT"])
MANUAL = pathlib.Path(os.environ["MANUAL"])

Row = collections.namedtuple("Row", "names value text")


def needs(*tools):
    missing = [tool for tool in tools if shutil.which(tool) is None]
    return unittest.skipIf(missing, f"not installed: {', '.join(missing)}; scripts/install-packages test installs them")


def output_of(*command, **options):
    return subprocess.run(command, capture_output=True, text=True, encoding="utf-8", timeout=60, check=True,
                          **options).stdout


def section_of(text, title):
    """The lines below a title up to an empty one, those of one row joined."""
    found = re.search(rf"(?m)^{title}.*:\n((?: .*\n)*)", text)
    return re.sub(r"\n {6,}", "  ", found[1]).splitlines() if found else []


def row_of(line):
    """A row of --help: "  -o, --output MODEL      what it does"."""
    term, text = re.split(r" {2,}", line.strip(), maxsplit=1)
    words = re.split(r",? ", term)
    names = tuple(word for word in words if word.startswith("-"))
    return Row(names, words[-1] if words[-1] not in names else "", re.sub(r" +", " ", text))


class Help:
    """Of a command; of the program without one."""

    def __init__(self, *command):
        self.text = output_of(*PROGRAM, *command, "--help")
        self.commands = {row.value: row.text for row in map(row_of, section_of(self.text, "Commands"))}
        self.options = [row_of(line) for line in section_of(self.text, "Options")]
        self.arguments = [row_of(line) for line in section_of(self.text, "Arguments")]
        self.exit_codes = [row_of(line) for line in section_of(self.text, "Exit codes")]
        self.examples = [line.strip() for line in section_of(self.text, "Examples")]

    def names(self):
        return {name for row in self.options for name in row.names}


PROGRAM_HELP = Help()
HELPS = {name: Help(name) for name in PROGRAM_HELP.commands}
