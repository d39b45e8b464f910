"""Where a report, a device or a terminal gets in the way of the conversion's own output."""
import os
import pty
import resource
import subprocess
import unittest

from exit_codes import OLD, FailureTest
from program import LOG, PROGRAM, SECONDS, ProgramTest
from reporting import FRAME_LOADS

NOBODY = 65534  # an ordinary user


class ReportInTheWay(FailureTest):
    def test_outputs_that_do_not_exist_yet_under_another_name(self):
        self.put_frame()
        for name in ("structure.vkm", LOG):
            for path in (os.path.join(".", name), os.fspath(self.folder / name)):
                with self.subTest(path):
                    (self.folder / name).unlink(missing_ok=True)
                    self.assertEqual(2, self.convert("-q", "--json", path, "structure.sat", "load.sat").code)

    def test_an_output_that_the_conversion_makes_behind_a_link(self):
        for name in ("structure.vkm", LOG):
            with self.subTest(name):
                self.put_frame()
                (self.folder / name).unlink(missing_ok=True)
                (self.folder / "report").unlink(missing_ok=True)
                (self.folder / "report").symlink_to(name)
                ended = self.convert("-q", "--json", "report", "structure.sat", "load.sat")
                self.assertEqual((2, ""), (ended.code, ended.out))
                self.assertEqual("satwecvt: --json report: this file belongs to the conversion itself\n", ended.err)
                self.assertFalse((self.folder / name).exists())


class OneFileForBothOutputs(ProgramTest):
    def test_is_refused(self):
        self.put_tower()
        (self.folder / LOG).symlink_to("structure.vkm")
        ended = self.convert("structure.sat", "load.sat")
        self.assertEqual((4, ""), (ended.code, ended.out))
        self.assertEqual("satwecvt: error: structure.vkm could not be written: it is the message log of this "
                         "conversion\n", ended.err)


class DeviceAsLog(FailureTest):
    def test_no_space_for_the_log(self):
        self.put_tower()
        (self.folder / LOG).symlink_to("/dev/full")
        ended = self.convert("structure.sat", "load.sat")  # a device has no end: reading it back would take for ever
        self.assertEqual((4, ""), (ended.code, ended.out))
        self.assertEqual(f"satwecvt: error: {LOG} could not be written: No space left on device",
                         ended.err.splitlines()[-1])


class InPlaceTest(FailureTest):
    """An output that is no file of a folder gets the whole model when the conversion went well, and nothing else."""

    def model_of(self, put):
        put()
        self.convert_well("structure.sat", "load.sat")
        model = self.read("structure.vkm")
        for name in ("structure.vkm", LOG):
            (self.folder / name).unlink()
        return model

    def expect_nothing_for(self, path):
        """Of a conversion that is refused, and of one that fails while the model is written."""
        self.put_tower()
        self.assertEqual((3, ""), self.convert("--strict", "-o", path, "structure.sat", "load.sat")[:2])
        self.put_frame_with("structure.sat", 51, b"2 6 7 1 0 0 0", b"1 6 7 1 0 0 0")
        self.assertEqual((1, ""), self.convert("-o", path, "structure.sat", "load.sat")[:2])


