"""Disks that fill up, really: a small one in memory with less and less room, and a limit on the size of files."""

import os
import resource
import shutil
import signal
import subprocess
import unittest

from outputs import MODEL, HarmTest
from program import LOG, SECONDS

PAGE = resource.getpagesize()


def mount(folder, options):
    """Mounts a disk in memory; returns why that cannot be, or nothing."""
    if shutil.which("mount") is None:
        return "there is no mount"
    ended = subprocess.run(["mount", "-t", "tmpfs", "-o", options, "tmpfs", folder], capture_output=True,
                           check=False, timeout=SECONDS)
    return ended.stderr.decode().strip() if ended.returncode else ""


class SmallDisk(HarmTest):
    """The working folder is a disk of its own."""

    def mount(self, options):
        contents = {path.name: content for path, content in self.inputs.items()}
        if why_not := mount(self.folder, options):
            self.skipTest(f"no disk of its own can be mounted here: {why_not}")
        self.addCleanup(subprocess.run, ["umount", self.folder], check=True, timeout=SECONDS)
        for name, content in contents.items():
            self.put(name, content)

    def remount(self, options):
        subprocess.run(["mount", "-o", f"remount,{options}", self.folder], check=True, timeout=SECONDS)

    def used_pages(self):
        disk = os.statvfs(self.folder)
        return (disk.f_blocks - disk.f_bfree) * disk.f_frsize // PAGE

    def test_with_less_room_than_the_outputs_need(self):
        self.mount(f"size={1000 * PAGE}")
        self.put_old_outputs()
        used = self.used_pages()  # with old outputs, which stay until the new ones are whole
        needed = sum(-(-len(content) // PAGE) for content in self.whole.values())
        for room in range(1, needed + 1):
            with self.subTest(room=room):
                self.put_old_outputs()
                self.remount(f"size={(used + room) * PAGE}")
                ended = self.convert("structure.sat", "load.sat")
                is_written = self.expect_written_or_told(ended, "No space left on device")
                self.assertEqual(room == needed, is_written)
                self.expect_old_or_new_outputs()

    def test_without_room_for_another_file(self):
        self.mount("nr_inodes=1000")
        disk = os.statvfs(self.folder)
        used = disk.f_files - disk.f_ffree
        for room, name in ((0, MODEL), (1, MODEL)):  # the log comes first, but is told of only when it gets a line
            with self.subTest(room=room):
                self.remove_outputs()
                self.remount(f"nr_inodes={used + room}")
                ended = self.convert("structure.sat", "load.sat")
                self.expect_one_message(ended, f"{name} could not be written: No space left on device")

    def test_that_is_read_only(self):
        self.mount("size=1m")
        self.remount("ro")
        self.expect_one_message(self.convert("structure.sat", "load.sat"), "Read-only file system")
        self.expect_no_outputs()


class FullDevices(HarmTest):
    def test_in_the_place_of_each_output(self):
        for name in (MODEL, LOG):
            with self.subTest(name):
                self.remove_outputs()
                (self.folder / name).symlink_to("/dev/full")
                ended = self.convert("structure.sat", "load.sat")
                self.expect_one_message(ended, "could not be written: No space left on device")


class LimitedFiles(HarmTest):
    """No file may grow beyond so many bytes."""

    def convert_limited(self, size, action):
        def limit():
            signal.signal(signal.SIGXFSZ, action)
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))
        return self.convert("-q", "structure.sat", "load.sat", preexec_fn=limit)

    def sizes(self):
        """From where what is printed still fits, since the streams are files too."""
        model = len(self.whole[MODEL])
        return (len(self.whole[LOG]) - 1, len(self.whole[LOG]), 4096, 65535, 65536, 65537, model - 1, model)

    def test_of_any_size(self):
        for size in sorted(size for size in self.sizes() if size <= len(self.whole[MODEL])):
            with self.subTest(size=size):
                self.put_old_outputs()
                ended = self.convert_limited(size, signal.SIG_IGN)
                is_written = self.expect_written_or_told(ended, "File too large")
                self.expect_old_or_new_outputs()
                self.assertEqual(size == len(self.whole[MODEL]), is_written)

    def test_of_a_process_that_the_signal_may_end(self):
        for size in (100, 4096, len(self.whole[MODEL]) - 1):
            with self.subTest(size=size):
                self.put_old_outputs()
                ended = self.convert_limited(size, signal.SIG_DFL)
                self.assertEqual(4, ended.code)
                self.expect_old_or_new_outputs()


if __name__ == "__main__":
    unittest.main()
