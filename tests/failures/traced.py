"""Runs the program under strace, which can harm it at a system call of choice."""

import collections
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

from outputs import WITHOUT_LEAK_SEARCH, HarmTest
from program import PROGRAM, SECONDS, Ended

UNFINISHED = "<unfinished ...>"


def why_not():
    """Why nothing can be traced here; empty when it can."""
    if shutil.which("strace") is None:
        return "strace is not installed"
    trial = subprocess.run(["strace", "-qq", "-o", os.devnull, "-e", "inject=getuid:error=EIO", "true"],
                           capture_output=True, check=False, timeout=SECONDS)
    return "" if trial.returncode == 0 else f"strace is not permitted here: {trial.stderr.decode().strip()}"


WHY_NOT = why_not()


@unittest.skipIf(WHY_NOT, WHY_NOT)
class TracedTest(HarmTest):
    def setUp(self):
        super().setUp()
        self.record = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="satwecvt-"))) / "calls"

    def trace(self, *options):
        """Converts under strace. The exit code is the program's, or minus the signal that ended it."""
        program = [*PROGRAM, "convert", "structure.sat", "load.sat"]
        ended = subprocess.run(["strace", "-f", "-y", "-qqq", "-o", self.record, *options, *program], cwd=self.folder,
                               stdin=subprocess.DEVNULL, capture_output=True, check=False, timeout=SECONDS,
                               env=WITHOUT_LEAK_SEARCH)
        self.expect_inputs_untouched()
        err = re.sub(r"(?m)^strace: Requested path .*\n", "", ended.stderr.decode())
        return Ended(ended.returncode, ended.stdout.decode(), err)

    def calls(self):
        """How often an undisturbed conversion over old outputs makes each system call."""
        self.put_old_outputs()
        self.assertEqual(0, self.trace().code)
        return collections.Counter(call for call, _ in self.recorded_calls())

    def recorded_calls(self):
        """The calls of the conversion that was traced last, in the order of its first thread, which does all that has to
        do with files: their names, and their arguments with how they ended."""
        lines = self.record.read_text(encoding="latin-1").splitlines()
        first = lines[0].split()[0]
        calls = []
        begun = ""  # of a call during which another thread was heard
        for line in lines:
            thread, text = line.split(maxsplit=1)
            if thread != first:
                continue
            if text.endswith(UNFINISHED):
                begun = text.removesuffix(UNFINISHED)
                continue
            match = re.match(r"(\w+)\((.*)", re.sub(r"^<\.\.\. \w+ resumed>", lambda _: begun, text))
            if match:
                calls.append(match.groups())
        return calls