class Device(InPlaceTest):
    def test_stdout_gets_no_model_that_is_not_written(self):
        self.expect_nothing_for("/dev/stdout")
        self.assertEqual(set(), self.new_files())

    def test_stdout_gets_the_model(self):
        model = self.model_of(self.put_frame)
        for flags in (["-q"], []):  # a summary would go over it
            ended = self.convert(*flags, "-o", "/dev/stdout", "structure.sat", "load.sat")
            self.assertEqual(model.decode("ascii"), ended.out)
        piped = subprocess.run([*PROGRAM, "convert", "-q", "-o", "/dev/stdout", "structure.sat", "load.sat"],
                               cwd=self.folder, capture_output=True, check=True, timeout=SECONDS)
        self.assertEqual((model, b""), (piped.stdout, piped.stderr))

    def test_a_device_has_a_balance_too(self):
        self.put_frame()
        self.convert_well("-o", "/dev/null", "--json", "report.json", "structure.sat", "load.sat")
        self.assertEqual((0, "/dev/null", FRAME_LOADS),
                         tuple(self.report()[key] for key in ("exitCode", "output", "loads")))

    def test_one_device_for_both_outputs_is_refused(self):
        self.put_tower()
        ended = self.convert("-o", "/dev/null", "--log", "/dev/../dev/null", "structure.sat", "load.sat")
        self.assertEqual((4, "satwecvt: error: /dev/null could not be written: it is the message log of this "
                             "conversion\n"), (ended.code, ended.err))

    def test_nothing_takes_its_place_beside_a_device_that_is_full(self):
        self.put_tower()
        self.put_old_outputs()
        ended = self.convert("-o", "/dev/full", "--json", "report.json", "structure.sat", "load.sat")
        self.assertEqual((4, ""), (ended.code, ended.out))
        self.assertTrue(ended.err.endswith("\nsatwecvt: error: /dev/full could not be written: "
                                           "No space left on device\n"))
        self.assertEqual((4, None, []), tuple(self.report()[key] for key in ("exitCode", "output", "log")))
        self.expect_old_outputs()
        self.assertEqual({"structure.vkm", LOG, "report.json"}, self.new_files())


class Pipe(InPlaceTest):
    def setUp(self):
        super().setUp()
        self.pipe = self.folder / "pipe"
        os.mkfifo(self.pipe)

    def start(self, *arguments):
        return subprocess.Popen([*PROGRAM, "convert", "-q", "-o", "pipe", *arguments, "structure.sat", "load.sat"],
                                cwd=self.folder, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)

    def read_pipe_by(self, *command):
        return subprocess.run([*command, self.pipe], capture_output=True, check=True, timeout=SECONDS).stdout

    def test_is_not_waited_for_without_a_model(self):
        self.expect_nothing_for("pipe")

    def test_gets_the_model(self):
        model = self.model_of(self.put_tower)
        self.assertGreater(len(model), 65536)
        with self.start("--json", "report.json") as program:
            self.assertTrue(self.read_pipe_by("cat") == model)
            program.communicate(timeout=SECONDS)
        self.assertEqual((0, "pipe"), (program.returncode, self.report()["output"]))
        self.assertTrue(all(row["holds"] for row in self.report()["loads"]))

    def test_whose_reader_goes_away_is_told(self):
        self.put_tower()
        with self.start() as program:
            self.assertEqual(b"*", self.read_pipe_by("head", "-c1"))
            err = program.communicate(timeout=SECONDS)[1].decode()
        self.assertEqual(4, program.returncode, err)
        self.assertEqual("satwecvt: error: pipe could not be written: Broken pipe", err.splitlines()[-1])
        self.assertEqual({"pipe"}, self.new_files())


