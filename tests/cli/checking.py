"""What `check` prints and what --strict refuses."""

import os
import re
import unittest

from exit_codes import FailureTest
from program import FINDING_LINE, LOG, ProgramTest, needs_posix, sample
from reporting import FRAME_LOADS

# By hand, from the frame's two files: their counts, and the loads by their formulas as reporting.py has them.
FRAME_CHECK = """\
Model     1 story, z 0 to 3600; x 0 to 6000, y 0 to 5000
Kind                 read  converted      lost   lines in the model
stories                 1          1         0   1
nodes                   8          8         0   8
beams                   4          4         0   4
columns                 4          4         0   4
braces                  0          0         0   0
walls                   0          0         0   0
plates                  1          1         0   2
materials                                        4
sections                3          3         0   3
thicknesses                                      1
supports                                         4
releases                                         1
offsets                                          1
nodal loads             2          2         0   3
beam loads              5          5         0   7
pressure loads          0          0         0   0
other loads             0          0         0   0

Loads, in the units of the files, down is positive
Story        dead: read    in model        lost     live: read    in model        lost   both in LiveLoad
    1             95200       95200           -          84000       84000           -             179200

Along x, positive in its direction
Story        dead: read    in model        lost     live: read    in model        lost   both in LiveLoad
    1                 0           0           -           5000        5000           -               5000
LiveLoad holds the dead loads too: do not add it to DeadLoad. Equal forces are not equal moments.

0 losses, 0 doubts, 0 notes
"""

TOWER_CODES = {"wall-not-upright": 1, "wall-opening": 8, "load-type": 1, "zero-load": 1}


