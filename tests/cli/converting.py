"""What a conversion that goes well writes and prints."""

import os
import re
import unittest

from program import IS_WINE, LOG, ProgramTest, needs_posix

# The frame, counted in its two files. Materials: C30 of the beams, 16Mn of beam 4, C40 of the columns, C25 of the slab.
# The slab becomes two triangles; of the seven loads three are dead and stand under both load cases.
# For each kind: read, converted, lost; lines in the model.
FRAME_COUNTS = {
    "stories": (1, 1, 0, 1), "nodes": (8, 8, 0, 8), "beams": (4, 4, 0, 4), "columns": (4, 4, 0, 4),
    "braces": (0, 0, 0, 0), "walls": (0, 0, 0, 0), "plates": (1, 1, 0, 2), "materials": (None, None, None, 4),
    "sections": (3, 3, 0, 3), "thicknesses": (None, None, None, 1), "supports": (None, None, None, 4),
    "releases": (None, None, None, 1), "offsets": (None, None, None, 1), "nodalLoads": (2, 2, 0, 3),
    "beamLoads": (5, 5, 0, 7), "pressureLoads": (0, 0, 0, 0), "otherLoads": (0, 0, 0, 0),
}
FRAME_NAMES = {"nodal loads": "nodalLoads", "beam loads": "beamLoads", "pressure loads": "pressureLoads",
               "other loads": "otherLoads"}  # as the summary has them; the others are the same

# The frame's 65 and 19 lines. Behind the slab in line 63 nothing is read; the line behind story line 3 is read twice.
FRAME_TOTAL = 65 + 19
FRAME_READ = 63 + 1 + 19


def summary_counts(summary):
    """The table of the summary: the kind, then the numbers of its row; one alone are the lines in the model."""
    counts = {}
    for kind, numbers in re.findall(r"^([a-z]+(?: [a-z]+)?)((?: +\d+)+)$", summary, re.MULTILINE):
        numbers = [int(number) for number in numbers.split()]
        counts[FRAME_NAMES.get(kind, kind)] = tuple(numbers if len(numbers) == 4 else [None] * 3 + numbers)
    return counts


class Converting(ProgramTest):
    def test_the_model_lies_beside_the_structure_file_and_the_log_in_the_working_folder(self):
        self.put_frame("building/frame.sat", "loads/frame.txt")
        self.convert_well("building/frame.sat", "loads/frame.txt")
        self.assertEqual({os.path.join("building", "frame.vkm"), LOG}, self.new_files())
        self.expect_model("building/frame.vkm")
        self.assertEqual(b"", self.read(LOG))

    def test_the_summary_tells_model_lines_counts_and_log(self):
        self.put_frame("building/frame.sat", "load.sat")
        summary = self.convert_well("building/frame.sat", "load.sat")
        self.assertRegex(summary, r"(?m)^Model +building/frame\.vkm$")
        self.assertRegex(summary, rf"(?m)^Lines +{FRAME_READ} read of {FRAME_TOTAL}$")
        self.assertEqual(FRAME_COUNTS, summary_counts(summary))
        self.assertRegex(summary, r"(?m)^Log +0 lines in .*\bsatwecvt\.msg$")
        self.assertTrue(summary.endswith("\n0 losses, 0 doubts, 0 notes\n"), summary)
        if not IS_WINE:
            self.assertIn(os.path.realpath(self.folder / LOG), summary)

    def test_the_tower_is_converted_and_its_log_counted(self):
        summary = self.convert_well(*self.put_tower("tower.sat"))
        self.assertEqual({"tower.vkm", LOG}, self.new_files())
        self.expect_model("tower.vkm")
        log = self.read(LOG).decode("ascii").splitlines()
        # One wall with an opening in each of eight stories, a leaning wall on top, a dead trapezoid without height.
        openings = [f"Opening of the wall(story id:{story},wall id:1) is not converted" for story in range(1, 9)]
        zero = "Beam load value '0'(story id:1,beam id:3) is not converted"
        self.assertEqual([*openings, "The wall(story id:8,wall id:5) has invalid shape", zero, zero], log)
        self.assertRegex(summary, r"(?m)^Log +11 lines in .*\bsatwecvt\.msg$")

    def test_a_clean_building_gives_no_word_on_stderr(self):
        self.put_frame()
        self.assertEqual("", self.convert("structure.sat", "load.sat").err)

    def test_quiet_prints_what_went_wrong_alone(self):
        for put, lines in ((self.put_frame, 0), (self.put_tower, 3)):  # of the tower: its three codes of losses
            put()
            for flag in ("-q", "--quiet"):
                with self.subTest(flag, lines=lines):
                    ended = self.convert(flag, "structure.sat", "load.sat")
                    self.assertEqual((0, "", lines), (ended.code, ended.out, len(ended.err.splitlines())))
                    self.expect_model("structure.vkm")
                    (self.folder / "structure.vkm").unlink()

    def test_two_files_without_a_command_are_converted(self):
        self.put_frame()
        ended = self.run_program("structure.sat", "load.sat")
        self.assertEqual((0, ""), (ended.code, ended.err))
        self.assertEqual({"structure.vkm", LOG}, self.new_files())
        self.expect_model("structure.vkm")

    def test_model_and_log_go_where_they_are_asked_for(self):
        self.put_tower()
        self.convert_well("structure.sat", "load.sat")
        expected = self.read("structure.vkm"), self.read(LOG)
        for name in ("structure.vkm", LOG):
            (self.folder / name).unlink()
        (self.folder / "out").mkdir()
        for option in ("-o", "--output"):
            with self.subTest(option):
                summary = self.convert_well(option, "out/a.txt", "--log", "out/b.txt", "structure.sat", "load.sat")
                self.assertRegex(summary, r"(?m)^Model  out/a\.txt$")
                self.assertRegex(summary, r"(?m)^Log +11 lines in .*\bb\.txt$")
                self.assertEqual({os.path.join("out", "a.txt"), os.path.join("out", "b.txt")}, self.new_files())
                self.assertEqual(expected, (self.read("out/a.txt"), self.read("out/b.txt")))

    def test_options_may_stand_anywhere(self):
        self.put_frame()
        for arguments in (["-q", "structure.sat", "load.sat"], ["structure.sat", "-q", "load.sat"],
                          ["structure.sat", "load.sat", "-q"], ["-q", "--", "structure.sat", "load.sat"]):
            with self.subTest(arguments):
                self.assertEqual("", self.convert_well(*arguments))

    def test_old_files_are_replaced_whole(self):
        self.put_frame()
        self.convert_well("structure.sat", "load.sat")
        model = self.read("structure.vkm")
        for name in ("structure.vkm", LOG):
            (self.folder / name).write_bytes(b"an older one, and a longer one\n" * 1000)
        self.convert_well("structure.sat", "load.sat")
        self.assertEqual(model, self.read("structure.vkm"))
        self.assertEqual(b"", self.read(LOG))

    def test_the_path_of_the_model_is_cut_at_the_last_dot_of_the_whole_path(self):
        for structure, model in (("rev1.2/tower", "rev1.vkm"), ("plan", "plan.vkm"), ("a.b.sat", "a.b.vkm")):
            with self.subTest(structure):
                self.put_frame(structure)
                self.assertIn(f"  {model}\n", self.convert_well(structure, "load.sat"))
                self.expect_model(model)

    def test_one_file_may_be_both_inputs(self):
        self.put("both.sat", b"1 1 1\n1 0 6 0 4 0 0 0 0 0\n0 0 0 0\n1 1 0 0 0 0\n1 1 0\n1\n3 30 30 30 30 3\n"
                             b"0 0 0 0 0 0\n")
        ended = self.convert("both.sat", "both.sat")
        self.assertEqual(0, ended.code)
        self.assertIn(b"*STLDCASE", self.read("both.vkm"))


