"""Many pairs in one run: where they come from, what is told of each, and that none of them is in another's way."""

import json
import os
import pathlib
import re
import shlex
import signal
import subprocess
import tempfile
import time
import unittest

from program import IS_WINE, LOG, PROGRAM, SECONDS, Ended, ProgramTest, needs_posix, sample, whole_text

OK = "0 losses, 0 doubts, 0 notes"

# The tower's oddities: the opening of a wall in each of eight stories, a leaning wall, a load of a type that has no
# line in the model, and a trapezoid without height, which is a note.
TOWER = "10 losses, 0 doubts, 1 note"
TOWER_LOST = "1 wall, 8 openings and 1 load lost"

# The frame, cut behind the first line of a section.
CUT_LINES = 18
CUT = f"{CUT_LINES}: the file ends here, in the section definitions"


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
        """A line of the record, held against what a report is."""
        report = json.loads(line)
        self.assertEqual(2, report["schema"])
        self.assertLessEqual({"structure", "load", "exitCode", "result", "output", "failure", "counts", "loads",
                              "findings", "log"}, set(report))
        return report

    def records(self, content):
        self.assertTrue(content.endswith(b"\n"))
        return [self.record(line) for line in content.decode("utf-8").splitlines()]


class Lists(BatchTest):
    def put_list(self, *lines, name="pairs.txt"):
        self.put(name, b"".join(line.encode("utf-8") + b"\n" for line in lines))
        return name

    def test_a_line_has_a_structure_file_and_its_load_file(self):
        self.put_frame("a.sat", "a_load.sat")
        self.put_tower("in/b.sat", "loads/b.sat")
        ended = self.batch("--list", self.put_list("in/b.sat\tloads/b.sat", "a.sat\ta_load.sat"))
        self.assertEqual((0, ""), (ended.code, ended.err))
        self.expect_lines([f"ok in/b.sat: {TOWER}", f"ok a.sat: {OK}"], ended.out)
        self.assertEqual({"a.vkm", "a.msg", os.path.join("in", "b.vkm"), os.path.join("in", "b.msg")},
                         self.new_files())

    def test_what_is_not_a_name_is_passed_over(self):
        self.put_frame("a.sat", "l.sat")
        for content in (b"a.sat l.sat", b"a.sat l.sat\n", b"a.sat\tl.sat\r\n", b"\n \t\na.sat l.sat\n\r\n",
                        b"  a.sat   l.sat  \n", b"\ta.sat \t\t l.sat\t\n", b"# two names\n  #x\na.sat l.sat\n#",
                        b"\xef\xbb\xbfa.sat l.sat\n", b"\xef\xbb\xbf# with a mark\na.sat l.sat\n"):
            with self.subTest(content):
                ended = self.batch_from(content)
                self.assertEqual((0, ""), (ended.code, ended.err))
                self.expect_lines([f"ok a.sat: {OK}"], ended.out)

    def test_names_with_blanks_have_a_tab_between_them(self):
        self.put_frame("my frame.sat", "its loads.sat")
        ended = self.batch("--list", self.put_list("my frame.sat\tits loads.sat"))
        self.assertEqual(0, ended.code)
        self.expect_model("my frame.vkm")

    def test_names_start_from_the_working_folder(self):
        self.put_frame("a.sat", "l.sat")
        self.assertEqual(0, self.batch("--list", self.put_list("a.sat l.sat", name="lists/pairs.txt")).code)
        self.expect_model("a.vkm")

    @needs_posix("names of more than ASCII")
    def test_names_are_utf_8(self):
        self.put_frame("框架/рама é.sat", "荷载.sat")
        ended = self.batch("--list", self.put_list("框架/рама é.sat\t荷载.sat"))
        self.expect_lines([f"ok 框架/рама é.sat: {OK}"], ended.out)
        self.expect_model("框架/рама é.vkm")

    # What stands in the second line, and how that is told.
    BAD_LINES = [
        (b"b.sat", 'a pair needs 2 names, with a tab between them if they have blanks; this line has 1: "b.sat"'),
        (b"b.sat\t", 'a pair needs 2 names, with a tab between them if they have blanks; this line has 1: "b.sat"'),
        (b"my b.sat l.sat",
         'a pair needs 2 names, with a tab between them if they have blanks; this line has 3: "my b.sat l.sat"'),
        (b"b.sat\tl.sat\t3", 'a pair needs 2 names, with a tab between them if they have blanks; this line has 3: '
                             '"b.sat\\x09l.sat\\x093"'),
        (b"b\0.\0", 'this is no list of names in UTF-8: "b\\x00.\\x00"'),
        (b" " * 200000 + b"b.sat l.sat", 'this is no list of names in UTF-8: ""'),
    ]

    def test_a_bad_line_is_told_and_nothing_is_converted(self):
        self.put_frame("a.sat", "l.sat")
        for line, message in self.BAD_LINES:
            self.put("pairs.txt", b"a.sat l.sat\n" + line + b"\n# end\n")
            self.expect_refused(f"satwecvt: pairs.txt:2: error: {message}\n", "--list", "pairs.txt")

    def test_ten_bad_lines_are_told(self):
        self.put("pairs.txt", b"x\n" * 1000)
        ended = self.batch("--list", "pairs.txt")
        self.assertEqual((2, 10), (ended.code, len(ended.err.splitlines())))
        self.assertIn("pairs.txt:10: ", ended.err)

    def test_a_list_that_is_not_there_and_one_of_nothing(self):
        for name, content, message in (("nowhere.txt", None, r"cannot be opened: .+"),
                                       ("empty.txt", b"", "there is no pair in this list"),
                                       ("comments.txt", b"# a\n\n", "there is no pair in this list")):
            if content is not None:
                self.put(name, content)
            with self.subTest(name):
                ended = self.batch("--list", name)
                self.assertEqual((1, ""), (ended.code, ended.out))
                self.assertRegex(ended.err, rf"\Asatwecvt: {name}: {message}\n\Z")


