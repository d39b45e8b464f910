"""Ten times the lines take ten times the time, whatever stands in them; and what a file only announces takes none.

Environment: SATWECVT is the program, with a command in front of it where it needs one. SATWECVT_LINES is how many lines
the longer file of each pair has: 100000 when it is not set, and a million is a good number for a machine with time."""

import collections
import operator
import os
import pathlib
import shlex
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))

from families import FAMILIES, GRADES, SECTION, SUPPORT, corners, header  # noqa: E402

PROGRAM = shlex.split(os.environ["SATWECVT"])
LINES = int(os.environ.get("SATWECVT_LINES", "100000"))
STEP = 10
MOST_GROWTH = 15  # of the time, for ten times the lines: n log n takes up to 12.5 times, and caches end
MOST_SECONDS = 5
RUNS = 3
ROUNDS = 3
SECONDS_OF = operator.attrgetter("seconds")
MOST = 2147483647

Run = collections.namedtuple("Run", "code seconds megabytes")


class TimedTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="satwecvt-")))

    def put(self, name, pieces):
        with open(self.folder / name, "w", encoding="ascii", newline="\n") as file:
            file.writelines(pieces)

    def put_inputs(self, structure, load):
        self.put("structure.sat", structure)
        self.put("load.sat", load)

    def run_once(self):
        """Converts, and returns exit code, CPU time and peak memory."""
        process = os.fork()
        if process == 0:
            try:
                self.become_program()
            finally:
                os._exit(127)  # there was no program
        _, status, usage = os.wait4(process, 0)
        return Run(os.waitstatus_to_exitcode(status), usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024)

    def become_program(self):
        os.chdir(self.folder)
        nothing = os.open(os.devnull, os.O_RDWR)
        for stream in (0, 1, 2):
            os.dup2(nothing, stream)
        os.execv(PROGRAM[0], [*PROGRAM, "convert", "-q", "structure.sat", "load.sat"])


class Families(TimedTest):
    def test_take_time_in_proportion_to_their_lines(self):
        for family in FAMILIES:
            with self.subTest(family.__name__):
                self.expect_linear(family)

    def expect_linear(self, family):
        """The best of some runs counts; growth that is too much has to be so again and again, on a busy machine too."""
        short, long = self.measure(family, LINES // STEP), self.measure(family, LINES)
        for _ in range(ROUNDS - 1):
            if long.seconds > MOST_GROWTH * short.seconds:
                short = min(short, self.measure(family, LINES // STEP), key=SECONDS_OF)
                long = min(long, self.measure(family, LINES), key=SECONDS_OF)
        growth = long.seconds / short.seconds
        print(f"figure: {family.__name__:36} {1000 * short.seconds:8.1f} ms {1000 * long.seconds:8.1f} ms "
              f"{growth:6.2f} {long.megabytes:7.1f} MB  exit code {long.code}", flush=True)
        self.assertEqual(short.code, long.code)
        self.assertIn(long.code, (0, 1))
        self.assertLess(long.seconds, MOST_SECONDS)
        self.assertLessEqual(growth, MOST_GROWTH)

    def measure(self, family, lines):
        self.put_inputs(*family(lines))
        return min((self.run_once() for _ in range(RUNS)), key=SECONDS_OF)


def announcing(head=(1, 1, 1), story=(4, 0, 0, 0, 0, 0), members="", loads=0):
    """A building of one story with four nodes, whose counts may be whatever they like."""
    structure = (header(*head) + SECTION + SUPPORT + "1 1 0\n1\n" + GRADES + " ".join(map(str, story)) + "\n" +
                 corners() + members)
    return structure.ljust(1023) + "\n", f"{loads}\n1 11 12 0 1 2 3\n"


def one_of_the_story(index):
    return tuple(MOST if place == index else 4 * (place == 0) for place in range(6))


ANNOUNCEMENTS = {
    "stories": announcing(head=(MOST, 1, 1)),
    "sections": announcing(head=(1, MOST, 1)),
    "support nodes": announcing(head=(1, 1, MOST)),
    "nodes": announcing(story=one_of_the_story(0)),
    "beams": announcing(story=one_of_the_story(1), members="1 11 12 1 0 0 0\n"),
    "columns": announcing(story=one_of_the_story(2), members="1 1 11 1 0 0 0\n"),
    "braces": announcing(story=one_of_the_story(3), members="1 1 12 1 0 0 0\n"),
    "walls": announcing(story=one_of_the_story(4), members="1 2 0 0 0 200 0 0 0 0\n11 12 13 14\n"),
    "wall points": announcing(story=(4, 0, 0, 0, 1, 0), members=f"1 {MOST} 0 0 0 200 0 0 0 0\n11 12 13 14\n"),
    "further wall points": announcing(story=(4, 0, 0, 0, 1, 0), members=f"1 2 {MOST} 0 0 200 0 0 0 0\n11 12 13 14\n"),
    "plates": announcing(story=one_of_the_story(5), members="1 3 0 120 11 12 13\n"),
    "plate corners": announcing(story=(4, 0, 0, 0, 0, 1), members=f"1 {MOST} 0 120 11 12 13\n"),
    "loads": announcing(loads=MOST),
    "everything": announcing(head=(MOST, 1, 1), story=(4, MOST, MOST, MOST, MOST, MOST), loads=MOST),
}


class Announcements(TimedTest):
    """A file of one kilobyte that announces as many as can be."""

    def test_end_at_once(self):
        for name, inputs in ANNOUNCEMENTS.items():
            with self.subTest(name):
                self.put_inputs(*inputs)
                run = self.run_once()
                self.assertEqual(0 if name == "loads" else 1, run.code)
                self.assertLess(run.seconds, 0.5)
                self.assertLess(run.megabytes, 64)


if __name__ == "__main__":
    unittest.main()
