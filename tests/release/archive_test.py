"""What is true of every package: sums, times, modes, links, the page in it, and no trace of where it was made."""

import hashlib
import io
import re
import subprocess
import sys
import tarfile
import unittest
import zipfile

from packages import BUILDS, DEB, LINUX, PACKAGES, PAGE, RELEASE, ROOT, TARBALL, TIME, WINDOWS, ZIPS, run, source_of
from packages import unpack

sys.path.append(str(ROOT / "tests" / "house"))  # behind this folder: both have a page_test
from docs_test import link_faults  # noqa: E402

ARCHIVES = [TARBALL, *ZIPS.values()]
EXECUTABLE = re.compile(r"(?:^|/)bin/satwecvt(?:\.exe|\.dll)?$")


def mode_of(name, is_folder):
    return 0o755 if is_folder or EXECUTABLE.search(name) else 0o644


class Folder(unittest.TestCase):
    def test_it_holds_the_packages_and_their_sums_alone(self):
        self.assertEqual(sorted(path.name for path in [*PACKAGES, RELEASE / "SHA256SUMS"]),
                         sorted(path.name for path in RELEASE.iterdir()))

    def test_the_sums_are_those_of_all_packages_in_order(self):
        lines = (RELEASE / "SHA256SUMS").read_text().splitlines()
        self.assertEqual([f"{hashlib.sha256(path.read_bytes()).hexdigest()}  {path.name}"
                          for path in sorted(PACKAGES, key=lambda path: path.name)], lines)
        run("sha256sum", "--check", "--strict", "SHA256SUMS", cwd=RELEASE)


class Entries(unittest.TestCase):
    """Order, owner, mode and time of what is packed depend on nothing but the commit."""

    def expect_tar(self, archive, sort_key):
        entries = archive.getmembers()
        names = [entry.name for entry in entries]
        self.assertEqual(sorted(names, key=sort_key), names)
        self.assertGreater(len(names), 40)
        for entry in entries:
            with self.subTest(entry.name):
                self.assertTrue(entry.isfile() or entry.isdir())
                self.assertEqual((0, 0, TIME), (entry.uid, entry.gid, entry.mtime))
                self.assertEqual(mode_of(entry.name, entry.isdir()), entry.mode)

    def test_those_of_the_archive_for_linux(self):
        with tarfile.open(TARBALL) as archive:
            self.expect_tar(archive, lambda name: name.split("/"))

    def test_those_of_the_debian_package(self):
        packed = subprocess.run(["dpkg-deb", "--fsys-tarfile", DEB], check=True, capture_output=True).stdout
        with tarfile.open(fileobj=io.BytesIO(packed)) as archive:
            self.expect_tar(archive, lambda name: name.split("/"))

    def test_those_of_the_archives_for_windows(self):
        to_two_seconds = TIME + TIME % 2  # a zip has no odd ones, and zip takes the next
        moment = run("date", "--utc", f"--date=@{to_two_seconds}", "+%Y %m %d %H %M %S")
        for package in ZIPS.values():
            with zipfile.ZipFile(package) as archive:
                names = archive.namelist()
                self.assertEqual(sorted(names), names)
                for entry in archive.infolist():
                    with self.subTest(f"{package.name}: {entry.filename}"):
                        self.assertEqual(tuple(map(int, moment.split())), entry.date_time)
                        self.assertEqual(mode_of(entry.filename, entry.is_dir()), entry.external_attr >> 16 & 0o7777)
                        self.assertEqual(b"", entry.extra)


class Contents(unittest.TestCase):
    def setUp(self):
        self.folders = {package: unpack(package) for package in [*ARCHIVES, DEB]}

    def test_each_archive_is_one_folder_of_its_name_with_what_it_should_hold(self):
        for package, name in zip(ARCHIVES, [LINUX, *WINDOWS.values()]):
            self.assertEqual(name, self.folders[package].name)
            run("cmake", f"-DFOLDER={self.folders[package]}", f"-DSOURCE={ROOT}", f"-DPAGE={PAGE}",
                "-P", ROOT / "tests/package/CheckArchive.cmake")

    def test_the_page_is_the_same_everywhere(self):
        for package, folder in self.folders.items():
            place = folder / "usr/share/doc/satwecvt" if package == DEB else folder
            self.assertEqual(PAGE.read_bytes(), (place / "satwecvt.html").read_bytes())

    def test_every_link_of_every_page_leads_to_a_file_of_the_package(self):
        for package, folder in self.folders.items():
            pages = sorted(folder.rglob("*.md"))
            self.assertGreater(len(pages), 10)
            faults = [fault for page in pages for fault in link_faults(page, page.read_text(encoding="utf-8"))]
            self.assertEqual([], faults, package.name)

    def test_nothing_tells_where_it_was_made(self):
        places = {ROOT, BUILDS, *(source_of(cache.parent) for cache in BUILDS.glob("*/CMakeCache.txt"))}
        self.assertGreater(len(places), 2)  # one build has a place of its own
        traces = [str(place).encode() for place in places]
        for package, folder in self.folders.items():
            for file in folder.rglob("*"):
                if file.is_file():
                    content = file.read_bytes()
                    self.assertEqual([], [trace for trace in traces if trace in content], f"{package.name}: {file}")


if __name__ == "__main__":
    unittest.main()
