"""Holds the library against the reference converter: an independent implementation that is slow and plain.

The samples and a number of randomly damaged buildings go through both; the model text file and the message log, whole
or not, and what the user is told have to agree to the last byte. The argument is the number of damaged buildings.
Environment: LIBRARY_CONVERSION is library_conversion, with a command in front of it where it needs one, SATWECVT_ROOT
the project; SATWECVT_SEED makes other runs.
"""

import json
import multiprocessing
import os
import pathlib
import random
import shlex
import subprocess
import sys
import tempfile
import traceback
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
import reference  # noqa: E402
from damage import ROOT, damaged_buildings, inputs_of, read  # noqa: E402

LIBRARY_CONVERSION = shlex.split(os.environ["LIBRARY_CONVERSION"])
COMPARISONS = int(sys.argv.pop())
SEED = int(os.environ.get("SATWECVT_SEED", "1"))


def run_library(folder, structure, load):
    """Converts with the library; the inputs are given as bytes, None stands for a missing file."""
    write_inputs(folder, structure, load)
    ended = subprocess.run([*LIBRARY_CONVERSION, "structure.sat", "load.sat"], cwd=folder, capture_output=True,
                           check=True)
    told = json.loads(ended.stdout)
    assert told.pop("fileErrors") == []
    return told, read(folder / "structure.vkm"), read(folder / "satwecvt.msg")


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


def convert_both(building):
    """The inputs, what each of the two makes of them, and how one of them ended that made nothing."""
    try:
        with tempfile.TemporaryDirectory() as ours, tempfile.TemporaryDirectory() as theirs:
            expected = run_reference(pathlib.Path(theirs), *building)
            return building, expected, run_library(pathlib.Path(ours), *building), None
    except Exception:  # of whatever kind: the other buildings are still to come
        return building, None, None, traceback.format_exc()


class Comparison(unittest.TestCase):
    maxDiff = 2000

    def compare(self, buildings):
        """One building on each processor."""
        with multiprocessing.Pool() as pool:
            for number, (building, expected, library, fault) in enumerate(pool.imap(convert_both, buildings)):
                with self.subTest(number=number, building=building):
                    self.assertIsNone(fault)
                    self.assertEqual(expected[0], library[0])
                    self.assertEqual(expected[1], library[1])
                    self.assertEqual(expected[2], library[2])

    def test_samples(self):
        self.compare(inputs_of(ROOT / "samples" / name) for name in ("frame", "tower"))

    def test_damaged_buildings(self):
        self.compare(damaged_buildings(random.Random(SEED), COMPARISONS))
        print(f"figure: {COMPARISONS} damaged buildings held against the second converter (seed {SEED})", flush=True)


if __name__ == "__main__":
    unittest.main()
