"""Completions in fish, which lists them on request."""

import os
import shlex
import unittest

from completing import Completing
from table import MANUAL, needs, output_of


@needs("fish")
class Fish(Completing, unittest.TestCase):
    def complete(self, line):
        script = f"source {shlex.quote(str(MANUAL / 'satwecvt.fish'))}; complete -C {shlex.quote(line)}"
        told = output_of("fish", "--no-config", "-c", script, cwd=self.folder,
                         env={**os.environ, "HOME": str(self.folder / ".home")})
        offered = {}
        for candidate in told.splitlines():
            word, _, description = candidate.partition("\t")
            offered[word] = description or None
        return offered

    def test_the_file_has_no_error_in_it(self):
        output_of("fish", "--no-execute", MANUAL / "satwecvt.fish")


if __name__ == "__main__":
    unittest.main()
