"""Many pairs in one run: what is told of each, in which order, and how the program ends."""

import json
import os
import re
import subprocess
import tempfile
import unittest

from program import LOG, PROGRAM, SECONDS, Ended, ProgramTest, needs_posix, sample, whole_text

OK = "0 losses, 0 doubts, 0 notes"

# The tower's oddities: the opening of a wall in each of eight stories, a leaning wall, a load of a type that has no
# line in the model, and a trapezoid without height, which is a note.
TOWER = "10 losses, 0 doubts, 1 note"
TOWER_LOST = "1 wall, 8 openings and 1 load lost"

# The frame, cut behind the first line of a section.
CUT_LINES = 18
CUT = f"{CUT_LINES}: the file ends here (section definitions)"


class BatchTest(ProgramTest):
    def batch(self, *arguments, **options):
        return self.run_program("batch", *arguments, **options)

    def batch_from(self, content, *arguments):
        """Runs a batch with a list on stdin."""
        with tempfile.TemporaryFile() as list_file, tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
            list_file.write(content)
            list_file.seek(0)
            ended = subprocess.run([*PROGRAM, "batch", "--list", "-", *arguments], cwd=self.folder, stdin=list_file,
                                   stdout=out, stderr=err, timeout=SECONDS, check=False)
            self.expect_inputs_untouched()
            return Ended(ended.returncode, whole_text(out), whole_text(err))

    def put_pair(self, folder, name="frame", structure="structure.sat", load="load.sat"):
        for file, content in zip((structure, load), sample(name)):
            self.put(f"{folder}/{file}", content)

    def put_cut_pair(self, folder):
        structure, load = sample("frame")
        self.put(f"{folder}/structure.sat", b"".join(structure.splitlines(keepends=True)[:CUT_LINES]))
        self.put(f"{folder}/load.sat", load)

    def put_old_outputs(self, folder):
        for name in ("structure.vkm", "structure.msg"):
            (self.folder / folder / name).write_bytes(b"old")

    def expect_old_outputs(self, folder):
        self.assertEqual((b"old", b"old"), (self.read(f"{folder}/structure.vkm"), self.read(f"{folder}/structure.msg")))

    def expect_lines(self, expected, text):
        """These lines, and one with the totals behind them."""
        self.assertEqual(expected, [re.sub(" +", " ", line) for line in text.splitlines()[:-1]])
        self.assertRegex(text, rf"\n{len(expected)} pairs?: .*\n\Z")

    def expect_refused(self, message, *arguments):
        """Wrong usage, in these words, and nothing converted."""
        with self.subTest(arguments):
            before = self.files()
            ended = self.batch(*arguments)
            self.assertEqual((2, ""), (ended.code, ended.out))
            self.assertIn(message, ended.err)
            self.assertEqual(before, self.files())

    def record(self, line):
        """A line of the record is a report."""
        return self.valid_report(line)

    def records(self, content):
        self.assertTrue(content.endswith(b"\n"))
        return [self.record(line) for line in content.decode("utf-8").splitlines()]


