"""The archives for Windows, unpacked and used under Wine."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

import pefile

from packages import ROOT, TIME, VERSION, WINDOWS, ZIPS, Converting, run, unpack, work

SCRIPTS = ROOT / "scripts"
WINE = {64: [SCRIPTS / "wine-run"], 32: [SCRIPTS / "x86-run", SCRIPTS / "wine-run"]}
TARGETS = {64: "x86_64-pc-windows-msvc", 32: "i686-pc-windows-msvc"}
TOOLCHAINS = {64: "windows-x64", 32: "windows-x86-wine"}
# What a project sees that Microsoft's compiler builds; no compiler of this machine passes for one.
MICROSOFT_PROJECT = """
cmake_minimum_required(VERSION 3.25)
project(host LANGUAGES NONE)
set(MSVC TRUE)
find_package(satwecvt REQUIRED COMPONENTS dll)
get_target_property(library satwecvt::dll IMPORTED_IMPLIB_RELEASE)
get_filename_component(library "${library}" REALPATH)
message(STATUS "links ${library}.")
"""


class Archive:
    """The tests of both widths."""

    BITS = None

    def setUp(self):
        self.folder = unpack(ZIPS[self.BITS])
        self.place = pathlib.Path(tempfile.mkdtemp(dir=work()))

    def link_host(self):
        """A host for Microsoft's linker, beside the library."""
        run("clang", f"--target={TARGETS[self.BITS]}", "-ffreestanding", "-Wall", "-Wextra", "-Werror", "-O1",
            "-I", self.folder / "include", "-c", ROOT / "tests/release/host.c", "-o", self.place / "host.obj")
        run("lld-link", "/nodefaultlib", "/entry:start", "/subsystem:console", "/safeseh:no",
            f"/out:{self.place / 'host.exe'}", self.place / "host.obj", self.folder / "lib/satwecvt.lib")
        shutil.copy(self.folder / "bin/satwecvt.dll", self.place)
        return self.place / "host.exe"

    def test_the_files_are_what_windows_and_a_host_expect(self):
        run("/usr/bin/python3", "-B", ROOT / "tests/exports/image_test.py", env={
            **os.environ, "SATWECVT_DLL": str(self.folder / "bin/satwecvt.dll"), "SATWECVT_VERSION": VERSION,
            "SATWECVT_EXE": str(self.folder / "bin/satwecvt.exe"), "SATWECVT_BITS": str(self.BITS)})

    def test_the_files_tell_the_time_of_the_commit(self):
        for name in ("satwecvt.dll", "satwecvt.exe"):
            with pefile.PE(self.folder / "bin" / name) as image:
                self.assertEqual(TIME, image.FILE_HEADER.TimeDateStamp)

    def test_microsofts_linker_finds_both_functions(self):
        with pefile.PE(self.link_host()) as image:
            imports = {library.dll.decode(): {function.name.decode() for function in library.imports}
                       for library in image.DIRECTORY_ENTRY_IMPORT}
        self.assertEqual({"satwecvt.dll": {"ConvertFile", "ConvertFile2"}}, imports)

    def test_mingws_linker_offers_both_functions(self):
        run("cmake", f"-DOBJDUMP={'x86_64' if self.BITS == 64 else 'i686'}-w64-mingw32-objdump", f"-DBITS={self.BITS}",
            f"-DLIBRARY={self.folder / 'lib/libsatwecvt.dll.a'}", "-P", ROOT / "tests/exports/CheckImportLibrary.cmake")

    def test_the_package_serves_a_project_of_mingw(self):
        run("ctest", "--build-and-test", ROOT / "tests/package/dll", self.place / "build", "--build-generator", "Ninja",
            "--build-options", f"-DVERSION={VERSION}", f"-DCMAKE_PREFIX_PATH={self.folder}",
            f"-DCMAKE_TOOLCHAIN_FILE={ROOT / 'cmake/toolchains' / TOOLCHAINS[self.BITS]}.cmake",
            f"-DCMAKE_FIND_ROOT_PATH={self.folder}", "--test-command", "ctest", "--output-on-failure",
            "--no-tests=error")

    def test_the_package_leads_a_project_of_microsofts_to_its_own_import_library(self):
        (self.place / "CMakeLists.txt").write_text(MICROSOFT_PROJECT)
        said = run("cmake", f"-DCMAKE_PREFIX_PATH={self.folder}", "-S", self.place, "-B", self.place / "build")
        self.assertIn(f"links {self.folder.resolve() / 'lib/satwecvt.lib'}.", said)

    def test_the_quick_start_is_a_text_of_windows_and_names_what_is_there(self):
        content = (self.folder / "QUICK-START.txt").read_bytes()
        self.assertEqual(content.count(b"\n"), content.count(b"\r\n"))
        text = content.decode("ascii")
        self.assertIn(f"satwecvt {VERSION} for Windows, {WINDOWS[self.BITS][-3:]}\r\n", text)
        self.assertIn(f"{WINDOWS[self.BITS]}.zip SHA256\r\n", text)
        named = set(re.findall(r"\b(?:bin|docs|examples|include|lib|samples)(?:\\[\w.-]*\w)+", text))
        named |= set(re.findall(r"(?<![\\\w])(?:[\w-]+\.(?:md|html)|[A-Z]+\.txt)\b", text))
        self.assertGreater(len(named), 12)
        places = {name: name.replace("\\", "/") for name in named}
        self.assertEqual([], [name for name, place in places.items() if not any(
            (self.folder / path).exists() for path in (place, f"{place}.exe"))])

    def test_the_program_converts(self):
        self.expect_conversion(*WINE[self.BITS], self.folder / "bin/satwecvt.exe")

    def test_windows_starts_a_host_of_microsofts_linker(self):
        ended = subprocess.run([*WINE[self.BITS], self.link_host()], cwd=self.place, check=False)
        self.assertEqual(7, ended.returncode)


class For64Bits(Archive, Converting):
    BITS = 64


class For32Bits(Archive, Converting):
    BITS = 32


if __name__ == "__main__":
    unittest.main()
