"""The report that --json writes, held against its schema and against what it tells of."""

import collections
import subprocess
import unittest

import jsonschema

from converting import FRAME_COUNTS, FRAME_READ, FRAME_TOTAL
from program import LOG, PROGRAM, SCHEMA, SECONDS, ProgramTest, needs_posix, sample

STAGES = [f"!!! {text} !!!" for text in (
    "Read Data File", "Write Data File : Node", "Write Data File : Element", "Write Data File : Material",
    "Write Data File : Section", "Write Data File : Thickness", "Write Data File : Support",
    "Write Data File : Beam End Release", "Write Data File : Beam End Offset", "Write Data File : Load Case",
    "Write File : Static Load")]


def force(count, fz, fx=0):
    return {"count": count, "fx": fx, "fy": 0, "fz": fz}


NO_FORCE = force(0, 0)
DEAD = force(3, 12 * (6000 - 2400) + 8 * 1500 + 40000)  # a trapezoid, a triangle, a force on a node
LIVE = force(4, 6 * 6000 + 30000 + 10000 + 8000, 5000)  # a line load, a force on a beam, on a node, on another beam
FRAME_LOADS = [{"story": 1, "case": case, "read": total, "model": total, "lost": NO_FORCE, "notSummed": 0,
                "holds": True} for case, total in (("dead", DEAD), ("live", LIVE))]


def counts_of(report):
    return {kind: (count["read"], count["converted"], count["lost"], count["lines"])
            for kind, count in report["counts"].items()}


def written_lines(model):
    """What stands in the blocks of a model, counted from the text alone: by the word in an element line's second
    place, and by the keyword for the rest. Comments and empty lines do not count."""
    counts = collections.Counter()
    keyword = ""
    for line in model.decode("ascii").splitlines():
        words = line.replace(",", " ").split()
        if line.startswith("*"):
            keyword = words[0]
        elif words and not line.startswith(";"):
            counts[f"{keyword} {words[1]}" if keyword == "*ELEMENT" else keyword] += 1
    return counts


