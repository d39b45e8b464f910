"""Drives the real program as its user does. program.py tells what has to stand in the environment."""

import os
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))

MODULES = ["converting", "reporting", "exit_codes", "cases"]


class UnderWine(unittest.TestCase):
    @unittest.skip("Ctrl-C and the progress line need signals and a terminal, which Wine does not give")
    def test_cancelling_and_progress(self):
        pass


def load_tests(loader, tests, _):
    if "SATWECVT_WINE" in os.environ:
        return unittest.TestSuite([loader.loadTestsFromNames(MODULES), tests])
    return loader.loadTestsFromNames([*MODULES, "terminal", "obstacles"])


if __name__ == "__main__":
    unittest.main()
