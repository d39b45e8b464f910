"""A defect in a realistic building is told: with its code, file, line and object, and with nothing else beside it but
what cannot but come with it. Every defect is planted into several buildings, at places that the seed chooses."""

import inspect
import itertools
import json
import random
import re
import unittest

from building import broken_files, broken_for_good, broken_loads, broken_members, broken_panels
from building.dressing import Plain
from building.expected import is_nothing, notes
from building.files import load_file, structure_file
from building.loads import force
from building.looking import unsupported
from building.making import make_building, write_files
from building.told import NoPlace, of_member
from program import IS_WINE, ROOT, ProgramTest, sample

PLACES = 1 if IS_WINE else 4  # for each defect
FILES = {"structure.sat": 0, "load.sat": 1}


def defects_in(parameters, *modules):
    """The functions of the modules that take these parameters, each with a seed to begin with."""
    functions = [pair for module in modules for pair in inspect.getmembers(module, inspect.isfunction)
                 if inspect.getmodule(pair[1]) is module]
    defects = [pair for pair in functions if [*inspect.signature(pair[1]).parameters] == parameters]
    return [(*pair, 1000 + 7 * number) for number, pair in enumerate(defects)]


def view(finding):
    """What a finding says beside its sentence."""
    place = (finding["code"], finding["severity"], FILES[finding["file"]], finding["line"])
    return (*place, *(finding.get(key) for key in ("kind", "story", "key")))


class Defects(ProgramTest):
    def test_are_there_for_every_code_but_those_of_whole_files_and_of_hostile_ones(self):
        table = (ROOT / "src" / "finding" / "FindingCodes.cpp").read_text(encoding="utf-8")
        codes = set(re.findall(r'\{"([a-z0-9-]+)", EFinding::\w+', table))
        planted_codes = set()
        for name, plant, first in defects_in(["chance", "building"], broken_members, broken_panels, broken_loads):
            _, _, expected = next(planted(plant, first))
            planted_codes |= {name.replace("_", "-"), *(told.code for told in expected)}
        for _, plant, first in defects_in(["chance", "structure", "load"], broken_files):
            planted_codes |= {code for code, _, _ in next(planted_in_files(plant, first))[3]}
        self.assertEqual({"same-file", "files-swapped", "look-incomplete"}, codes - planted_codes)

    def run_check(self, structure, load):
        self.inputs = {}
        self.put("structure.sat", structure)
        self.put("load.sat", load)
        return self.run_program("check", "--json", "-", "structure.sat", "load.sat")

    def check(self, structure, load):
        ended = self.run_check(structure, load)
        self.assertEqual((0, ""), (ended.code, ended.err))
        return json.loads(ended.out)

    def expect_told(self, expected, known, report):
        """`known` are the notes that the building has besides."""
        views = []
        for finding in map(view, report["findings"]):
            if finding[1] == "note" and known[finding[0], *finding[2:4]] > 0:
                known[finding[0], *finding[2:4]] -= 1
            else:
                views.append(finding)
        for told in expected:
            choices = list(told.views())
            found = next((choice for choice in choices if choice in views), None)
            self.assertIsNotNone(found, f"{choices} is not among {views}")
            views.remove(found)
        self.assertEqual([], views)
        self.assertEqual(0, sum(known.values()), known)

    def expect_balance(self, expected, building, rows):
        """What is lost of the forces, unless it is no simple sum."""
        for row in rows:
            self.assertTrue(row["holds"], row)
            if all(told.lost for told in expected):
                is_dead = row["case"] == "dead"
                lost = sum(told.lost for told in expected
                           if told.story.key == row["story"] and (told.load.case == 0) == is_dead)
                lost += sum(force(load)[2] for load in building.loads.get(row["story"], ())
                            if is_nothing(load) and (load.case == 0) == is_dead)
                self.assertAlmostEqual(lost, row["lost"]["fz"], delta=1e-9 * abs(lost))

    def expect_whole_counts(self, counts):
        for kind, count in counts.items():
            if count["read"] is not None:
                self.assertEqual(count["read"], count["converted"] + count["lost"], kind)

    def test_of_members_panels_and_loads_are_told_where_they_are(self):
        for name, plant, first in defects_in(["chance", "building"], broken_members, broken_panels, broken_loads):
            for seed, building, expected in planted(plant, first):
                with self.subTest(name, seed=seed):
                    files = write_files(seed, building)
                    expected += [of_member("not-supported", *part) for part in unsupported(building)]
                    report = self.check(*files)
                    self.expect_told(expected, notes(building), report)
                    self.expect_balance([told for told in expected if told.load], building, report["loads"])
                    self.expect_whole_counts(report["counts"])

    def test_of_the_files_are_told_where_they_are(self):
        for name, plant, first in defects_in(["chance", "structure", "load"], broken_files):
            for seed, structure, load, expected in planted_in_files(plant, first):
                with self.subTest(name, seed=seed):
                    report = self.check(structure, load)
                    told = [finding for finding in report["findings"] if finding["severity"] != "note"]
                    places = [(finding["code"], FILES[finding["file"]], finding["line"]) for finding in told]
                    self.assertEqual(sorted(expected), sorted(places))
                    self.assertEqual([], [row for row in report["loads"] if not row["holds"]])
                    self.expect_whole_counts(report["counts"])

    def test_that_no_model_can_have_end_the_check_and_name_the_line(self):
        for name, plant, first in defects_in(["chance", "building"], broken_for_good):
            for seed, building, (file, line, other) in planted(plant, first):
                with self.subTest(name, seed=seed):
                    ended = self.run_check(*write_files(seed, building))
                    self.assertEqual(1, ended.code)
                    failure = json.loads(ended.out)["failure"]
                    self.assertEqual((file, line()), (FILES[failure["file"]], failure["line"]))
                    self.assertIn(other(), failure["text"])

    def told_of_slab(self, lines):
        """The frame's slab, written in another way."""
        structure, load = sample("frame")
        return [finding["code"] for finding in
                self.check(structure.replace(b"1 4 0 120 5 6 7 8\n", lines), load)["findings"]]

    def test_a_corner_that_a_line_begins_with_again_is_none(self):
        self.assertEqual([], self.told_of_slab(b"1 4 0 120 5 6 7\n7 8\n"))
        self.assertEqual([], self.told_of_slab(b"1 4 0 120 5 6 0.7E1\n0.7E1 8\n"))

    def test_a_corner_with_a_small_letter_that_a_line_begins_with_again_is_none(self):
        self.assertEqual([], self.told_of_slab(b"1 4 0 120 5 6 0.7e1\n0.7e1 8\n"))

    def test_a_calculation_that_a_line_begins_with_again_is_told(self):
        self.assertIn("not-a-number", self.told_of_slab(b"1 4 0 120 5 5+1\n5+1 7 8\n"))


def planted_in_files(plant, first):
    """Plainly written, so that each line is where it is looked for."""
    def plant_lines(chance, building):
        files = structure_file(building, Plain()), load_file(building, Plain())
        return plant(chance, *(content.splitlines() for content in files))

    for seed, _, (structure, load, expected) in planted(plant_lines, first):
        yield seed, structure, load, expected


def planted(plant, first):
    """The next buildings that have a place for the defect."""
    found = 0
    for seed in itertools.count(first):
        building = make_building(seed)
        try:
            expected = plant(random.Random(seed), building)
        except NoPlace:
            continue
        yield seed, building, expected
        found += 1
        if found == PLACES:
            return


if __name__ == "__main__":
    unittest.main()
