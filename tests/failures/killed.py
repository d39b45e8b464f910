"""The program is killed before each of its system calls. Whatever the moment: no input has changed, no other file has
appeared, and the next conversion is whole."""

import signal
import unittest

from outputs import OUTPUTS
from traced import TracedTest


class Killed(TracedTest):
    def test_before_any_system_call(self):
        kills = 0
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
        ended = self.trace("-e", f"inject={call}:signal=KILL:when={number}")
        self.assertIn(ended.code, (0, -signal.SIGKILL))
        self.assertEqual("", ended.err)
        self.assertLessEqual(self.new_files(), set(OUTPUTS))
        self.expect_beginnings()
        self.remove_outputs()
        return ended.code != 0


if __name__ == "__main__":
    unittest.main()