class Folders(BatchTest):
    def test_every_folder_with_both_files_is_a_pair_in_the_order_of_the_paths(self):
        # "-" and "." stand before "/" among the bytes, but a folder before its neighbours.
        for folder in ("t", "t/b", "t/a/deep/er", "t/a-1", "t/a.1", "t/B", "t/é"):
            self.put_pair(folder)
        self.put("t/notes/readme.txt", b"no pair")
        ended = self.batch("t")
        self.assertEqual((0, ""), (ended.code, ended.err))
        self.expect_lines([f"ok {folder}/structure.sat: {OK}"
                           for folder in ("t", "t/B", "t/a/deep/er", "t/a-1", "t/a.1", "t/b", "t/é")], ended.out)

    def test_come_in_the_order_in_which_they_are_named(self):
        for folder in ("b", "a/1", "a/2"):
            self.put_pair(folder)
        self.expect_lines([f"ok {folder}/structure.sat: {OK}" for folder in ("b", "a/1", "a/2")],
                          self.batch("b/", "a").out)

    def test_count_once(self):
        for folder in ("a/1", "a/2"):
            self.put_pair(folder)
        ended = self.batch("a/2", "a", "./a/../a/1")
        self.assertEqual((0, ""), (ended.code, ended.err))
        self.expect_lines([f"ok {folder}/structure.sat: {OK}" for folder in ("a/2", "a/1")], ended.out)

    def test_may_hold_files_of_other_names(self):
        self.put_pair("a", structure="tower.sat", load="tower_load.sat")
        self.put_pair("b")
        ended = self.batch("--structure", "tower.sat", "--load", "tower_load.sat", "a", "b")
        self.assertEqual(1, ended.code)
        self.expect_lines([f"ok a/tower.sat: {OK}"], ended.out)
        self.assertEqual("satwecvt: b: no folder here holds tower.sat and tower_load.sat\n", ended.err)

    def test_with_one_of_two_files_are_told(self):
        self.put_pair("t/a")
        self.put("t/b/structure.sat", b"")
        self.put("t/c/load.sat", b"")
        (self.folder / "t" / "c" / "structure.sat").mkdir()
        ended = self.batch("t")
        self.assertEqual(1, ended.code)
        self.expect_lines([f"ok t/a/structure.sat: {OK}"], ended.out)
        self.assertEqual(["satwecvt: t/b: holds structure.sat, but no load.sat",
                          "satwecvt: t/c: holds load.sat, but no structure.sat"], ended.err.splitlines())

    def test_that_cannot_be_read_are_told(self):
        self.put_pair("t/a")
        self.put("file", b"")
        ended = self.batch("nowhere", "file", "t")
        self.assertEqual(1, ended.code)
        self.expect_lines([f"ok t/a/structure.sat: {OK}"], ended.out)
        self.assertRegex(ended.err, r"\Asatwecvt: nowhere: cannot be read: .+\nsatwecvt: file: cannot be read: .+\n\Z")

    @needs_posix("permissions")
    @unittest.skipIf(hasattr(os, "geteuid") and os.geteuid() == 0, "root may read all folders")
    def test_below_that_cannot_be_read_are_told(self):
        self.put_pair("t/a")
        (self.folder / "t" / "b").mkdir(0)
        ended = self.batch("t")
        self.assertEqual((1, "satwecvt: t/b: cannot be read: Permission denied\n"), (ended.code, ended.err))
        self.expect_lines([f"ok t/a/structure.sat: {OK}"], ended.out)

    def test_without_any_pair_end_with_1(self):
        (self.folder / "a" / "b").mkdir(parents=True)
        self.assertEqual(Ended(1, "", "satwecvt: a: no folder here holds structure.sat and load.sat\n"),
                         self.batch("a"))

    @needs_posix("links")
    def test_that_are_links_are_not_followed_unless_they_are_named(self):
        self.put_pair("t/a")
        self.put_pair("elsewhere")
        (self.folder / "t" / "a" / "loop").symlink_to("..")
        (self.folder / "t" / "other").symlink_to("../elsewhere")
        (self.folder / "named").symlink_to("elsewhere")
        self.expect_lines([f"ok t/a/structure.sat: {OK}"], self.batch("t").out)
        self.expect_lines([f"ok named/structure.sat: {OK}"], self.batch("named").out)

    @needs_posix("links")
    def test_may_hold_links_to_files(self):
        self.put_frame("s.sat", "l.sat")
        (self.folder / "t").mkdir()
        (self.folder / "t" / "structure.sat").symlink_to("../s.sat")
        (self.folder / "t" / "load.sat").symlink_to("../l.sat")
        self.expect_lines([f"ok t/structure.sat: {OK}"], self.batch("t").out)
        self.expect_model("t/structure.vkm")


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


