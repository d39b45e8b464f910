"""How the program ends when something is wrong: its exit code, its message, and what it leaves alone."""

import os
import signal
import unittest

from program import FINDING_LINE, IS_WINE, LOG, ProgramTest, needs_posix, sample

OLD = b"of an earlier conversion\n"


class FailureTest(ProgramTest):
    def expect_failure(self, code, messages, *arguments, **options):
        """Nothing on stdout, and on stderr these lines."""
        ended = self.convert(*arguments, **options)
        self.assertEqual((code, ""), (ended.code, ended.out))
        self.assertEqual(messages, ended.err.splitlines())

    def put_frame_with(self, file, line, old, new):
        """The frame with another line, counted from 1, in one of its files."""
        self.put_frame()
        lines = self.read(file).split(b"\n")
        self.assertEqual(old, lines[line - 1], "the sample has changed")
        lines[line - 1] = new
        self.put(file, b"\n".join(lines))

    def put_old_outputs(self):
        (self.folder / "structure.vkm").write_bytes(OLD)
        (self.folder / LOG).write_bytes(OLD)

    def expect_old_outputs(self):
        self.assertEqual((OLD, OLD), (self.read("structure.vkm"), self.read(LOG)))


class InputThatCannotBeOpened(FailureTest):
    def test_structure_file(self):
        self.put_frame()
        self.expect_failure(1, ["nowhere.sat: error: cannot be opened: No such file or directory"],
                            "nowhere.sat", "load.sat")
        self.assertEqual(set(), self.new_files())

    def test_load_file(self):
        self.put_frame()
        self.expect_failure(1, ["nowhere.sat: error: cannot be opened: No such file or directory"],
                            "structure.sat", "nowhere.sat")
        self.assertEqual(set(), self.new_files())

    def test_both(self):
        self.expect_failure(1, ["no.sat: error: cannot be opened: No such file or directory"], "no.sat", "where.sat")
        self.assertEqual(set(), self.files())

    def test_a_folder(self):
        self.put_frame()
        (self.folder / "folder").mkdir()
        ended = self.convert("folder", "load.sat")
        self.assertEqual((1, ""), (ended.code, ended.out))
        self.assertRegex(ended.err, r"\Afolder: error: cannot be opened: .+\n\Z")

    @needs_posix("pipes and devices")
    def test_a_pipe_or_a_device_does_not_block(self):
        self.put_frame()
        os.mkfifo(self.folder / "pipe")
        for path in ("pipe", "/dev/zero", "/dev/null"):
            with self.subTest(path):
                ended = self.convert("structure.sat", path)
                self.assertEqual((1, ""), (ended.code, ended.out))
                self.assertEqual(f"{path}: error: cannot be opened: it is not a regular file\n", ended.err)

    def test_quiet_does_not_hide_it(self):
        self.expect_failure(1, ["no.sat: error: cannot be opened: No such file or directory"],
                            "-q", "no.sat", "where.sat")