class FolderThatTakesNoFile(InPlaceTest):
    """As an ordinary user has it: the model may be written, but no file can be put beside it."""

    def setUp(self):
        super().setUp()
        self.folder.chmod(0o755)
        self.models = self.folder / "models"
        self.models.mkdir()
        self.model = self.models / "tower.vkm"
        self.put_old_model()
        self.models.chmod(0o555)
        self.addCleanup(self.models.chmod, 0o755)

    def put_old_model(self):
        self.model.write_bytes(OLD)
        self.model.chmod(0o666)

    def convert(self, *arguments, **options):
        user = {"user": NOBODY, "group": NOBODY, "extra_groups": []} if os.geteuid() == 0 else {}
        return super().convert("--log", "/dev/null", *arguments, **user, **options)

    def test_keeps_the_old_model_when_there_is_no_new_one(self):
        self.expect_nothing_for("models/tower.vkm")
        self.assertEqual(OLD, self.model.read_bytes())

    def test_gets_the_model(self):
        self.put_frame()
        self.convert_well("-o", "models/tower.vkm", "structure.sat", "load.sat")
        self.expect_model("models/tower.vkm")
        self.assertEqual({"models/tower.vkm"}, self.new_files())
        self.assertEqual(0o666, self.model.stat().st_mode & 0o777)

    def test_refuses_a_model_that_is_not_there_or_may_not_be_written(self):
        self.put_frame()
        self.model.chmod(0o444)
        for name in ("models/tower.vkm", "models/other.vkm"):
            ended = self.convert("-o", name, "structure.sat", "load.sat")
            self.assertEqual((4, "", f"satwecvt: error: {name} could not be written: Permission denied\n"), ended)
        self.assertEqual(OLD, self.model.read_bytes())

    def test_tells_of_a_file_that_may_not_grow(self):
        self.put_tower()
        ended = self.convert("-q", "-o", "models/tower.vkm", "structure.sat", "load.sat",
                             preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (20000, 20000)))
        self.assertEqual((4, ""), (ended.code, ended.out))
        self.assertEqual("satwecvt: error: models/tower.vkm could not be written: File too large",
                         ended.err.splitlines()[-1])
        self.assertEqual({"models/tower.vkm"}, self.new_files())


class ControlCharacters(FailureTest):
    def test_of_a_name_do_not_reach_the_terminal(self):
        name = "e\x1b]0;x\x07.sat"
        self.put_frame(name, "load.sat")
        for arguments in ((name, "load.sat"), (name, "nowhere\x1b.sat"), ("--json", name, name, "load.sat"),
                          ("--log", "no\x1b/where", *self.put_tower())):
            with self.subTest(arguments):
                ended = self.convert(*arguments)
                self.assertNotRegex(ended.out + ended.err, r"[^ -~\n]")


class EmptyPath(FailureTest):
    def test_an_empty_name_is_wrong_usage(self):
        self.put_frame()
        for files in (("", "load.sat"), ("structure.sat", "")):
            with self.subTest(files):
                self.assertEqual(2, self.convert(*files).code)

    def test_an_empty_name_for_the_report_is_wrong_usage(self):
        self.put_frame()
        self.assertEqual(2, self.convert("--json", "", "structure.sat", "load.sat").code)


class HelpToFull(ProgramTest):
    def test_help_that_cannot_be_printed(self):
        with open("/dev/full", "wb") as full:
            for arguments in (["--help"], ["--version"], ["convert", "--help"]):
                with self.subTest(arguments):
                    self.assertNotEqual(0, self.run_program(*arguments, stdout=full).code)


class MessageOnProgressLine(ProgramTest):
    def shown(self, *files):
        master, slave = pty.openpty()
        process = subprocess.Popen([*PROGRAM, "convert", *files], cwd=self.folder, stderr=slave,
                                   stdout=subprocess.DEVNULL)
        os.close(slave)
        shown = b""
        try:
            while part := os.read(master, 65536):
                shown += part
        except OSError:
            pass
        process.wait(SECONDS)
        os.close(master)
        return shown.decode()

    def expect_messages_on_lines_of_their_own(self, shown):
        for line in shown.split("\r\n")[:-1]:
            self.assertRegex(line, r"(\A|\r)(satwecvt|nowhere\.sat): error: ")

    def test_gives_way_to_the_message_of_a_missing_load_file(self):
        self.put_frame()
        self.expect_messages_on_lines_of_their_own(self.shown("structure.sat", "nowhere.sat"))

    def test_gives_way_to_the_message_of_a_file_error(self):
        self.put_frame()
        (self.folder / "structure.vkm").mkdir()
        self.expect_messages_on_lines_of_their_own(self.shown("structure.sat", "load.sat"))


class ReadError(FailureTest):
    def test_a_file_that_the_system_does_not_read(self):
        self.put_frame()
        ended = self.convert("/proc/self/mem", "load.sat")
        self.assertEqual(1, ended.err.count("/proc/self/mem"), ended.err)


if __name__ == "__main__":
    unittest.main()