class Checking(FailureTest):
    def check(self, *arguments, **options):
        return self.run_program("check", *arguments, **options)

    def test_tells_building_counts_loads_and_findings(self):
        self.put_frame()
        ended = self.check("structure.sat", "load.sat")
        self.assertEqual((0, FRAME_CHECK, ""), (ended.code, ended.out, ended.err))

    def test_writes_nothing(self):
        self.put_tower()
        self.check("structure.sat", "load.sat")
        self.assertEqual(set(), self.new_files())

    def test_leaves_outputs_as_they_are(self):
        self.put_tower()
        self.put_old_outputs()
        self.check("structure.sat", "load.sat")
        self.expect_old_outputs()

    def test_of_the_tower_tells_its_oddities_and_no_others(self):
        self.put_tower()
        ended = self.check("structure.sat", "load.sat")
        self.assertEqual((0, ""), (ended.code, ended.err))
        findings = [line for line in ended.out.splitlines() if re.match(FINDING_LINE, line)]
        codes = [re.search(r"\[([a-z-]+)\]$", line)[1] for line in findings]
        self.assertEqual(TOWER_CODES, {code: codes.count(code) for code in codes})
        self.assertTrue(ended.out.endswith("\n10 losses, 0 doubts, 1 note\n"))
        self.assertIn("\nwalls                  33         32         1   32\n", ended.out)

    def test_reports_the_same(self):
        self.put_frame()
        ended = self.check("--json", "-", "structure.sat", "load.sat")
        self.assertEqual((0, ""), (ended.code, ended.err))
        report = self.valid_report(ended.out)
        self.assertEqual((0, 0, None, []), (report["exitCode"], report["result"], report["output"], report["log"]))
        self.assertEqual(FRAME_LOADS, report["loads"])

    def test_prints_beside_a_report_in_a_file(self):
        self.put_frame()
        ended = self.check("--json", "report.json", "structure.sat", "load.sat")
        self.assertEqual((0, FRAME_CHECK), (ended.code, ended.out))
        self.assertEqual({"report.json"}, self.new_files())
        self.assertEqual(FRAME_LOADS, self.report()["loads"])

    def test_of_files_that_make_no_model(self):
        self.put_frame_with("structure.sat", 51, b"2 6 7 1 0 0 0", b"1 6 7 1 0 0 0")
        ended = self.check("structure.sat", "load.sat")
        self.assertEqual(1, ended.code)
        self.assertEqual("structure.sat:51: error: beam 1 of story 1 stands here and in line 50: a key may stand "
                         "once\n", ended.err)
        self.assertEqual("", ended.out)

    def test_of_swapped_files_says_so(self):
        self.put_frame()
        ended = self.check("load.sat", "structure.sat")
        self.assertEqual(1, ended.code)
        self.assertIn("are they swapped? [files-swapped]\n", ended.out)
        self.assertRegex(ended.err, r"\Aload\.sat:\d+: error: ")

    def test_strict_ends_with_3_where_something_is_lost_or_doubtful(self):
        self.put_frame()
        self.assertEqual(0, self.check("--strict", "structure.sat", "load.sat").code)
        self.put_tower()
        self.assertEqual(3, self.check("--strict", "structure.sat", "load.sat").code)

    def test_the_report_may_not_replace_an_input(self):
        self.put_frame()
        for name in ("structure.sat", "load.sat"):
            ended = self.check("--json", name, "structure.sat", "load.sat")
            self.assertEqual((2, ""), (ended.code, ended.out))
            self.assertEqual(f"satwecvt: --json {name}: this file belongs to the conversion itself\n", ended.err)

    def test_the_balance_shows_six_digits_of_any_force(self):
        self.put_frame()
        header = self.read("load.sat").splitlines(keepends=True)[:3]
        for dead, live, row in ((b"12.35", b"0.3", "12.35 12.35 - 0.3 0.3 - 12.65"),
                                (b"0.012", b"-0.4", "0.012 0.012 - -0.4 -0.4 - -0.388"),
                                (b"1234567.8", b"7.5", "1234570 1234570 - 7.5 7.5 - 1234580"),
                                (b"123456.4", b"0", "123456 123456 - 0 0 - 123456"),
                                (b"-123456700000", b"2.5e-5",
                                 "-1.23457e+11 -1.23457e+11 - 2.5e-05 2.5e-05 - -1.23457e+11")):
            with self.subTest(dead=dead):
                loads = b"2\n1 5 11 0 %s 0 0\n2 5 11 1 %s 0 0\n" % (dead, live)
                self.put("load.sat", b"".join(header) + loads)
                out = self.check("structure.sat", "load.sat").out
                self.assertEqual(row.split(), out.splitlines()[22].split()[1:], out.splitlines()[22])

    def test_an_input_may_have_the_name_of_a_model_or_a_log(self):
        self.put_frame("frame.sat", "frame.vkm")
        self.assertEqual((0, FRAME_CHECK), self.check("frame.sat", "frame.vkm")[:2])
        self.put_frame("frame.sat", LOG)
        self.assertEqual((0, FRAME_CHECK), self.check("frame.sat", LOG)[:2])

    def test_loads_in_the_pieces_of_one_line_are_told_each(self):
        self.put_frame()
        lines = self.read("load.sat").splitlines(keepends=True)
        lines[3] = b"9\n"
        piece = b"8 1 31 0 1 1"  # a type that is not converted
        self.put("load.sat", b"".join(lines) + piece.ljust(499) + piece + b"\n")
        report = self.valid_report(self.check("--json", "-", "structure.sat", "load.sat").out)
        self.assertEqual({"read": 2, "converted": 0, "lost": 2, "lines": 0}, report["counts"]["otherLoads"])
        self.assertEqual(["load.sat:20 long-line", "load.sat:20 load-type", "load.sat:20 load-type"],
                         [f"{finding['file']}:{finding['line']} {finding['code']}" for finding in report["findings"]])

    def test_plates_of_flat_triangles_are_no_loss_and_those_of_two_corners_are_one(self):
        self.put_frame_with("structure.sat", 63, b"1 4 0 120 5 6 7 8", b"1 3 0 120 5 6 6")
        report = self.valid_report(self.check("--json", "-", "structure.sat", "load.sat").out)
        self.assertEqual({"read": 1, "converted": 1, "lost": 0, "lines": 0}, report["counts"]["plates"])
        self.put_frame_with("structure.sat", 63, b"1 4 0 120 5 6 7 8", b"1 2 0 120 5 6")
        report = self.valid_report(self.check("--json", "-", "structure.sat", "load.sat").out)
        self.assertEqual({"read": 1, "converted": 0, "lost": 1, "lines": 0}, report["counts"]["plates"])


