"""Memory, descriptors and the standard streams, none of which has to be there."""

import itertools
import os
import resource
import unittest

from outputs import HarmTest

MEGABYTE = 1 << 20


class Scarce(HarmTest):
    def convert_with(self, limit, *arguments):
        return self.convert(*arguments, "structure.sat", "load.sat", preexec_fn=limit)

    def limit_memory(self, size):
        return lambda: resource.setrlimit(resource.RLIMIT_AS, (size, size))

    def skip_with_sanitizers(self):
        if self.run_program("--version", preexec_fn=self.limit_memory(1024 * MEGABYTE)).code != 0:
            self.skipTest("sanitizers take all the addresses there are, and descriptors of their own")

    def least_memory(self):
        """What the program takes to start."""
        return next(size for size in range(MEGABYTE, 1024 * MEGABYTE, MEGABYTE // 4)
                    if self.run_program("--version", preexec_fn=self.limit_memory(size)).code == 0)

    def test_memory(self):
        self.skip_with_sanitizers()
        self.enlarge_inputs()
        started = self.least_memory()
        codes = set()
        for size in range(started, started + 24 * MEGABYTE, MEGABYTE // 4):
            with self.subTest(size=size):
                self.put_old_outputs()
                ended = self.convert_with(self.limit_memory(size), "-q")
                codes.add(ended.code)
                self.assertIn(ended.code, (0, 1))
                self.expect_no_other_files()
                self.expect_old_or_new_outputs()
                if ended.code:
                    self.expect_one_message(ended, "(out of memory|bad_alloc)", 1)
        self.assertEqual({0, 1}, codes)

    def test_memory_for_a_check(self):
        """The model that it holds in memory is none of the outputs that a user could look for."""
        self.skip_with_sanitizers()
        self.enlarge_inputs()
        started = self.least_memory()
        codes = set()
        for size in range(started, started + 64 * MEGABYTE, MEGABYTE):
            with self.subTest(size=size):
                ended = self.run_program("check", "structure.sat", "load.sat", preexec_fn=self.limit_memory(size))
                codes.add(ended.code)
                if ended.code:
                    self.assertEqual(1, ended.code)
                    self.assertRegex(ended.err, r"\Asatwecvt: error: (out of memory|std::bad_alloc)\n\Z")
        self.assertEqual({0, 1}, codes)

    def enlarge_inputs(self):
        """A story of nodes alone, and as many loads: some megabytes of records."""
        nodes = b"".join(b"%d %d 0 0 0 3600\n" % (number, number) for number in range(1, 50001))
        self.put("structure.sat", b"1 1 1\n1 1 6 0 1 1 0 0 0 0\n0 0 0 0\n1 1 0 0 0 0\n1 1 0\n1\n3 30 30 30 30 3\n"
                                  b"50000 0 0 0 0 0\n" + nodes)
        self.put("load.sat", b"50000\n" + b"1 1 12 0 1 2 3\n" * 50000)
        self.convert_well("-q", "structure.sat", "load.sat")
        self.whole = {name: self.read(name) for name in self.whole}

    def test_descriptors(self):
        def limit_to(count):
            return lambda: resource.setrlimit(resource.RLIMIT_NOFILE, (count, count))

        self.skip_with_sanitizers()
        ended = self.convert_with(limit_to(4))  # the log takes the only one left
        self.expect_one_message(ended, "structure.vkm could not be written: Too many open files")
        self.assertEqual(0, self.convert_with(limit_to(5)).code)
        self.expect_whole_outputs()
        self.remove_outputs()
        self.assertEqual(0, self.convert_with(limit_to(4), "--log", "/dev/null").code)  # takes one at the end only

    def test_standard_streams(self):
        """A stream that is not there leaves its number to the next file: what is printed must not end up in it."""
        for count in (1, 2, 3):
            for closed in itertools.combinations((0, 1, 2), count):
                with self.subTest(closed=closed):
                    self.remove_outputs()
                    ended = self.convert_with(lambda streams=closed: [os.close(stream) for stream in streams])
                    self.assertEqual(4 if 1 in closed else 0, ended.code)
                    self.expect_whole_outputs()


if __name__ == "__main__":
    unittest.main()
