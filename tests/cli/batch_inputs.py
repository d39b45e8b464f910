"""Where the pairs of a batch come from, and that none of them is in another's way."""

import os
import unittest

from batch import OK, TOWER, BatchTest
from program import Ended, needs_posix


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
        (b"b\0.\0", 'this is no list of names: "b\\x00.\\x00"'),
        (b" " * 200000 + b"b.sat l.sat", 'this is no list of names: ""'),
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
        for folder in ("t", "t/b", "t/a/deep/er", "t/a-1", "t/a.1", "t/B", "t/c"):
            self.put_pair(folder)
        self.put("t/notes/readme.txt", b"no pair")
        ended = self.batch("t")
        self.assertEqual((0, ""), (ended.code, ended.err))
        self.expect_lines([f"ok {folder}/structure.sat: {OK}"
                           for folder in ("t", "t/B", "t/a/deep/er", "t/a-1", "t/a.1", "t/b", "t/c")], ended.out)

    @needs_posix("names of more than ASCII")
    def test_may_have_names_in_any_language(self):
        names = ["z", "é", "塔", "\uff21", "\U0001f3d7"]  # by their bytes in UTF-8
        for name in names:
            self.put_pair(f"t/{name}", structure="框.sat", load="荷.sat")
        ended = self.batch("--structure", "框.sat", "--load", "荷.sat", "t")
        self.assertEqual((0, ""), (ended.code, ended.err))
        self.expect_lines([f"ok t/{name}/框.sat: {OK}" for name in names], ended.out)

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
            self.expect_refused(f"satwecvt: --json-lines {name}: this file belongs to the conversion of "
                                "a/structure.sat", "--json-lines", name, "--list", "pairs.txt")
        self.expect_refused("satwecvt: --json-lines ./pairs.txt: this file is the list\n", "--json-lines",
                            "./pairs.txt", "--list", "pairs.txt")

    @needs_posix("links")
    def test_a_record_that_is_another_name_of_an_input_or_of_the_list(self):
        self.put_list("a/structure.sat a/load.sat")
        for name in ("a/structure.sat", "a/load.sat"):
            (self.folder / "record").unlink(missing_ok=True)
            os.link(self.folder / name, self.folder / "record")
            self.expect_refused("satwecvt: --json-lines record: this file belongs to the conversion of a/structure.sat",
                                "--json-lines", "record", "--list", "pairs.txt")
        os.link(self.folder / "pairs.txt", self.folder / "list")
        self.expect_refused("satwecvt: --json-lines list: this file is the list\n", "--json-lines", "list", "--list",
                            "pairs.txt")


if __name__ == "__main__":
    unittest.main()
