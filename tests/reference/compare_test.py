"""Holds the program against the reference converter: an independent implementation that is slow and plain.

The samples and a number of randomly damaged buildings go through both; the model text file, the message log and what
the user is told have to agree to the last byte. The argument is the number of damaged buildings. Environment: SATWECVT is
the program, SATWECVT_ROOT the project; SATWECVT_SEED makes other runs.
"""

import json
import os
import pathlib
import random
import shlex
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
import reference  # noqa: E402

ROOT = pathlib.Path(os.environ["SATWECVT_ROOT"])
PROGRAM = shlex.split(os.environ["SATWECVT"])
COMPARISONS = int(sys.argv.pop())
SEED = int(os.environ.get("SATWECVT_SEED", "1"))

HOSTILE_TOKENS = [b"0", b"-1", b"2147483647", b"1e20", b"-1e20", b"nan", b"-inf", b"1e999", b"0x1p3", b"1D5", b"3*-2",
                  b"1/0", b"2+3*4", b"-0", b"1e-310", b"0.1", b"1,2", b",", b"N=3", b"=", b"c", b"\t", b"12345678901"]
HOSTILE_BYTES = [b"\x00", b"\r", b"\x1a", b"\n", b"\r\n", b",", b"=", b" ", b"-", b"*", b"E", b"\xff"]


def read(path):
    try:
        return pathlib.Path(path).read_bytes()
    except FileNotFoundError:
        return None


def run_program(folder, structure, load):
    """Converts with the program; the inputs are given as bytes, None stands for a missing file."""
    write_inputs(folder, structure, load)
    ended = subprocess.run(PROGRAM + ["convert", "--json", "-", "structure.sat", "load.sat"], cwd=folder,
                           capture_output=True, check=False)
    report = json.loads(ended.stdout)
    return {"result": report["result"], "messages": report["messages"], "stages": report["stages"],
            "total": report["lines"]["total"], "lineCounter": report["lines"]["read"],
            "steps": report["lines"]["steps"]}, read(folder / "structure.vkm"), read(folder / "satwecvt.msg")


def run_reference(folder, structure, load):
    write_inputs(folder, structure, load)
    previous = os.getcwd()
    os.chdir(folder)
    try:
        told = reference.convert("structure.sat", "load.sat")
    finally:
        os.chdir(previous)
    return told, read(folder / "structure.vkm"), read(folder / "satwecvt.msg")


def write_inputs(folder, structure, load):
    for name, content in (("structure.sat", structure), ("load.sat", load)):
        if content is not None:
            (folder / name).write_bytes(content)


def damage(rng, content):
    """One to four random changes of the kinds that a hand, a program or a disk makes."""
    for _ in range(rng.choice([1, 1, 1, 2, 3, 4])):
        lines = content.split(b"\n")
        at = rng.randrange(len(lines))
        kind = rng.randrange(9)
        if kind < 4:
            tokens = lines[at].split(b" ")
            tokens[rng.randrange(len(tokens))] = rng.choice(HOSTILE_TOKENS)
            lines[at] = b" ".join(tokens)
        elif kind == 4:
            where = rng.randrange(len(lines[at]) + 1)
            lines[at] = lines[at][:where] + rng.choice(HOSTILE_BYTES) + lines[at][where:]
        elif kind == 5:
            lines.insert(at, lines[rng.randrange(len(lines))])
        elif kind == 6:
            del lines[at]
        elif kind == 7:
            lines[at] = b" ".join([lines[at]] * rng.choice([2, 5, 40]))
        else:
            other = rng.randrange(len(lines))
            lines[at], lines[other] = lines[other], lines[at]
        content = b"\n".join(lines)
        if not content:
            break
        if rng.random() < 0.05:
            content = content[: rng.randrange(len(content) + 1)]
    return content


def inputs_of(folder):
    return read(folder / "structure.sat"), read(folder / "load.sat")


def starting_points():
    """Small inputs, so that a damage meets something that counts."""
    cases = [inputs_of(folder) for folder in sorted((ROOT / "tests" / "cases").iterdir())]
    whole = [case for case in cases if None not in case and all(len(part) < 6000 for part in case)]
    return whole + [inputs_of(ROOT / "samples" / "frame")] * (len(whole) // 4)


class Comparison(unittest.TestCase):
    maxDiff = 2000

    def compare(self, structure, load):
        with tempfile.TemporaryDirectory() as ours, tempfile.TemporaryDirectory() as theirs:
            program = run_program(pathlib.Path(ours), structure, load)
            expected = run_reference(pathlib.Path(theirs), structure, load)
            self.assertEqual(expected[0], program[0])
            self.assertEqual(expected[1], program[1])
            self.assertEqual(expected[2], program[2])

    def test_samples(self):
        for name in ("frame", "tower"):
            with self.subTest(name):
                self.compare(*inputs_of(ROOT / "samples" / name))

    def test_damaged_buildings(self):
        rng = random.Random(SEED)
        points = starting_points()
        for number in range(COMPARISONS):
            structure, load = rng.choice(points)
            if rng.random() < 0.75 and structure:
                structure = damage(rng, structure)
            else:
                load = damage(rng, load)
            with self.subTest(number=number, structure=structure, load=load):
                self.compare(structure, load)


if __name__ == "__main__":
    unittest.main()
