"""What needs a real process: Ctrl-C, and the progress line on a terminal. All of it works on a tower that takes the
program long enough to be met in the middle."""

import fcntl
import os
import pathlib
import pty
import re
import shlex
import signal
import subprocess
import tempfile
import termios
import threading
import time
import unittest

from program import FINDING_LINE, LOG, PROGRAM, SECONDS, ProgramTest

GENERATE_TOWER = shlex.split(os.environ["GENERATE_TOWER"])
LINES = 1_000_000


def wait_until(condition, process):
    """Returns whether the condition came true before the process ended."""
    deadline = time.monotonic() + SECONDS
    while process.poll() is None and time.monotonic() < deadline:
        if condition():
            return True
        time.sleep(0.0005)
    return False


def has_open(process, path):
    """Whether the process has the file open at this moment."""
    folder = f"/proc/{process.pid}/fd"
    try:
        return any(os.path.samefile(os.path.join(folder, number), path) for number in os.listdir(folder))
    except OSError:  # it has just ended or closed one
        return False


class BigTowerTest(ProgramTest):
    @classmethod
    def setUpClass(cls):
        cls.tower = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="satwecvt-tower-")))
        cls.structure, cls.load = cls.tower / "structure.sat", cls.tower / "load.sat"
        subprocess.run([*GENERATE_TOWER, "--lines", str(LINES), cls.structure, cls.load], check=True,
                       stdout=subprocess.DEVNULL, timeout=SECONDS)

    LOSSES = 3  # codes of them in the tower, each a line under --quiet

    def setUp(self):
        super().setUp()
        self.model = self.tower / "structure.vkm"
        self.remove_model()
        self.addCleanup(self.remove_model)
        self.inputs = {path: path.read_bytes() for path in (self.structure, self.load)}

    def remove_model(self):
        for path in set(self.tower.iterdir()) - {self.structure, self.load}:
            path.unlink()

    def start(self, *arguments, **options):
        options = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **options}
        return subprocess.Popen([*PROGRAM, "convert", *arguments, self.structure, self.load], cwd=self.folder,
                                **options)

    def wait_for_reading(self, process):
        self.assertTrue(wait_until(lambda: has_open(process, self.structure), process), "not met while it was reading")

    def wait_for_writing(self, process):
        def has_begun():
            return any(path.stat().st_size > 0 for path in self.tower.glob(".structure.vkm.satwecvt-*"))

        self.assertTrue(wait_until(has_begun, process), "not met while it was writing")

    def ended(self, process):
        out, err = process.communicate(timeout=SECONDS)
        self.expect_inputs_untouched()
        return process.returncode, out.decode("ascii"), err.decode("ascii")


class Cancelling(BigTowerTest):
    def cancel(self, *arguments):
        process = self.start(*arguments)
        self.wait_for_reading(process)
        process.send_signal(signal.SIGINT)
        return self.ended(process)

    def test_ends_with_130_and_writes_nothing(self):
        self.assertEqual((130, "", "satwecvt: cancelled; nothing was written\n"), self.cancel())
        self.assertEqual({self.structure, self.load}, set(self.tower.iterdir()))
        self.assertEqual(set(), self.files())

    def test_leaves_old_outputs_as_they_are(self):
        self.model.write_bytes(b"old model")
        (self.folder / LOG).write_bytes(b"old log")
        self.assertEqual(130, self.cancel()[0])
        self.assertEqual(b"old model", self.model.read_bytes())
        self.assertEqual(b"old log", self.read(LOG))

    def test_is_told_under_quiet_and_in_the_report(self):
        code, out, err = self.cancel("-q", "--json", "-")
        self.assertEqual((130, "satwecvt: cancelled; nothing was written\n"), (code, err))
        report = self.valid_report(out)
        self.assertEqual((1, None), (report["result"], report["output"]))
        self.assertEqual(["!!! Read Data File !!!"], report["stages"])
        self.assertEqual(report["lines"]["read"] + 1, report["lines"]["steps"])
        self.assertLess(report["lines"]["read"], report["lines"]["total"])

    def expect_converted(self, process):
        code, out, err = self.ended(process)
        self.assertEqual((0, "", self.LOSSES), (code, out, len(err.splitlines())))
        self.assertTrue(self.model.read_bytes().endswith(b"-\n\n\n"))
        self.assertEqual({self.structure, self.load, self.model}, set(self.tower.iterdir()))

    def test_comes_too_late_once_writing_has_begun(self):
        process = self.start("-q")
        self.wait_for_writing(process)
        process.send_signal(signal.SIGINT)
        self.expect_converted(process)

    def test_stays_switched_off_in_a_process_that_was_started_so(self):
        process = self.start("-q", preexec_fn=lambda: signal.signal(signal.SIGINT, signal.SIG_IGN))
        self.wait_for_reading(process)
        process.send_signal(signal.SIGINT)
        self.wait_for_writing(process)
        process.send_signal(signal.SIGINT)
        self.expect_converted(process)