class InputThatCannotBeRead(FailureTest):
    """The message names file, line and reason, and shows the line; old outputs stay as they are."""

    # A line of the frame, what stands there and what shall, and what its block needs.
    SHORT_LINES = [
        (18, b"1 1 6 0 300 600 0 0 0 0", b"1 1 6 0 300 600 0 0 0",
         "the first line of a section needs 10 numbers, this line has 9"),
        (23, b"0 0 0 0", b"0 0 0", "the second line of a section needs 4 numbers, this line has 3"),
        (28, b"3 3 0 6000 5000 0", b"3 3 0 6000 5000", "a node needs 6 numbers, this line has 5"),
        (43, b"2 6 0 6000    0 3600", b"2 6 0 6000    0", "a node needs 6 numbers, this line has 5"),
        (50, b"1 5 6 1 0 0 0", b"1 5 6 1 0 0", "a beam needs 7 numbers, this line has 6"),
        (51, b"2 6 7 1 0 0 0", b"2 6", "a beam needs 7 numbers, this line has 2"),
        (53, b"0 100 0 0 100 0", b"0 100 0 0 100", "the extra line of a beam needs 6 numbers, this line has 5"),
        (59, b"3 3 7 2 0 0 0", b"3 3 7 2 0 0", "a column needs 7 numbers, this line has 6"),
        (63, b"1 4 0 120 5 6 7 8", b"1", "a plate needs 4 numbers, this line has 1"),
    ]

    def test_a_line_with_too_few_numbers(self):
        self.put_old_outputs()
        for line, old, new, what in self.SHORT_LINES:
            with self.subTest(line=line):
                self.put_frame_with("structure.sat", line, old, new)
                self.expect_failure(1, [f'structure.sat:{line}: error: {what}: "{new.decode()}"'],
                                    "structure.sat", "load.sat")
                self.expect_old_outputs()

    def test_a_short_line_in_line_12(self):
        self.put("structure.sat", b"1 1 1\n1 1 6 0 1 1 0 0 0 0\n0 0 0 0\n1 1 0 0 0 0\n1 1 0\n1\n3 30 30 30 30 3\n"
                                  b"1 3 0 0 0 0\n1 2 0 0 0 3\n1 1 2 1 0 0 0\nC comment\n2 1 2\n3 1 2 1 0 0 0\n")
        self.put("load.sat", b"0\n")
        self.expect_failure(1, ['structure.sat:12: error: a beam needs 7 numbers, this line has 3: "2 1 2"'],
                            "structure.sat", "load.sat")

    # The first so many lines of the frame, and the block that they end in.
    CUTS = [
        (12, "file header"), (14, "section definitions"), (18, "section definitions"),
        (25, "model-level nodes"), (27, "model-level nodes"), (30, "story line 1 of story block 1"),
        (32, "story line 2 of story block 1"), (34, "story line 3 of story block 1"),
        (37, "story line 3 of story block 1"), (39, "node lines of story block 1"),
        (44, "node lines of story block 1"), (50, "beam lines of story block 1"), (53, "beam lines of story block 1"),
        (57, "column lines of story block 1"), (62, "plate lines of story block 1"),
    ]

    def test_a_file_that_ends_in_a_block(self):
        structure, load = sample("frame")
        self.put("load.sat", load)
        self.put_old_outputs()
        for lines, block in self.CUTS:
            with self.subTest(lines=lines):
                self.put("structure.sat", b"".join(structure.splitlines(keepends=True)[:lines]))
                self.expect_failure(1, [f"structure.sat:{lines}: error: the file ends here ({block})"],
                                    "structure.sat", "load.sat")
                self.expect_old_outputs()

    def test_the_second_story_is_named_as_such(self):
        structure, load = sample("tower")
        at = structure.index(b"\n", structure.index(b"C ---- story 2"))
        self.put("structure.sat", structure[:at + 1])
        self.put("load.sat", load)
        lines = structure[:at + 1].count(b"\n")
        self.expect_failure(1, [f"structure.sat:{lines}: error: the file ends here (story line 1 of story block 2)"],
                            "structure.sat", "load.sat")

    @needs_posix("a regular file that opens but does not read")
    def test_a_file_that_the_system_does_not_read(self):
        self.put_frame()
        ended = self.convert("/proc/self/mem", "load.sat")
        self.assertEqual((1, ""), (ended.code, ended.out))
        self.assertRegex(ended.err, r"\A/proc/self/mem: error: Input/output error .*\n\Z")
        self.assertEqual(set(), self.new_files())


class ModelThatCannotBeWritten(FailureTest):
    """The content of the inputs is found wrong only in writing."""

    def expect_nothing_written(self, why, *findings):
        self.put_old_outputs()
        self.expect_failure(1, [*findings, why], "structure.sat", "load.sat")
        self.expect_old_outputs()
        self.assertEqual({"structure.vkm", LOG}, self.new_files())

    def test_two_nodes_with_one_key(self):
        self.put_frame_with("structure.sat", 43, b"2 6 0 6000    0 3600", b"1 6 0 6000    0 3600")
        self.expect_nothing_written("structure.sat:43: error: node 1 of story 1 stands here and in line 42: a key may "
                                    "stand once")

    def test_two_beams_with_one_key(self):
        self.put_frame_with("structure.sat", 51, b"2 6 7 1 0 0 0", b"1 6 7 1 0 0 0")
        self.expect_nothing_written("structure.sat:51: error: beam 1 of story 1 stands here and in line 50: a key may "
                                    "stand once")

    def test_a_force_on_a_wall_that_is_not_there(self):
        self.put_frame_with("load.sat", 19, b"7 4 1 1 8000 5000/4", b"7 9 21 1 8000 100")
        self.expect_nothing_written("load.sat:19: error: a force on wall 9 of story 1, which does not exist")

    def test_a_load_file_that_ended_early_is_not_to_blame(self):
        self.put_frame_with("structure.sat", 43, b"2 6 0 6000    0 3600", b"1 6 0 6000    0 3600")
        self.put("load.sat", b"1\n")
        self.expect_nothing_written("structure.sat:43: error: node 1 of story 1 stands here and in line 42: a key may "
                                    "stand once",
                               "load.sat:1: loss: the file ends in block 1 of 1: 0 loads read, 1 announced in the "
                               "blocks that were read [ends-early]")


