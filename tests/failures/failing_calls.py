"""Every system call on a file of the conversion fails once: a read or an open of an input, a write or a close of an
output, its way to its place. Either the outputs are whole all the same, or the exit code and a message tell what is
wrong, and the old outputs are as they were."""

import os
import re
import unittest

from outputs import MODEL, OLD
from program import LOG
from traced import TracedTest

INPUT = re.compile(r"structure\.sat|load\.sat")
OUTPUT = re.compile(r"structure\.vkm|satwecvt\.msg")  # under a temporary name, too


def is_on(files, call, arguments):
    """Whether a call is on one of the files; what is written may name some, too."""
    return files.search(arguments.partition(">")[0] if call == "write" else arguments) is not None


class FailingCalls(TracedTest):
    def recorded_calls_on(self, call, files):
        """The number, counted from 1 among all calls of this name, and the arguments of each that is on the files."""
        arguments = [arguments for name, arguments in self.recorded_calls() if name == call]
        return [(number, text) for number, text in enumerate(arguments, 1) if is_on(files, call, text)]

    def calls_on(self, call, files):
        """Those of an undisturbed conversion."""
        self.calls()
        return self.recorded_calls_on(call, files)

    def fail_call(self, call, error, index, files):
        """Fails this one of the calls on the files. A sanitizer makes calls of its own, more or fewer each time, and
        moves the numbers of all others: another call that failed in its place is passed over."""
        for _ in range(50):
            number, _ = self.calls_on(call, files)[index]
            self.put_old_outputs()
            ended = self.trace("-e", f"inject={call}:error={error}:when={number}")
            harmed = ["(INJECTED)" in arguments for _, arguments in self.recorded_calls_on(call, files)]
            if True in harmed and harmed.index(True) == index:
                return ended
        return self.fail("the call was never met")

    def harm(self, call, error, files, expect):
        """Fails each of these calls in its turn, looks at how it ended, and returns the exit codes."""
        count = len(self.calls_on(call, files))
        self.assertGreater(count, 0)
        codes = []
        for index in range(count):
            with self.subTest(call=call, error=error, index=index):
                ended = self.fail_call(call, error, index, files)
                codes.append(ended.code)
                self.expect_no_other_files()
                expect(ended)
        print(f"figure: {count} calls of {call} failed with {error}", flush=True)
        return codes

    def expect_told(self, ended, cause):
        """A failure is told, as that of an input or that of an output; all else goes on as if nothing had been."""
        self.expect_old_or_new_outputs()
        if ended.code == 0:
            self.expect_findings(ended.err.splitlines())
            self.expect_whole_outputs()
        else:
            self.assertIn(ended.code, (1, 4))
            self.expect_one_message(ended, cause, ended.code)
            self.assertTrue(self.read(MODEL) == OLD[MODEL], "a failure, and a new model")

    def test_open_of_inputs(self):
        for error, cause in (("EIO", "Input/output error"), ("EMFILE", "Too many open files")):
            codes = self.harm("openat", error, INPUT, lambda ended, told=cause: self.expect_told(ended, told))
            self.assertEqual([0, 0, 1, 1], codes)  # both to count their lines, both to read them

    def test_open_of_outputs(self):
        for error, cause in (("EIO", "Input/output error"), ("ENOSPC", "No space left on device"),
                             ("EMFILE", "Too many open files")):
            self.harm("openat", error, OUTPUT, lambda ended, told=cause: self.expect_told(ended, told))

    def test_status(self):
        # Which call it is depends on the C library, and on a sanitizer in front of it.
        cause = "(Input/output error|input file|message log)"
        for call in ("fstat", "newfstatat"):
            for files in (INPUT, OUTPUT):
                if self.calls_on(call, files):
                    self.harm(call, "EIO", files, lambda ended: self.expect_told(ended, cause))

    def test_read(self):
        loads_cut_short = []

        def expect(ended):
            if "refuses to read on" in ended.err:
                loads_cut_short.append(ended.code)
                self.assertRegex(ended.err, r"(?m)^load\.sat: loss: the system refuses to read on \(Input/output error\) "
                                 r"in block 1 of \d: 0 loads read, .*\[ends-early\]$")
            else:
                self.expect_told(ended, "Input/output error")

        codes = self.harm("read", "EIO", INPUT, expect)
        # The bytes and the end of each input, to count the lines and to read them. An end is nothing that the reading
        # needs, and no read of the load file makes a conversion fail.
        self.assertEqual([0, 0, 0, 0, 1, 0, 0, 0], codes)
        self.assertEqual([0], loads_cut_short)

    def test_write(self):
        for error, cause in (("EIO", "Input/output error"), ("ENOSPC", "No space left on device"),
                             ("EFBIG", "File too large"), ("EDQUOT", "Disk quota exceeded")):
            codes = self.harm("write", error, OUTPUT, lambda ended, told=cause: self.expect_told(ended, told))
            self.assertGreaterEqual(len(codes), 2)
            self.assertEqual({4}, set(codes))

    def test_close_of_inputs(self):
        codes = self.harm("close", "EIO", INPUT, lambda ended: self.expect_told(ended, ""))
        self.assertEqual([0, 0, 0, 0], codes)  # both to count their lines, both to read them

    def test_close_of_outputs(self):
        for error, cause in (("EIO", "Input/output error"), ("ENOSPC", "No space left on device"),
                             ("EDQUOT", "Disk quota exceeded")):
            self.harm("close", error, OUTPUT, lambda ended, told=cause: self.expect_told(ended, told))

    def test_way_to_their_places(self):
        for call in ("fsync", "rename"):
            codes = self.harm(call, "EIO", OUTPUT, lambda ended: self.expect_told(ended, "Input/output error"))
            self.assertEqual([4, 4], codes, call)

    def test_status_of_an_output_that_is_an_input(self):
        os.link(self.folder / "load.sat", self.folder / LOG)
        self.assertEqual(4, self.trace().code)
        calls = [call for call, _ in self.recorded_calls() if "stat" in call]
        self.assertGreater(len(calls), 4)
        for call in set(calls):
            for number in range(1, calls.count(call) + 1):
                with self.subTest(call=call, number=number):
                    self.trace("-e", f"inject={call}:error=EIO:when={number}")  # looks at the inputs

    def test_interrupted_calls_are_no_failures(self):
        for call in ("read", "write", "close"):
            files = INPUT if call == "read" else OUTPUT
            self.assertEqual({0}, set(self.harm(call, "EINTR", files, lambda ended: self.expect_told(ended, ""))))


if __name__ == "__main__":
    unittest.main()
