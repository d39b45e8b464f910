"""Completions in bash: its function is called as bash calls it, on top of the package bash-completion."""

import pathlib
import shlex
import unittest

from completing import Completing
from table import MANUAL, needs, output_of

LIBRARY = pathlib.Path("/usr/share/bash-completion/bash_completion")


@needs("bash")
@unittest.skipUnless(LIBRARY.exists(), "not installed: bash-completion; scripts/install-packages test installs it")
class Bash(Completing, unittest.TestCase):
    def complete(self, line):
        """bash takes words apart at "=" as well, and gives no descriptions."""
        words = line.replace("=", " = ").split(" ")
        script = (f"source {LIBRARY}; source {shlex.quote(str(MANUAL / 'satwecvt.bash'))}\n"
                  f"COMP_WORDS=({shlex.join(words)}); COMP_CWORD={len(words) - 1}\n"
                  f"COMP_LINE={shlex.quote(line)}; COMP_POINT={len(line)}\n"
                  "$(complete -p satwecvt | sed 's/.*-F \\([^ ]*\\).*/\\1/')\n"
                  "for word in \"${COMPREPLY[@]}\"; do [ -d \"$word\" ] && echo \"$word/\" || echo \"$word\"; done\n")
        return dict.fromkeys(output_of("bash", "--norc", "-c", script, cwd=self.folder).splitlines())

    def test_a_value_behind_an_equals_sign(self):
        self.expect({"notes.txt"}, "satwecvt convert --json=no")
        self.expect(set(), "satwecvt batch --jobs=")

    def test_the_file_has_no_error_in_it(self):
        output_of("bash", "-n", MANUAL / "satwecvt.bash")


if __name__ == "__main__":
    unittest.main()