class LoadFileCutShort(FailureTest):
    """The load file never makes a conversion fail; a finding tells that there should have been more."""

    CUTS = [(1, 0, 0), (3, 0, 0), (4, 0, 7), (12, 3, 7), (18, 6, 7)]  # lines, loads read, loads announced

    def test_is_converted_and_told(self):
        structure, load = sample("frame")
        self.put("structure.sat", structure)
        for lines, read, announced in self.CUTS:
            for flags in ([], ["--quiet"]):
                with self.subTest(lines=lines, flags=flags):
                    self.put("load.sat", b"".join(load.splitlines(keepends=True)[:lines]))
                    ended = self.convert(*flags, "structure.sat", "load.sat")
                    self.assertEqual(0, ended.code)
                    self.assertEqual("" if flags else "Model  structure.vkm", ended.out.partition("\n")[0])
                    self.assertEqual(f"load.sat:{lines}: loss: the file ends in block 1 of 1: {read} loads read, "
                                     f"{announced} announced in the blocks that were read [ends-early]\n", ended.err)
                    self.assertTrue(self.read("structure.vkm").startswith(b"*VERSION"))

    def test_keeps_the_loads_before_the_cut(self):
        structure, load = sample("frame")
        self.put("structure.sat", structure)
        self.put("load.sat", b"".join(load.splitlines(keepends=True)[:12]))
        self.convert("--json", "report.json", "structure.sat", "load.sat")
        counts = self.report()["counts"]
        # All dead, so all under both cases.
        self.assertEqual({"read": 2, "converted": 2, "lost": 0, "lines": 4}, counts["beamLoads"])
        self.assertEqual({"read": 1, "converted": 1, "lost": 0, "lines": 2}, counts["nodalLoads"])


class WrongUsage(ProgramTest):
    def expect_usage_error(self, *arguments):
        with self.subTest(arguments):
            before = self.files()
            ended = self.run_program(*arguments)
            self.assertEqual((2, ""), (ended.code, ended.out))
            self.assertIn("--help", ended.err)
            self.assertEqual(before, self.files())
            return ended.err

    def test_arguments(self):
        self.put_frame()
        self.expect_usage_error()
        self.expect_usage_error("transform")
        self.expect_usage_error("--unknown")
        self.expect_usage_error("convert")
        self.expect_usage_error("convert", "structure.sat")
        self.expect_usage_error("convert", "structure.sat", "load.sat", "third.sat")
        self.expect_usage_error("convert", "structure.sat", "load.sat", "--json")
        self.expect_usage_error("convert", "--json", "a", "--json", "b", "structure.sat", "load.sat")

    def test_two_names_of_which_the_first_is_no_file_and_no_command(self):
        self.put_frame()
        for name in ("nofile.sat", "chek"):
            self.assertEqual(f'satwecvt: "{name}" is neither a command nor a file; see satwecvt --help\n',
                             self.expect_usage_error(name, "load.sat"))

    def test_the_message_names_the_argument(self):
        self.put_frame()
        self.assertIn("STRUCTURE", self.expect_usage_error("convert"))
        self.assertIn("LOAD", self.expect_usage_error("convert", "structure.sat"))
        self.assertIn("--unknown", self.expect_usage_error("convert", "--unknown", "structure.sat", "load.sat"))


class ReportInTheWay(FailureTest):
    """The report must not take the place of a file of the conversion, under whatever name."""

    def expect_refused(self, path):
        with self.subTest(path):
            before = self.files()
            self.expect_failure(2, [f"satwecvt: --json {path}: this file belongs to the conversion itself"],
                                "--json", path, "structure.sat", "load.sat")
            self.assertEqual(before, self.files())

    def test_named_as_in_the_arguments(self):
        self.put_frame()
        for name in ("structure.sat", "load.sat", "structure.vkm", LOG):
            self.expect_refused(name)

    def test_existing_files_under_another_name(self):
        self.put_frame()
        self.put_old_outputs()
        for name in ("structure.sat", "load.sat", "structure.vkm", LOG):
            self.expect_refused(os.path.join(".", name))
            if not IS_WINE:
                self.expect_refused(os.fspath(self.folder / name))
        self.expect_old_outputs()

    @needs_posix("/dev/stdout")
    def test_stdout_that_is_an_output_itself(self):
        self.put_frame()
        for output in ("-o", "--log"):
            self.expect_failure(2, ["satwecvt: --json -: this file belongs to the conversion itself"], output,
                                "/dev/stdout", "--json", "-", "structure.sat", "load.sat")

    @needs_posix("links")
    def test_existing_files_through_links(self):
        self.put_frame()
        self.put_old_outputs()
        for number, name in enumerate(("structure.sat", "load.sat", "structure.vkm", LOG)):
            (self.folder / f"soft{number}").symlink_to(name)
            os.link(self.folder / name, self.folder / f"hard{number}")
            self.expect_refused(f"soft{number}")
            self.expect_refused(f"hard{number}")
        self.expect_old_outputs()