class Pairs(BatchTest):
    def test_give_the_models_logs_and_reports_of_single_conversions(self):
        for name in ("frame", "tower"):
            self.put_pair(name, name)
        self.assertEqual(0, self.batch("--json-lines", "record", ".").code)
        for name, record in zip(("frame", "tower"), self.records(self.read("record"))):
            model, log = self.read(f"{name}/structure.vkm"), self.read(f"{name}/structure.msg")
            self.convert("--json", "report.json", f"./{name}/structure.sat", f"./{name}/load.sat")
            self.assertEqual(self.read(f"{name}/structure.vkm"), model)
            self.assertEqual(self.read(LOG), log)
            self.assertEqual(json.loads(self.read("report.json")), record)

    def test_write_model_and_log_beside_the_structure_file(self):
        self.put_frame("rev.1/frame", "load.sat")
        self.put_frame("a.b.sat", "load.sat")
        self.batch_from(b"rev.1/frame load.sat\na.b.sat load.sat\n")
        self.assertEqual({"rev.vkm", "rev.msg", "a.b.vkm", "a.b.msg"}, self.new_files())

    def test_that_fail_stop_no_other(self):
        self.put_pair("t/1")
        self.put_cut_pair("t/2")
        self.put_pair("t/3", "tower")
        for jobs in ("1", "2", "7"):
            with self.subTest(jobs):
                ended = self.batch("-j", jobs, "t")
                self.assertEqual((1, ""), (ended.code, ended.err))
                self.expect_lines([f"ok t/1/structure.sat: {OK}", f"failed t/2/structure.sat:{CUT}",
                                   f"ok t/3/structure.sat: {TOWER}"], ended.out)
                self.assertTrue(ended.out.endswith("\n3 pairs: 2 ok, 1 failed; 10 losses, 0 doubts, 1 note\n"))
                self.assertIsNone(self.read("t/2/structure.vkm"))

    def test_that_fail_say_where(self):
        self.put_pair("a")
        (self.folder / "b").mkdir()
        for list_file, line in (
                (b"b/no.sat a/load.sat", "failed b/no.sat: cannot be opened: No such file or directory"),
                (b"a/structure.sat b/no.sat",
                 "failed a/structure.sat: b/no.sat: cannot be opened: No such file or directory"),
                (b"a/load.sat a/structure.sat",
                 "failed a/load.sat:7: the first line of a section needs 10 numbers, this line has 6: "
                 '"1 1 4 0 12 2400"; this looks like a load file, and the load file like a structure file: are they '
                 "swapped?")):
            with self.subTest(line):
                ended = self.batch_from(list_file)
                self.assertEqual((1, ""), (ended.code, ended.err))
                self.expect_lines([line], ended.out)

    def test_are_told_in_their_order_however_many_run_at_once(self):
        names = [f"{number:02}" for number in range(40)]
        for name in names:
            self.put_pair(f"t/{name}", "tower" if int(name) % 3 == 0 else "frame")
        for jobs in ("2", "5", "40", "1024"):
            with self.subTest(jobs):
                ended = self.batch("-j", jobs, "--json-lines", "record", "t")
                self.expect_lines([f"ok t/{name}/structure.sat: {TOWER if int(name) % 3 == 0 else OK}"
                                   for name in names], ended.out)
                self.assertEqual([f"t/{name}/structure.sat" for name in names],
                                 [record["structure"] for record in self.records(self.read("record"))])

    def test_of_one_load_file_may_be_many(self):
        self.put_frame("a.sat", "load.sat")
        self.put_frame("b.sat", "load.sat")
        ended = self.batch_from(b"a.sat load.sat\nb.sat load.sat\n")
        self.expect_lines([f"ok a.sat: {OK}", f"ok b.sat: {OK}"], ended.out)

    @needs_posix("control characters in names")
    def test_names_send_no_control_characters_to_the_terminal(self):
        self.put_pair("t/\x1b[31m\x9b5n\x7f")
        self.put("t/\nhalf/load.sat", b"")
        ended = self.batch("t")
        self.expect_lines([rf"ok t/\x1B[31m\xC2\x9B5n\x7F/structure.sat: {OK}"], ended.out)
        self.assertEqual("satwecvt: t/\\x0Ahalf: holds load.sat, but no structure.sat\n", ended.err)


class ExitCodes(BatchTest):
    def setUp(self):
        super().setUp()
        self.put_pair("ok")
        self.put_pair("lossy", "tower")
        self.put_cut_pair("failed")
        self.put_pair("blocked")
        (self.folder / "blocked" / "structure.vkm").mkdir()

    def test_are_the_worst_of_all_pairs(self):
        for code, folders in ((0, ["ok"]), (3, ["lossy"]), (1, ["failed"]), (4, ["blocked"]), (3, ["lossy", "ok"]),
                              (1, ["failed", "lossy", "ok"]), (1, ["lossy", "failed"]), (4, ["blocked", "failed"]),
                              (4, ["failed", "lossy", "blocked", "ok"])):
            with self.subTest(folders):
                self.assertEqual(code, self.batch("--strict", *folders).code)

    def test_of_an_output_that_cannot_be_written(self):
        ended = self.batch("blocked")
        self.assertRegex(ended.out, r"\Afailed +blocked/structure.sat: blocked/structure.vkm could not be written: .+\n"
                                    r"1 pair: 0 ok, 1 failed; 0 losses, 0 doubts, 0 notes\n\Z")

    def test_strict_writes_nothing_of_a_pair_with_a_loss(self):
        self.put_old_outputs("lossy")
        ended = self.batch("--strict", "--json-lines", "record", "lossy", "ok")
        self.expect_lines([f"refused lossy/structure.sat: {TOWER_LOST}", f"ok ok/structure.sat: {OK}"], ended.out)
        self.expect_old_outputs("lossy")
        self.expect_model("ok/structure.vkm")
        self.assertEqual([(3, None), (0, "ok/structure.vkm")],
                         [(record["exitCode"], record["output"]) for record in self.records(self.read("record"))])
        self.assertEqual(0, self.batch("lossy").code)
        self.expect_model("lossy/structure.vkm")

    def test_of_pairs_that_fail_leave_old_outputs(self):
        self.put_old_outputs("failed")
        self.batch("failed")
        self.expect_old_outputs("failed")

    def test_of_a_folder_that_cannot_be_read_count_too(self):
        self.assertEqual(1, self.batch("--strict", "lossy", "nowhere").code)
        self.assertEqual(4, self.batch("blocked", "nowhere").code)

    @needs_posix("/dev/full")
    def test_no_space_on_stdout(self):
        with open("/dev/full", "wb") as full:
            ended = self.batch("ok", "failed", stdout=full)
        self.assertEqual((4, "satwecvt: stdout could not be written\n"), (ended.code, ended.err))
        self.expect_model("ok/structure.vkm")

    @needs_posix("a pipe whose reader is gone")
    def test_a_reader_that_goes_away_stops_no_pair(self):
        reading, writing = os.pipe()
        os.close(reading)
        with os.fdopen(writing, "wb") as pipe:
            ended = self.batch("ok", "lossy", stdout=pipe)
        self.assertEqual((4, "satwecvt: stdout could not be written\n"), (ended.code, ended.err))
        self.expect_model("ok/structure.vkm")
        self.expect_model("lossy/structure.vkm")


