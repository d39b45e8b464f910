"""The program is killed before each of its system calls. Whatever the moment: no input has changed, the model and the
log are whole, old or new, nothing but temporary files is left beside them, and the next conversion is whole."""

import signal
import unittest

from outputs import OUTPUTS, TEMPORARY
from traced import TracedTest


class Killed(TracedTest):
    def test_before_any_system_call(self):
        kills = 0
        self.put_old_outputs()
        for call, count in self.calls().items():
            for number in range(1, count + 1):
                with self.subTest(call=call, number=number):
                    kills += self.kill(call, number)
        self.assertGreater(kills, 50)
        print(f"figure: {kills} kills, each before another system call", flush=True)
        self.convert_well("structure.sat", "load.sat")
        self.expect_whole_outputs()

    def kill(self, call, number):
        """Returns whether it came to that call: how often some are made, for memory above all, is left to chance."""
        self.put_old_outputs()
        ended = self.trace("-e", f"inject={call}:signal=KILL:when={number}")
        self.assertIn(ended.code, (0, -signal.SIGKILL))
        self.expect_findings(ended.err.splitlines())
        self.expect_old_or_new_outputs()
        for name in self.new_files() - set(OUTPUTS):
            self.assertRegex(name, TEMPORARY)
        return ended.code != 0


if __name__ == "__main__":
    unittest.main()
