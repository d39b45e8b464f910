"""Every system call on a file of the conversion fails once: a read or an open of an input, a write or a close of an
output. Either the outputs are whole all the same, or the exit code and a message tell what is wrong."""

import os
import unittest

from outputs import MODEL
from program import LOG
from traced import TracedTest

NAMES = ("structure.sat", "load.sat", MODEL, LOG)


class FailingCalls(TracedTest):
    def setUp(self):
        super().setUp()
        paths = [*NAMES, *(str(self.folder / name) for name in NAMES)]
        self.of_these_files = [option for path in paths for option in ("-P", path)]

    def harm(self, call, error, expect):
        """Fails each of these calls in its turn, looks at how it ended, and returns the exit codes."""
        count = self.calls(*self.of_these_files)[call]
        self.assertGreater(count, 0)
        codes = []
        for number in range(1, count + 1):
            with self.subTest(call=call, error=error, number=number):
                ended = self.trace(*self.of_these_files, "-e", f"inject={call}:error={error}:when={number}")
                codes.append(ended.code)
                self.expect_beginnings()
                expect(ended)
            self.remove_outputs()
        print(f"figure: {count} calls of {call} failed with {error}", flush=True)
        return codes

    def expect_told(self, ended, cause):
        """A failure is told, as that of an input or that of an output; all else goes on as if nothing had been."""
        self.assertIn(ended.code, (0, 1, 4))
        if ended.code == 0:
            self.assertEqual("", ended.err)
            self.expect_whole_outputs()
        else:
            self.assertEqual("", ended.out)
            self.assertRegex(ended.err, rf"\A(satwecvt: Can't open .*\n)?satwecvt: .*{cause}.*\n\Z")

    def test_open(self):
        for error, cause in (("EIO", "Input/output error"), ("ENOSPC", "No space left on device"),
                             ("EMFILE", "Too many open files")):
            codes = self.harm("openat", error, lambda ended, told=cause: self.expect_told(ended, told))
            # Both inputs to count their lines, both to read them; log and model.
            self.assertEqual([0, 0, 1, 1, 4, 4], codes)

    def test_status(self):
        # Which call it is depends on the C library, and on a sanitizer in front of it.
        call = "fstat" if self.calls(*self.of_these_files)["fstat"] else "newfstatat"
        cause = "(Input/output error|input file|message log)"
        codes = self.harm(call, "EIO", lambda ended: self.expect_told(ended, cause))
        # Both inputs, to count their lines, by their paths for whether they are one file, and to read them; log and
        # model, which may be neither input nor one file.
        are_one_file = [0, 0] if call == "newfstatat" else []
        expected = [0, 0, *are_one_file, 1, 1]
        self.assertEqual(expected, codes[:len(expected)])

    def test_read(self):
        loads_cut_short = []

        def expect(ended):
            if "loss" in ended.err:
                loads_cut_short.append(ended.code)
                self.assertRegex(ended.err, r"\Aload\.sat: loss: the system refuses to read on \(Input/output error\) "
                                 r"in block 1 of \d: 0 loads read, .*\[ends-early\]\n\Z")
            else:
                self.expect_told(ended, "Input/output error")

        codes = self.harm("read", "EIO", expect)
        # The bytes and the end of each input, to count the lines and to read them. An end is nothing that the reading
        # needs, and no read of the load file makes a conversion fail.
        self.assertEqual([0, 0, 0, 0, 1, 0, 0, 0], codes)
        self.assertEqual([0], loads_cut_short)

    def test_write(self):
        for error, cause in (("EIO", "Input/output error"), ("ENOSPC", "No space left on device"),
                             ("EFBIG", "File too large"), ("EDQUOT", "Disk quota exceeded")):
            codes = self.harm("write", error, lambda ended, told=cause: self.expect_one_message(ended, told))
            self.assertGreaterEqual(len(codes), 2)

    def test_close(self):
        for error, cause in (("EIO", "Input/output error"), ("ENOSPC", "No space left on device"),
                             ("EDQUOT", "Disk quota exceeded")):
            codes = self.harm("close", error, lambda ended, told=cause: self.expect_told(ended, told))
            # The inputs, twice each; the model and the log.
            self.assertEqual([0, 0, 0, 0, 4, 4], codes)

    def test_status_of_an_output_that_is_an_input(self):
        os.link(self.folder / "load.sat", self.folder / LOG)
        self.assertEqual(4, self.trace().code)
        status_calls = {call: count for call, count in self.recorded_calls().items() if "stat" in call}
        self.assertGreater(sum(status_calls.values()), 4)
        for call, count in status_calls.items():
            for number in range(1, count + 1):
                with self.subTest(call=call, number=number):
                    self.trace("-e", f"inject={call}:error=EIO:when={number}")  # looks at the inputs

    def test_interrupted_calls_are_no_failures(self):
        for call in ("read", "write", "close"):
            self.assertEqual({0}, set(self.harm(call, "EINTR", lambda ended: self.expect_told(ended, ""))))


if __name__ == "__main__":
    unittest.main()
