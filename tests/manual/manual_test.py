"""The man page and the completions hold what --help holds, and work. table.py tells what has to stand in the
environment."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))


def load_tests(loader, tests, _):
    return loader.loadTestsFromNames(["man_page", "bash_completion", "zsh_completion", "fish_completion"])


if __name__ == "__main__":
    unittest.main()