class Strict(FailureTest):
    def expect_refused(self, sentence, *arguments):
        self.put_old_outputs()
        ended = self.convert("--strict", *arguments, "structure.sat", "load.sat")
        self.assertEqual((3, ""), (ended.code, ended.out))
        self.assertEqual(f"strict: {sentence}; structure.vkm was not written", ended.err.splitlines()[-1])
        self.expect_old_outputs()
        self.assertLessEqual(self.new_files(), {"structure.vkm", LOG, "report.json"})

    def test_writes_what_is_clean(self):
        self.put_frame()
        self.convert_well("--strict", "structure.sat", "load.sat")
        self.expect_model("structure.vkm")

    def test_writes_what_has_notes_alone(self):
        self.put_frame_with("load.sat", 7, b"1 1 4 0 12 2400", b"1 1 4 0 0 2400")
        ended = self.convert("--strict", "structure.sat", "load.sat")
        self.assertEqual(0, ended.code)
        self.assertRegex(ended.err, r"\Aload\.sat:7: note: .* \[zero-load\]\n\Z")

    def test_refuses_losses(self):
        self.put_tower()
        self.expect_refused("1 wall, 8 openings and 1 load lost")
        self.expect_refused("1 wall, 8 openings and 1 load lost", "-q")

    def test_refuses_doubts(self):
        self.put_frame_with("structure.sat", 28, b"3 3 0 6000 5000 0", b"3 3 0 6O00 5000 0")
        self.convert("structure.sat", "load.sat")
        ended = self.convert("--strict", "structure.sat", "load.sat")
        self.assertEqual(3, ended.code)
        self.assertIn('structure.sat:28: doubt: "6O00" is read as 6 [not-a-number]\n', ended.err)
        self.assertRegex(ended.err, r"\nstrict: \d+ doubts?; structure\.vkm was not written\n\Z")

    def test_is_told_in_the_report(self):
        self.put_tower()
        self.expect_refused("1 wall, 8 openings and 1 load lost", "--json", "report.json")
        report = self.report()
        self.assertEqual((3, 0, None, []), (report["exitCode"], report["result"], report["output"], report["log"]))
        self.assertEqual(TOWER_CODES["wall-opening"],
                         sum(finding["code"] == "wall-opening" for finding in report["findings"]))
        self.assertEqual({"read": 33, "converted": 32, "lost": 1, "lines": 32}, report["counts"]["walls"])


class TooManyFindings(ProgramTest):
    def test_of_one_code_are_counted_behind_the_first_ten(self):
        structure, load = sample("frame")
        self.put("structure.sat", structure)
        lines = load.splitlines(keepends=True)
        lines[3] = b"5007\n"
        self.put("load.sat", b"".join(lines) + b"8 1 31 0 1 1\n" * 5000)
        ended = self.convert("structure.sat", "load.sat")
        self.assertEqual(0, ended.code)
        *first, more = ended.err.splitlines()
        self.assertEqual(10, len(first))
        for number, line in enumerate(first, 20):
            self.assertRegex(line, rf"\Aload\.sat:{number}: loss: .* \[load-type\]\Z")
        self.assertEqual("and 4,990 more of these [load-type]", more)
        self.assertTrue(ended.out.endswith("\n5,000 losses, 0 doubts, 0 notes\n"))
        quiet = self.convert("-q", "structure.sat", "load.sat").err
        self.assertRegex(quiet, r"\Aload\.sat:20: loss: .*, and 4,999 more of these \[load-type\]\n\Z")


@needs_posix("links, permissions and folders that allow no new file")
class OutputsInTheirPlaces(FailureTest):
    def test_an_output_that_is_a_link_is_written_through_it(self):
        self.put_frame()
        (self.folder / "models").mkdir()
        (self.folder / "models" / "real.vkm").write_bytes(b"old")
        (self.folder / "structure.vkm").symlink_to(os.path.join("models", "real.vkm"))
        self.convert_well("structure.sat", "load.sat")
        self.assertTrue((self.folder / "structure.vkm").is_symlink())
        self.expect_model("models/real.vkm")

    def test_permissions_are_kept(self):
        self.put_frame()
        (self.folder / "structure.vkm").write_bytes(b"old")
        (self.folder / "structure.vkm").chmod(0o640)
        self.convert_well("structure.sat", "load.sat")
        self.assertEqual(0o640, (self.folder / "structure.vkm").stat().st_mode & 0o777)
        self.expect_model("structure.vkm")


if __name__ == "__main__":
    unittest.main()
