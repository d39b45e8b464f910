"""Drives the real program as its user does. program.py tells what has to stand in the environment."""

import os
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))

MODULES = ["converting", "checking", "reporting", "exit_codes", "batch", "batch_inputs", "cases", "buildings",
           "defects"]


def load_tests(loader, tests, _):
    # Ctrl-C and the progress line need signals and a terminal, the obstacles a POSIX file system: Wine gives neither.
    posix = [] if "SATWECVT_WINE" in os.environ else ["terminal", "batch_interrupted", "obstacles"]
    view = ["viewing"] if "SATWECVT_VIEW" in os.environ else []
    return loader.loadTestsFromNames([*MODULES, *view, *posix])


if __name__ == "__main__":
    unittest.main()