class Clashes(BatchTest):
    """What would be written twice, or over an input of another pair."""

    def put_list(self, *lines):
        self.put("pairs.txt", b"".join(line.encode("ascii") + b"\n" for line in lines))

    def expect_clash(self, message, *lines):
        self.put_list(*lines)
        self.expect_refused(f"satwecvt: {message}\n", "--list", "pairs.txt")

    def setUp(self):
        super().setUp()
        self.put_pair("a")
        self.put_frame("a/structure.txt", "a/load.sat")

    def test_one_model_of_two_pairs(self):
        self.expect_clash("a/structure.sat and a/structure.txt would both write a/structure.vkm",
                          "a/structure.sat a/load.sat", "a/structure.txt a/load.sat")

    def test_one_pair_twice(self):
        self.expect_clash("a/structure.sat and ./a/structure.sat would both write ./a/structure.vkm",
                          "a/structure.sat a/load.sat", "./a/structure.sat a/load.sat")

    @needs_posix("links")
    def test_models_that_are_one_through_links(self):
        (self.folder / "b").symlink_to("a")
        self.expect_clash("a/structure.sat and b/structure.sat would both write b/structure.vkm",
                          "a/structure.sat a/load.sat", "b/structure.sat a/load.sat")
        self.put_pair("c")
        (self.folder / "c" / "structure.vkm").symlink_to("../a/structure.vkm")
        self.expect_clash("a/structure.sat and c/structure.sat would both write c/structure.vkm",
                          "a/structure.sat a/load.sat", "c/structure.sat a/load.sat")

    def test_a_model_or_a_log_that_another_pair_reads(self):
        for name in ("a/structure.vkm", "a/structure.msg"):
            self.expect_clash(f"{name}: a/structure.sat would write this input of another pair",
                              "x.sat " + name, "a/structure.sat a/load.sat")

    def test_ten_clashes_are_told(self):
        self.put_list(*["a/structure.sat a/load.sat"] * 5001)
        ended = self.batch("--list", "pairs.txt")
        self.assertEqual((2, 11), (ended.code, len(ended.err.splitlines())))
        self.assertTrue(ended.err.endswith("satwecvt: and 4,990 more of these\n"))

    def test_a_pair_in_its_own_way_is_told_when_it_is_converted(self):
        self.put_frame("b.sat", "b.vkm")
        self.put_list("b.sat b.vkm", "a/structure.sat a/load.sat")
        ended = self.batch("--list", "pairs.txt")
        self.assertEqual(4, ended.code)
        self.assertRegex(ended.out, r"\Afailed +b.sat: b.vkm could not be written: it is an input file.*\nok ")

    def test_a_list_that_a_pair_would_write(self):
        self.put_frame("p.sat", "l.sat")
        self.put("p.msg", b"p.sat l.sat\n")
        self.expect_refused("satwecvt: --list p.msg: this file belongs to the conversion of p.sat\n", "--list", "p.msg")

    def test_a_record_in_the_place_of_another_file(self):
        self.put_list("a/structure.sat a/load.sat")
        for name in ("a/structure.sat", "a/./load.sat", "a/structure.vkm", "a/structure.msg"):
            self.expect_refused(f"satwecvt: --json-lines {name}: this file belongs to the conversion of a/structure.sat",
                                "--json-lines", name, "--list", "pairs.txt")
        self.expect_refused("satwecvt: --json-lines ./pairs.txt: this file is the list\n", "--json-lines",
                            "./pairs.txt", "--list", "pairs.txt")


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


