"""Completions in zsh: typed into an interactive one, which then lists what it offers."""

import os
import pty
import re
import select
import subprocess
import termios
import time
import unittest

from completing import ALL_FILES, Completing
from table import MANUAL, needs, output_of

START = (f"fpath=({MANUAL} $fpath); autoload -Uz compinit; compinit -u -D; PS1='ready> '; "
         "unsetopt prompt_sp prompt_cr; bindkey '^I' list-choices; setopt no_beep; "
         "zstyle ':completion:*' list-colors\n")
MARK = "print EN''D\n"
DONE = re.compile(r"END\r\n.*ready> ", re.DOTALL)  # before the prompt, the terminal itself would take a tab
EMPTY_LINE = "\x15"
LIST = re.compile(r"\r\r\n(.*?)\x1b\[\d*A", re.DOTALL)
ESCAPES = re.compile(r"\x1b\[[0-9;?]*[a-zA-Z]")
SECONDS = 60


@needs("zsh")
class Zsh(Completing, unittest.TestCase):
    def setUp(self):
        super().setUp()
        self.master, slave = pty.openpty()
        self.addCleanup(os.close, self.master)
        termios.tcsetwinsize(slave, (50, 200))
        shell = subprocess.Popen(["zsh", "-f", "-i"], cwd=self.folder, stdin=slave, stdout=slave, stderr=slave,
                                 start_new_session=True, env={**os.environ, "TERM": "xterm", "LC_ALL": "C.UTF-8"})
        os.close(slave)
        self.addCleanup(shell.wait, SECONDS)
        self.addCleanup(shell.kill)
        self.type(START)

    def type(self, keys):
        """What the shell shows until it has taken these keys."""
        os.write(self.master, f"{keys}{MARK}".encode())
        shown, last = "", time.monotonic() + SECONDS
        while not DONE.search(shown):
            left = max(0, last - time.monotonic())
            self.assertTrue(select.select([self.master], [], [], left)[0], shown)
            shown += os.read(self.master, 65536).decode("utf-8", "replace")
        return shown

    def complete(self, line):
        """A list stands below the line; then the cursor goes up again. It has a row for each description, with the
        words that have it, or columns of words, without the folder that the line has already. The line is then
        emptied."""
        folder = "".join(line.rpartition(" ")[2].rpartition("/")[:2])
        listed = LIST.search(self.type(f"{line}\t{EMPTY_LINE}"))
        offered = {}
        for row in ESCAPES.sub("", listed[1]).splitlines() if listed else ():
            words, _, description = row.partition(" -- ")
            offered.update({folder + word: description.strip() or None for word in words.split()})
        return offered

    def expect_none_of(self, words, line):
        """zsh offers the options that are left where there is no argument to come."""
        with self.subTest(line):
            offered = set(self.complete(line))
            self.assertIn("--help", offered)
            self.assertEqual(set(), words & offered)

    def test_nothing_is_offered_beside_what_excludes_it(self):
        self.expect_none_of({"site/", "--list", "--structure", "--load"}, "satwecvt batch --list notes.txt ")
        self.expect_none_of({"-o", "--output"}, "satwecvt convert --output a.vkm -")

    def test_nothing_is_offered_behind_the_last_argument(self):
        self.expect_none_of(ALL_FILES, "satwecvt convert tower.sat tower.sat ")

    def test_the_file_has_no_error_in_it(self):
        output_of("zsh", "-n", MANUAL / "_satwecvt")


if __name__ == "__main__":
    unittest.main()