def limit_file_size(size):
    """For the child process: no file may grow beyond so many bytes; a write there fails as on a full disk."""
    def limit():
        import resource
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))
    return limit


class OutputThatCannotBeWritten(FailureTest):
    def expect_not_written(self, name, *arguments, cause=r".+", **options):
        """Exit code 4, and at the end a message that names the file and the cause. No other file is left behind."""
        before = self.files()
        ended = self.convert(*arguments, **options)
        self.assertEqual((4, ""), (ended.code, ended.out))
        *findings, message = ended.err.splitlines()
        self.assertRegex(message, rf"\Asatwecvt: error: {name} could not be written: {cause}\Z")
        for line in findings:
            self.assertRegex(line, FINDING_LINE)
        self.assertLessEqual(self.files() - before, {"report.json"})

    def test_the_model_is_a_folder(self):
        self.put_frame()
        (self.folder / "structure.vkm").mkdir()
        self.expect_not_written("structure.vkm", "structure.sat", "load.sat")

    def test_the_report_tells_it(self):
        self.put_frame()
        (self.folder / "structure.vkm").mkdir()
        self.expect_not_written("structure.vkm", "--json", "report.json", "structure.sat", "load.sat")
        report = self.report()
        self.assertEqual((0, 4, None), (report["result"], report["exitCode"], report["output"]))
        self.assertRegex(report["failure"]["text"], r"\Astructure.vkm could not be written: .+\Z")
        self.assertEqual([report["failure"]["text"]], report["messages"])

    def test_the_model_would_replace_an_input(self):
        self.put_frame("structure.sat", "structure.vkm")
        self.expect_not_written("structure.vkm", "structure.sat", "structure.vkm", cause="it is an input file.*")

    def test_the_log_would_replace_an_input(self):
        self.put_tower("structure.sat", LOG)
        self.expect_not_written(LOG, "structure.sat", LOG, cause="it is an input file.*")

    def test_the_log_is_a_folder_and_there_is_something_to_log(self):
        self.put_tower()
        (self.folder / LOG).mkdir()
        self.expect_not_written(LOG, "structure.sat", "load.sat")

    def test_a_log_that_cannot_be_created_does_no_harm_when_it_would_be_empty(self):
        self.put_frame()
        (self.folder / LOG).mkdir()
        summary = self.convert_well("structure.sat", "load.sat")
        self.assertRegex(summary, r"(?m)^Log +none: .*satwecvt\.msg could not be created$")
        self.expect_model("structure.vkm")

    @needs_posix("/dev/full")
    def test_no_space_for_the_model(self):
        self.put_frame()
        (self.folder / "structure.vkm").symlink_to("/dev/full")
        self.expect_not_written("structure.vkm", "structure.sat", "load.sat", cause="No space left on device")

    @needs_posix("a limit on the size of files")
    def test_no_space_for_the_rest_of_the_model(self):
        self.put_tower()
        self.expect_not_written("structure.vkm", "structure.sat", "load.sat", cause="File too large",
                                preexec_fn=limit_file_size(20000))

    def expect_not_reported(self, *arguments, **options):
        """The conversion itself went well."""
        ended = self.convert(*arguments, "structure.sat", "load.sat", **options)
        self.assertEqual(4, ended.code)
        self.assertRegex(ended.err, r"\Asatwecvt: .*could not be written.*\n\Z")
        self.expect_model("structure.vkm")

    def test_the_report_lies_in_no_folder(self):
        self.put_frame()
        self.expect_not_reported("--json", os.path.join("nowhere", "report.json"))

    def test_the_report_is_a_folder(self):
        self.put_frame()
        (self.folder / "report.json").mkdir()
        self.expect_not_reported("--json", "report.json")

    @needs_posix("/dev/full")
    def test_no_space_for_the_report(self):
        self.put_frame()
        self.expect_not_reported("--json", "/dev/full")

    @needs_posix("/dev/full")
    def test_no_space_on_stdout(self):
        self.put_frame()
        with open("/dev/full", "wb") as full:
            self.expect_not_reported(stdout=full)
            self.expect_not_reported("--json", "-", stdout=full)
            self.assertEqual(0, self.convert("-q", "structure.sat", "load.sat", stdout=full).code)

    @needs_posix("/dev/full")
    def test_a_failed_conversion_stays_one_when_its_report_fails_too(self):
        self.put_frame()
        self.assertEqual(1, self.convert("--json", "/dev/full", "structure.sat", "nowhere.sat").code)


if __name__ == "__main__":
    unittest.main()