class Report(ProgramTest):
    def expect_frame(self, report, output):
        self.assertEqual((2, 0, 0, output),
                         (report["schema"], report["exitCode"], report["result"], report["output"]))
        self.assertIsNone(report["failure"])
        self.assertEqual({"stories": 1, "x": [0, 6000], "y": [0, 5000], "z": [0, 3600]}, report["overview"])
        self.assertEqual(FRAME_LOADS, report["loads"])
        self.assertEqual([], report["findings"])
        self.assertEqual("satwecvt " + report["version"], self.run_program("--version").out.splitlines()[0])
        self.assertEqual([], report["messages"])
        self.assertEqual(STAGES, report["stages"])
        self.assertEqual({"total": FRAME_TOTAL, "read": FRAME_READ, "steps": FRAME_READ}, report["lines"])
        self.assertEqual(FRAME_COUNTS, counts_of(report))
        self.assertEqual(list(FRAME_COUNTS), list(report["counts"]))
        self.assertEqual([], report["log"])

    def test_goes_to_a_file_beside_the_summary(self):
        self.put_frame("in/frame.sat")
        self.assertRegex(self.convert_well("--json", "report.json", "in/frame.sat", "load.sat"), r"\AModel ")
        self.assertTrue(self.read("report.json").endswith(b"}\n"))
        self.expect_frame(self.report(), "in/frame.vkm")

    def test_on_stdout_stands_alone(self):
        self.put_frame()
        for arguments in (["--json", "-"], ["--json=-"], ["-q", "--json", "-"]):
            with self.subTest(arguments):
                out = self.convert_well(*arguments, "structure.sat", "load.sat")
                self.assertEqual(("{", "}\n"), (out[:1], out[-2:]))
                self.expect_frame(self.valid_report(out), "structure.vkm")

    def test_is_written_under_quiet_too(self):
        self.put_frame()
        self.assertEqual("", self.convert_well("--quiet", "--json", "report.json", "structure.sat", "load.sat"))
        self.expect_frame(self.report(), "structure.vkm")

    def test_replaces_an_old_one(self):
        self.put_frame()
        (self.folder / "report.json").write_bytes(b"x" * 100000)
        self.convert_well("--json", "report.json", "structure.sat", "load.sat")
        self.expect_frame(self.report(), "structure.vkm")

    def test_of_the_tower_counts_what_its_files_hold(self):
        structure, load = sample("tower")
        report = self.valid_report(self.convert_well("--json", "-", *self.put_tower()))
        self.assertEqual(structure.count(b"\n") + load.count(b"\n"), report["lines"]["total"])
        self.assertEqual(report["lines"]["read"], report["lines"]["steps"])
        self.assertEqual(self.read(LOG).decode("ascii").splitlines(), report["log"])

        counts = counts_of(report)
        lines = written_lines(self.read("structure.vkm"))
        written = {kind: count[3] for kind, count in counts.items()}
        self.assertEqual(lines["*NODE"], written["nodes"])
        self.assertEqual(lines["*ELEMENT BEAM"], written["beams"] + written["columns"] + written["braces"])
        self.assertEqual(lines["*ELEMENT WALL"], written["walls"])
        self.assertEqual(lines["*ELEMENT PLATE"], written["plates"])
        self.assertEqual(lines["*MATERIAL"], written["materials"])
        self.assertEqual(lines["*THICKNESS"], written["thicknesses"])
        self.assertEqual(lines["*CONSTRAINT"], written["supports"])
        self.assertEqual(lines["*FRAME-RLS"], 2 * written["releases"])
        self.assertEqual(lines["*OFFSET"], written["offsets"])
        self.assertEqual(lines["*CONLOAD"], written["nodalLoads"])
        self.assertEqual(lines["*BEAMLOAD"], written["beamLoads"])
        self.assertEqual(lines["*PRESSURE"], written["pressureLoads"])
        self.assertEqual((8, 8, 0, 8), counts["stories"])
        self.assertEqual((33, 32, 1, 32), counts["walls"])  # the leaning one
        self.assertEqual((1, 0, 1, 0), counts["otherLoads"])

    def test_of_a_missing_structure_file(self):
        self.put("load.sat", b"0\n")
        ended = self.convert("--json", "report.json", "structure.sat", "load.sat")
        self.assertEqual((1, ""), (ended.code, ended.out))
        report = self.report()
        self.assertEqual((-1, None), (report["result"], report["output"]))
        self.assertEqual(["Can't open structure input file!"], report["messages"])
        self.assertEqual(STAGES[:1], report["stages"])
        self.assertEqual({"total": 1, "read": 0, "steps": 0}, report["lines"])
        self.assertEqual({(0, None, None, 0), (None, None, None, 0)}, set(counts_of(report).values()))
        self.assertEqual({"file": "structure.sat", "text": "cannot be opened: No such file or directory"},
                         report["failure"])
        self.assertEqual((1, None, None, []), (report["exitCode"], report["overview"], report["loads"],
                                               report["findings"]))

    def test_of_a_missing_load_file_counts_the_structure(self):
        self.put_frame()
        ended = self.convert("--json", "-", "structure.sat", "nowhere.sat")
        self.assertEqual(1, ended.code)
        report = self.valid_report(ended.out)
        self.assertEqual((-1, None), (report["result"], report["output"]))
        self.assertEqual(["Can't open load file!"], report["messages"])
        self.assertEqual({"total": 65, "read": 64, "steps": 64}, report["lines"])
        self.assertEqual((8, None, None, 0), counts_of(report)["nodes"])
        self.assertEqual("nowhere.sat", report["failure"]["file"])

    def test_of_a_failure_while_writing_shows_how_far_it_came(self):
        structure, load = sample("frame")
        self.put("structure.sat", structure.replace(b"\n2 6 0 6000    0 3600\n", b"\n1 6 0 6000    0 3600\n"))
        self.put("load.sat", load)
        ended = self.convert("--json", "-", "structure.sat", "load.sat")
        self.assertEqual(1, ended.code)
        report = self.valid_report(ended.out)
        self.assertEqual((-1, None, []), (report["result"], report["output"], report["messages"]))
        self.assertEqual(STAGES[:2], report["stages"])
        self.assertEqual({"file": "structure.sat", "line": 43,
                          "text": "node 1 of story 1 stands here and in line 42: a key may stand once"},
                         report["failure"])

    def log_of_the_tower(self):
        self.convert_well(*self.put_tower("alone/structure.sat", "alone/load.sat"))
        return self.read(LOG).decode("ascii").splitlines()

    @needs_posix("a link to a device")
    def test_has_the_lines_of_the_log_wherever_that_goes(self):
        expected = self.log_of_the_tower()
        self.assertGreater(len(expected), 1)
        (self.folder / LOG).unlink()
        (self.folder / LOG).symlink_to("/dev/null")
        self.assertEqual(expected, self.valid_report(self.convert_well("--json", "-", *self.put_tower()))["log"])

    @needs_posix("two programs at once")
    def test_has_no_line_of_another_conversion_in_the_same_folder(self):
        expected = {"tower.json": self.log_of_the_tower(), "frame.json": []}
        for _ in range(5):
            running = [subprocess.Popen([*PROGRAM, "convert", "-q", "--json", report, *files], cwd=self.folder,
                                        stderr=subprocess.DEVNULL)
                       for report, files in (("tower.json", self.put_tower("tower.sat", "tower_load.sat")),
                                             ("frame.json", self.put_frame("frame.sat", "frame_load.sat")))]
            self.assertEqual([0, 0], [program.wait(SECONDS) for program in running])
            for report, log in expected.items():
                self.assertEqual(log, self.report(report)["log"])

    @needs_posix("a full disk, and a folder that is removed under a program")
    def test_has_no_log_that_is_not_whole(self):
        files = self.put_tower()
        (self.folder / "structure.vkm").symlink_to("/dev/full")
        ended = self.convert("--json", "-", *files)
        self.assertEqual(4, ended.code)
        self.assertEqual([], self.valid_report(ended.out)["log"])

    def test_of_wrong_usage_is_not_written(self):
        self.put_frame()
        self.assertEqual(2, self.convert("--json", "report.json", "structure.sat").code)
        self.assertIsNone(self.read("report.json"))