@unittest.skipIf(IS_WINE, "signals: nothing to test under Wine")
class Interrupted(BatchTest):
    """A frame and three towers, big enough to be met while they are read."""

    LINES = 1_000_000

    @classmethod
    def setUpClass(cls):
        cls.tower = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="satwecvt-tower-")))
        subprocess.run([*shlex.split(os.environ["GENERATE_TOWER"]), "--lines", str(cls.LINES),
                        cls.tower / "structure.sat", cls.tower / "load.sat"], check=True, stdout=subprocess.DEVNULL,
                       timeout=SECONDS)

    def setUp(self):
        super().setUp()
        self.put_pair("t/0")
        for number in (1, 2, 3):
            (self.folder / "t" / str(number)).mkdir()
            self.put_old_outputs(f"t/{number}")
            for name in ("structure.sat", "load.sat"):
                (self.folder / "t" / str(number) / name).symlink_to(self.tower / name)

    def met_while_reading(self, jobs, towers, sent):
        """Sends a signal when so many towers are being read."""
        process = subprocess.Popen([*PROGRAM, "batch", "-j", jobs, "--json-lines", "record", "t"], cwd=self.folder,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        deadline = time.monotonic() + SECONDS
        while self.open_towers(process) < towers:
            self.assertIsNone(process.poll(), "not met while it was reading")
            self.assertLess(time.monotonic(), deadline)
            time.sleep(0.0005)
        process.send_signal(sent)
        out, err = process.communicate(timeout=SECONDS)
        return Ended(process.returncode, out.decode("ascii"), err.decode("ascii"))

    def open_towers(self, process):
        """How many structure files of towers the process has open at this moment."""
        folder = f"/proc/{process.pid}/fd"
        count = 0
        for number in os.listdir(folder):
            try:
                count += os.path.samefile(os.path.join(folder, number), self.tower / "structure.sat")
            except OSError:  # it has just been closed
                pass
        return count

    def expect_no_tower(self):
        for number in (1, 2, 3):
            self.expect_old_outputs(f"t/{number}")
        self.expect_model("t/0/structure.vkm")
        self.assertEqual([], [name for name in self.files() if ".satwecvt-" in name])

    def test_ctrl_c_cancels_the_pairs_in_progress_and_begins_no_other(self):
        ended = self.met_while_reading("2", 2, signal.SIGINT)
        self.assertEqual((130, ""), (ended.code, ended.err))
        *lines, totals = [re.sub(" +", " ", line) for line in ended.out.splitlines()]
        self.assertEqual([f"ok t/0/structure.sat: {OK}", "cancelled t/1/structure.sat", "cancelled t/2/structure.sat"],
                         lines)
        self.assertEqual("4 pairs: 1 ok, 2 cancelled, 1 not begun; 0 losses, 0 doubts, 0 notes", totals)
        self.assertEqual([0, 130, 130], [record["exitCode"] for record in self.records(self.read("record"))])
        self.expect_no_tower()

    def test_a_kill_leaves_the_record_of_what_was_done(self):
        ended = self.met_while_reading("1", 1, signal.SIGKILL)
        self.assertEqual(-signal.SIGKILL, ended.code)
        self.assertEqual([0], [record["exitCode"] for record in self.records(self.read("record"))])
        self.expect_no_tower()


if __name__ == "__main__":
    unittest.main()
