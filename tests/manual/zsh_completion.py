"""Completions in zsh: typed into an interactive one, which then lists what it offers."""

import os
import pty
import re
import select
import subprocess
import termios
import time
import tty
import unittest

from completing import Completing
from table import MANUAL, needs, output_of

START = (f"fpath=({MANUAL} $fpath); autoload -Uz compinit; compinit -u -D; PS1=''; unsetopt prompt_sp prompt_cr; "
         "bindkey '^I' list-choices; setopt no_beep; zstyle ':completion:*' list-colors; LISTMAX=0; stty cols 200 rows 50; "
         "print STA''RTED\n")
ESCAPES = re.compile(r"\x1b(\[[0-9;?]*[a-zA-Z]|[=>])")
SECONDS = 60


@needs("zsh")
class Zsh(Completing, unittest.TestCase):
    def setUp(self):
        super().setUp()
        self.master, slave = pty.openpty()
        self.addCleanup(os.close, self.master)
        shell = subprocess.Popen(["zsh", "-f", "-i"], cwd=self.folder, stdin=slave, stdout=slave, stderr=slave,
                                 start_new_session=True, env={**os.environ, "TERM": "vt100", "LC_ALL": "C.UTF-8"})
        os.close(slave)
        self.addCleanup(shell.wait, SECONDS)
        self.addCleanup(shell.kill)
        self.type(START, "STARTED")

    def type(self, keys, end):
        """What the shell shows from now on up to `end`."""
        os.write(self.master, keys.encode())
        shown, last = "", time.monotonic() + SECONDS
        while end not in shown:
            self.assertTrue(select.select([self.master], [], [], max(0, last - time.monotonic()))[0], shown)
            shown += os.read(self.master, 65536).decode("utf-8", "replace")
        return shown[:shown.index(end)]

    def complete(self, line):
        """The list has a row for each description, with the words that it is true of, or columns of words."""
        shown = self.type(f"{line}\t\x15print EN''D\n", "END")
        offered = {}
        for row in ESCAPES.sub("", shown).replace("\r", "\n").split("\n")[1:]:
            words, _, description = row.partition(" -- ")
            for word in re.split(r" {1,}", words.strip()):
                offered[word] = description.strip() or None
        print(repr(shown))
        return offered

    def test_the_file_has_no_error_in_it(self):
        output_of("zsh", "-n", MANUAL / "_satwecvt")


if __name__ == "__main__":
    unittest.main()
