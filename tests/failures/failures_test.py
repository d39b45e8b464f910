"""Drives the real program into what the system may do to it: system calls that fail, a disk that fills up, memory and
descriptors that run out, a kill at any moment. ../cli/program.py tells what has to stand in the environment."""

import pathlib
import sys
import unittest

HERE = pathlib.Path(__file__).parent
sys.path[:0] = [str(HERE), str(HERE.parent / "cli")]

MODULES = ["killed", "failing_calls", "full_disks", "scarce"]


def load_tests(loader, tests, _):
    return loader.loadTestsFromNames(MODULES)


if __name__ == "__main__":
    unittest.main()
