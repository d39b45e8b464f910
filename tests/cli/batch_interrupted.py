"""A batch that is cancelled or killed in the middle."""

import os
import pathlib
import re
import shlex
import signal
import subprocess
import tempfile
import time
import unittest

from batch import OK, BatchTest
from program import PROGRAM, SECONDS, Ended


class Interrupted(BatchTest):
    """A frame and three towers, big enough to be met while they are read."""

    LINES = 1_000_000

    @classmethod
    def setUpClass(cls):
        cls.tower = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="satwecvt-tower-")))
        subprocess.run([*shlex.split(os.environ["GENERATE_TOWER"]), "--lines", str(cls.LINES),
                        cls.tower / "structure.sat", cls.tower / "load.sat"], check=True, stdout=subprocess.DEVNULL,
                       timeout=SECONDS)

    def setUp(self):
        super().setUp()
        self.put_pair("t/0")
        for number in (1, 2, 3):
            (self.folder / "t" / str(number)).mkdir()
            self.put_old_outputs(f"t/{number}")
            for name in ("structure.sat", "load.sat"):
                (self.folder / "t" / str(number) / name).symlink_to(self.tower / name)

    def met_while_reading(self, jobs, towers, sent):
        """Sends a signal when so many towers are being read."""
        process = subprocess.Popen([*PROGRAM, "batch", "-j", jobs, "--json-lines", "record", "t"], cwd=self.folder,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        deadline = time.monotonic() + SECONDS
        while self.open_towers(process) < towers:
            self.assertIsNone(process.poll(), "not met while it was reading")
            self.assertLess(time.monotonic(), deadline)
            time.sleep(0.0005)
        process.send_signal(sent)
        out, err = process.communicate(timeout=SECONDS)
        return Ended(process.returncode, out.decode("ascii"), err.decode("ascii"))

    def open_towers(self, process):
        """How many structure files of towers the process has open at this moment."""
        folder = f"/proc/{process.pid}/fd"
        count = 0
        for number in os.listdir(folder):
            try:
                count += os.path.samefile(os.path.join(folder, number), self.tower / "structure.sat")
            except OSError:  # it has just been closed
                pass
        return count

    def expect_no_tower(self):
        for number in (1, 2, 3):
            self.expect_old_outputs(f"t/{number}")
        self.expect_model("t/0/structure.vkm")
        self.assertEqual([], [name for name in self.files() if ".satwecvt-" in name])

    def test_ctrl_c_cancels_the_pairs_in_progress_and_begins_no_other(self):
        ended = self.met_while_reading("2", 2, signal.SIGINT)
        self.assertEqual((130, ""), (ended.code, ended.err))
        *lines, totals = [re.sub(" +", " ", line) for line in ended.out.splitlines()]
        self.assertEqual([f"ok t/0/structure.sat: {OK}", "cancelled t/1/structure.sat", "cancelled t/2/structure.sat"],
                         lines)
        self.assertEqual("4 pairs: 1 ok, 2 cancelled, 1 not begun; 0 losses, 0 doubts, 0 notes", totals)
        self.assertEqual([0, 130, 130], [record["exitCode"] for record in self.records(self.read("record"))])
        self.expect_no_tower()

    def test_a_kill_leaves_the_record_of_what_was_done(self):
        ended = self.met_while_reading("1", 1, signal.SIGKILL)
        self.assertEqual(-signal.SIGKILL, ended.code)
        self.assertEqual([0], [record["exitCode"] for record in self.records(self.read("record"))])
        self.expect_no_tower()


if __name__ == "__main__":
    unittest.main()
