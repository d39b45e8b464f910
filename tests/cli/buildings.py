"""Realistic buildings make no false alarm: whatever a check tells of them is what they have."""

import collections
import json
import unittest

from building.expected import counts, notes, resultants
from building.making import make_building, write_files
from program import IS_WINE, ProgramTest
from reporting import written_lines

SEEDS = range(5 if IS_WINE else 200)
PRECISION = 1e-9  # of the sums of forces, which are added up in another order
AXES = ("fx", "fy", "fz")


class Buildings(ProgramTest):
    def put_building(self, seed):
        building = make_building(seed)
        self.inputs = {}
        for name, content in zip(("structure.sat", "load.sat"), write_files(seed, building)):
            self.put(name, content)
        return building

    def check(self):
        ended = self.run_program("check", "--strict", "--json", "-", "structure.sat", "load.sat")
        self.assertEqual((0, ""), (ended.code, ended.err))
        return json.loads(ended.out)

    def test_of_all_shapes_lose_nothing_and_raise_no_doubt(self):
        for seed in SEEDS:
            with self.subTest(seed):
                building = self.put_building(seed)
                report = self.check()
                self.expect_overview(building, report["overview"])
                self.expect_notes(notes(building), report["findings"])
                self.expect_counts(counts(building), report["counts"])
                self.expect_balance(resultants(building), report["loads"])

    def expect_overview(self, building, overview):
        extents = {axis: [getattr(node, axis) for node in building.nodes()] for axis in "xyz"}
        expected = {axis: [min(places), max(places)] for axis, places in extents.items()}
        self.assertEqual({"stories": len(building.stories), **expected}, overview)

    def expect_notes(self, expected, findings):
        self.assertEqual([], [finding for finding in findings if finding["severity"] != "note"])
        files = {"structure.sat": 0, "load.sat": 1}
        told = [(finding["code"], files[finding["file"]], finding["line"]) for finding in findings]
        self.assertEqual(expected, collections.Counter(told))

    def expect_counts(self, expected, told):
        self.assertEqual(set(expected), set(told))
        for kind, (read, lines) in expected.items():
            lost = None if read is None else 0
            self.assertEqual({"read": read, "converted": read, "lost": lost, "lines": lines}, told[kind], kind)

    def expect_balance(self, expected, rows):
        for row in rows:
            place = (row["story"], row["case"])
            count, sums = expected.pop(place, (0, [(0, 0)] * 3))
            self.assertEqual((count, 0, True), (row["read"]["count"], row["notSummed"], row["holds"]), place)
            for axis, (force, size) in zip(AXES, sums):
                self.assertAlmostEqual(force, row["read"][axis], delta=PRECISION * size, msg=place)
                self.assertEqual(0, row["lost"][axis], place)
        self.assertEqual([], [place for place, (count, _) in expected.items() if count > 0])

    def test_have_as_many_lines_in_the_model_as_the_report_says(self):
        for seed in SEEDS[::5]:
            with self.subTest(seed):
                building = self.put_building(seed)
                self.assertEqual("", self.convert_well("-q", "structure.sat", "load.sat"))
                self.expect_lines(counts(building), written_lines(self.read("structure.vkm")))

    def expect_lines(self, expected, written):
        expected = {kind: lines for kind, (_, lines) in expected.items()}
        self.assertEqual(expected["nodes"], written["*NODE"])
        self.assertEqual(expected["beams"] + expected["columns"] + expected["braces"], written["*ELEMENT BEAM"])
        self.assertEqual(expected["walls"], written["*ELEMENT WALL"])
        self.assertEqual(expected["plates"], written["*ELEMENT PLATE"])
        self.assertEqual(expected["materials"], written["*MATERIAL"])
        self.assertEqual(expected["thicknesses"], written["*THICKNESS"])
        self.assertEqual(expected["supports"], written["*CONSTRAINT"])
        self.assertEqual(2 * expected["releases"], written["*FRAME-RLS"])
        self.assertEqual(expected["offsets"], written["*OFFSET"])
        self.assertEqual(expected["nodalLoads"], written["*CONLOAD"])
        self.assertEqual(expected["beamLoads"], written["*BEAMLOAD"])
        self.assertEqual(expected["pressureLoads"], written["*PRESSURE"])


if __name__ == "__main__":
    unittest.main()
