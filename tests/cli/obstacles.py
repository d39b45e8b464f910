"""Where a report, a device or a terminal gets in the way of the conversion's own output."""
import os
import pty
import subprocess

from exit_codes import FailureTest
from program import LOG, PROGRAM, SECONDS, ProgramTest


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


class EmptyPath(FailureTest):
    def test_an_empty_name(self):
        self.put_frame()
        for files in (("", "load.sat"), ("structure.sat", "")):
            with self.subTest(files):
                ended = self.convert(*files)
                self.assertEqual(1, ended.code)
                self.assertNotIn("model text file is incomplete", ended.err)
                self.assertIn("No such file", ended.err)

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
