"""Drives the real program into what the system may do to it: system calls that fail, a disk that fills up, memory and
descriptors that run out, a kill at any moment. ../cli/program.py tells what has to stand in the environment."""

import os
import pathlib
import sys
import unittest

HERE = pathlib.Path(__file__).parent
sys.path[:0] = [str(HERE), str(HERE.parent / "cli")]

# What strace and limits would meet under an emulator is the emulator itself.
OF_THE_PROCESS = ["killed", "failing_calls", "scarce"]


def load_tests(loader, tests, _):
    of_the_process = [] if "SATWECVT_EMULATOR" in os.environ else OF_THE_PROCESS
    return loader.loadTestsFromNames([*of_the_process, "full_disks"])


if __name__ == "__main__":
    unittest.main()