class Terminal:
    """A terminal of its own for one process: what the process shows there is gathered from its start to its end."""

    def __init__(self):
        self.master, self.slave = pty.openpty()
        self.shown = b""
        self.reader = threading.Thread(target=self.gather)

    def options(self):
        """For a process whose terminal it is: stderr and keyboard are there, stdout is not."""
        return {"stdin": self.slave, "stderr": self.slave, "start_new_session": True,
                "preexec_fn": lambda: fcntl.ioctl(0, termios.TIOCSCTTY, 0)}

    def attach(self):
        os.close(self.slave)
        self.reader.start()

    def gather(self):
        try:
            while part := os.read(self.master, 65536):
                self.shown += part
        except OSError:  # how a terminal ends whose last process has ended
            pass

    def press_ctrl_c(self):
        os.write(self.master, b"\x03")

    def detach(self):
        self.reader.join(SECONDS)
        os.close(self.master)
        return self.shown.decode("ascii")


class ProgressLine(BigTowerTest):
    DRAWING = re.compile(r"( {0,2}\d{1,3}) %  line (\d+) of (\d+)  ((?:Read|Write) [A-Za-z :]*[A-Za-z]) *")

    def show(self, *arguments, while_running=lambda process, terminal: None):
        """Returns the exit code, what the terminal got, and for how many seconds the program ran."""
        terminal = Terminal()
        began = time.monotonic()
        process = self.start(*arguments, **terminal.options())
        terminal.attach()
        while_running(process, terminal)
        process.communicate(timeout=SECONDS)
        seconds = time.monotonic() - began
        self.expect_inputs_untouched()
        return process.returncode, terminal.detach(), seconds

    def progress(self, shown):
        """What was drawn, one over the other, before the findings begin on the cleared line. Reading and writing clear
        it alike; here stands the clearing at the end alone."""
        *drawings, findings = shown.split("\r\n")[0].split("\r")[1:]
        self.assertRegex(findings, FINDING_LINE)
        return [drawing for drawing in drawings[:-1] if drawing.strip(" ")] + drawings[-1:]

    def test_is_drawn_over_in_place_and_cleared_at_the_end(self):
        code, shown, _ = self.show()
        self.assertEqual(0, code)
        self.assertEqual("", shown.split("\r")[0])
        *drawings, blanks = self.progress(shown)
        self.assertEqual("", blanks.strip(" "))
        self.assertGreaterEqual(len(drawings), 2)
        lengths = [len(drawing.rstrip(" ")) for drawing in drawings]
        for former, drawing in zip(lengths, drawings[1:]):
            self.assertGreaterEqual(len(drawing), former, "something of the former drawing stays")
        self.assertGreaterEqual(len(blanks), lengths[-1])

    def test_tells_percent_line_total_and_stage(self):
        _, shown, _ = self.show()
        drawings = [self.DRAWING.fullmatch(text) for text in self.progress(shown)[:-1]]
        self.assertNotIn(None, drawings)
        lines = [int(drawing[2]) for drawing in drawings]
        self.assertEqual(sorted(lines), lines)
        total = sum(content.count(b"\n") for content in self.inputs.values())
        for drawing in drawings:
            self.assertEqual(total, int(drawing[3]))
            self.assertEqual(f"{100 * int(drawing[2]) // total:3}", drawing[1])
        self.assertEqual("Read Data File", drawings[0][4])

    def test_is_drawn_at_most_20_times_a_second(self):
        _, shown, seconds = self.show()
        self.assertLessEqual(len(self.progress(shown)) - 1, 20 * seconds + 1)  # the last one clears the line

    def test_is_not_drawn_under_quiet(self):
        code, shown, _ = self.show("--quiet")
        self.assertEqual((0, self.LOSSES), (code, shown.count("\n")))
        for line in shown.splitlines():
            self.assertRegex(line, FINDING_LINE)

    def test_is_not_drawn_where_stderr_is_no_terminal(self):
        terminal = Terminal()
        options = {**terminal.options(), "stdout": terminal.slave, "stderr": subprocess.PIPE}
        process = self.start(**options)
        terminal.attach()
        err = process.communicate(timeout=SECONDS)[1]
        self.assertEqual(0, process.returncode)
        self.assertNotIn(b"\r", err)
        self.assertRegex(terminal.detach(), r"\AModel  ")

    def test_gives_way_to_the_message_of_a_cancel(self):
        def cancel(process, terminal):
            self.wait_for_reading(process)
            terminal.press_ctrl_c()

        code, shown, _ = self.show(while_running=cancel)
        self.assertEqual(130, code)
        self.assertRegex(shown, r"(\A|\r)(\^C)?satwecvt: cancelled; nothing was written\r\n\Z")


if __name__ == "__main__":
    unittest.main()