class Schema(ProgramTest):
    """The schema finds what does not belong into a report."""

    def setUp(self):
        super().setUp()
        self.valid = self.valid_report(self.convert_well("--json", "-", *self.put_frame()))

    def test_requires_every_key_and_no_other(self):
        parts = [self.valid, self.valid["lines"], self.valid["counts"], *self.valid["counts"].values(),
                 self.valid["loads"][0], self.valid["loads"][0]["read"]]
        for part in parts:
            for key in list(part):
                content = part.pop(key)
                self.expect_refused(f"without {key}")
                part[key] = content
            part["another"] = 1
            self.expect_refused("with another key")
            del part["another"]
        SCHEMA.validate(self.valid)

    def test_refuses_what_no_conversion_gives(self):
        for key, content in (("schema", 1), ("version", "one"), ("result", 2), ("messages", [""]),
                             ("exitCode", 5), ("failure", "none"), ("findings", [{}]), ("loads", [{}]),
                            
                             ("stages", STAGES[1:]), ("stages", [*STAGES, STAGES[0]]), ("log", [1])):
            self.valid[key], former = content, self.valid[key]
            self.expect_refused(f"{key}: {content}")
            self.valid[key] = former
        for kind, read in (("nodes", None), ("nodes", -1), ("nodes", 1.5), ("materials", 0)):
            self.valid["counts"][kind]["read"], former = read, self.valid["counts"][kind]["read"]
            self.expect_refused(f"{kind}: {read} read")
            self.valid["counts"][kind]["read"] = former

    def expect_refused(self, why):
        with self.subTest(why), self.assertRaises(jsonschema.ValidationError):
            SCHEMA.validate(self.valid)


if __name__ == "__main__":
    unittest.main()