class FileNames(ProgramTest):
    def expect_conversion_of(self, structure, load, model):
        self.put_frame(structure, load)
        summary = self.convert_well(structure, load)
        self.assertIn(f"Model  {model}\n", summary)
        self.assertEqual({model, LOG}, self.new_files())
        self.expect_model(model)

    def test_with_blanks(self):
        self.expect_conversion_of("my frame.sat", " its loads .sat", "my frame.vkm")

    @needs_posix("names of more than ASCII")
    def test_with_utf_8(self):
        self.expect_conversion_of("框架/рама é.sat", "荷载.sat", "框架/рама é.vkm")
        self.convert_well("-q", "--json", "bericht é.json", "框架/рама é.sat", "荷载.sat")
        self.assertEqual("框架/рама é.vkm", self.report("bericht é.json")["output"])

    @needs_posix("names of any bytes")
    def test_with_bytes_that_are_no_utf_8(self):
        structure, model = os.fsdecode(b"fr\xff\xfe me.sat"), os.fsdecode(b"fr\xff\xfe me.vkm")
        self.expect_conversion_of(structure, os.fsdecode(b"\x80.sat"), model)
        report = self.valid_report(self.convert_well("--json", "-", structure, os.fsdecode(b"\x80.sat")))
        self.assertEqual("fr\ufffd\ufffd me.vkm", report["output"])

    def test_that_start_with_a_minus(self):
        self.put_frame("-s.sat", "-l.sat")
        self.convert_well("--", "-s.sat", "-l.sat")
        self.expect_model("-s.vkm")


class Help(ProgramTest):
    def test_version(self):
        ended = self.run_program("--version")
        self.assertEqual((0, ""), (ended.code, ended.err))
        version, compiler, abi = ended.out.splitlines()
        self.assertRegex(version, r"\Asatwecvt \d+\.\d+\.\d+\Z")
        self.assertRegex(compiler, r"\Acompiler (GNU|Clang) \d+(\.\d+\.\d+)?\Z")
        self.assertRegex(abi, r"\AABI (Linux|Windows) \w+")

    def test_of_the_program_names_the_command_and_an_example(self):
        for flag in ("--help", "-h"):
            ended = self.run_program(flag)
            self.assertEqual((0, ""), (ended.code, ended.err))
            for text in ("Usage: satwecvt", "convert", "check", "--version", "Example", "satwecvt convert tower.sat"):
                self.assertIn(text, ended.out)

    def test_of_the_command_shows_options_examples_and_exit_codes(self):
        for flag in ("--help", "-h"):
            ended = self.convert(flag)
            self.assertEqual((0, ""), (ended.code, ended.err))
            for text in ("Usage: satwecvt convert", "STRUCTURE", "LOAD", "--output", "--log", "--strict", "--json",
                         "--quiet", "Examples:", "satwecvt convert --json -", ".vkm", LOG):
                self.assertIn(text, ended.out)
            codes = ended.out.split("Exit codes:")[1]
            self.assertEqual(["0", "1", "2", "3", "4", "130"], re.findall(r"(?m)^ +(\d+)  ", codes))

    def test_lines_fit_a_terminal_of_120_columns(self):
        for arguments in (["--help"], ["convert", "--help"], ["check", "--help"]):
            for line in self.run_program(*arguments).out.splitlines():
                self.assertLessEqual(len(line), 120)

    def test_writes_no_file(self):
        self.convert("--help")
        self.assertEqual(set(), self.files())


if __name__ == "__main__":
    unittest.main()