class Record(BatchTest):
    def setUp(self):
        super().setUp()
        self.put_pair("t/1")
        self.put_cut_pair("t/2")

    def expect_both(self, content):
        first, second = self.records(content)
        self.assertEqual(("t/1/structure.sat", 0, "t/1/structure.vkm", None),
                         (first["structure"], first["exitCode"], first["output"], first["failure"]))
        self.assertTrue(first["loads"])
        self.assertEqual(("t/2/structure.sat", 1, None, CUT_LINES),
                         (second["structure"], second["exitCode"], second["output"], second["failure"]["line"]))

    def test_has_a_line_for_each_pair(self):
        (self.folder / "record").write_bytes(b"of an earlier run, and longer\n" * 1000)
        ended = self.batch("--json-lines", "record", "t")
        self.assertEqual((1, ""), (ended.code, ended.err))
        self.assertIn("\n2 pairs: 1 ok, 1 failed; ", ended.out)
        self.expect_both(self.read("record"))

    def test_on_stdout_leaves_the_lines_for_people_to_stderr(self):
        ended = self.batch("--json-lines", "-", "t")
        self.expect_both(ended.out.encode("utf-8"))
        self.expect_lines([f"ok t/1/structure.sat: {OK}", f"failed t/2/structure.sat:{CUT}"], ended.err)

    def test_that_cannot_be_opened_lets_nothing_begin(self):
        for name in (os.path.join("nowhere", "record"), "t"):
            with self.subTest(name):
                ended = self.batch("--json-lines", name, "t")
                self.assertEqual((4, ""), (ended.code, ended.out))
                self.assertRegex(ended.err, r"\Asatwecvt: \S+ could not be written: .+\n\Z")
                self.assertEqual(set(), self.new_files())

    @needs_posix("/dev/full")
    def test_that_cannot_be_written_stops_no_pair(self):
        self.put_pair("t/3")
        ended = self.batch("--json-lines", "/dev/full", "t")
        self.assertEqual((4, "satwecvt: /dev/full could not be written: No space left on device\n"),
                         (ended.code, ended.err))
        self.assertIn("\n3 pairs: 2 ok, 1 failed; ", ended.out)
        self.expect_model("t/3/structure.vkm")

    def test_stays_when_nothing_is_converted(self):
        self.put("record", b"old")
        self.batch("--json-lines", "record", "nowhere")
        self.batch("--json-lines", "record", "-j", "0", "t")
        self.batch("--json-lines", "record")
        self.assertEqual(b"old", self.read("record"))


class Usage(BatchTest):
    def test_wrong_arguments(self):
        self.put_pair("t")
        self.put("pairs.txt", b"t/structure.sat t/load.sat\n")
        for arguments in ([], ["--list"], ["--list", ""], ["--list", "pairs.txt", "t"], ["--unknown", "t"],
                          ["--list", "pairs.txt", "--structure", "a.sat"], ["--list", "pairs.txt", "--load", "a.sat"],
                          ["--structure", "t/structure.sat", "t"], ["--load", "", "t"],
                          ["-j", "0", "t"], ["-j", "-1", "t"], ["-j", "x", "t"], ["-j", "1.5", "t"], ["-j", "2x", "t"],
                          ["-j", "99999999999", "t"], ["t", "-j"], ["--json-lines", "", "t"]):
            self.expect_refused("--help", *arguments)

    def test_help_shows_options_examples_and_exit_codes(self):
        ended = self.batch("--help")
        self.assertEqual((0, ""), (ended.code, ended.err))
        for text in ("Usage: satwecvt batch", "FOLDER", "--list", "--structure", "structure.sat", "--load", "load.sat",
                     "-j", "--strict", "--json-lines", "Examples:", "satwecvt batch buildings", ".vkm", ".msg"):
            self.assertIn(text, ended.out)
        self.assertEqual(["130", "4", "1", "3", "0", "2"],
                         re.findall(r"(?m)^ +(\d+)  ", ended.out.split("Exit codes")[1]))
        for line in ended.out.splitlines():
            self.assertLessEqual(len(line), 120)


if __name__ == "__main__":
    unittest.main()
