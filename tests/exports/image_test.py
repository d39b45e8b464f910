"""What Windows and a host meet in satwecvt.dll and satwecvt.exe, read from the files: nothing is run.

Environment: SATWECVT_DLL and SATWECVT_EXE are the files (each test class reads one of them); SATWECVT_BITS is their
width, 32 or 64; SATWECVT_VERSION is the version of the project.
"""

import os
import pathlib
import re
import sys
import unittest
import xml.etree.ElementTree

import pefile

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from code_paths import bytes_taken_off  # noqa: E402
from dialog_template import read_dialog  # noqa: E402
from dialogs import DIALOGS  # noqa: E402

BITS = int(os.environ["SATWECVT_BITS"])
VERSION = os.environ["SATWECVT_VERSION"]

# These are parts of every Windows that we support, msvcrt.dll included.
WINDOWS_LIBRARIES = {"comctl32.dll", "comdlg32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll", "user32.dll"}

# What the library has Windows' user interface do.
ASKED_FOR = {
    "comctl32.dll": {"InitCommonControlsEx"},
    "comdlg32.dll": {"GetOpenFileNameA"},
    "user32.dll": {
        "CallWindowProcA", "CreateDialogParamA", "DefWindowProcA", "DestroyWindow", "DialogBoxParamA",
        "DispatchMessageW", "EndDialog", "GetActiveWindow", "GetAsyncKeyState", "GetDlgItem", "GetWindowLongA",
        "GetWindowTextA", "GetWindowTextLengthA", "InvalidateRect", "IsDialogMessageW", "IsWindow", "LoadCursorA",
        "MessageBoxA", "PeekMessageW", "PostQuitMessage", "SendMessageA", "SetCursor", "SetDlgItemTextA",
        "SetWindowLongA", "ShowWindow", "TranslateMessage", "UpdateWindow"},
}

# Most of what is imported from these is the C++ run-time library's, and another with every compiler.
OF_THE_RUN_TIME_TOO = {"kernel32.dll", "msvcrt.dll"}

MACHINES = {32: "IMAGE_FILE_MACHINE_I386", 64: "IMAGE_FILE_MACHINE_AMD64"}
HARDENING = {32: {"DYNAMIC_BASE", "NX_COMPAT"}, 64: {"DYNAMIC_BASE", "NX_COMPAT", "HIGH_ENTROPY_VA"}}

VFT_APP = 1
VFT_DLL = 2
ENGLISH_US = 0x0409
ENGLISH_US_IN_UNICODE = b"040904B0"  # the name of a table of the version's texts

ASSEMBLY = "{urn:schemas-microsoft-com:asm.v1}"
WINDOWS_SETTINGS = "{http://schemas.microsoft.com/SMI/2019/WindowsSettings}"


class Image:
    """The tests of every file of ours. A test class of this kind names its file and what is its own about it."""

    FILE = None  # the variable of the environment
    NAME = None
    EXPORTS = []
    LIBRARIES = WINDOWS_LIBRARIES
    FILE_TYPE = None  # as its version tells it
    MANIFEST_NUMBER = None  # under which Windows, or CHostCall, looks for the manifest

    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.image = pefile.PE(os.environ[cls.FILE])
        cls.addClassCleanup(cls.image.close)

    def table(self, name):
        """A table of the image, by pefile's name for it; an empty one where there is none."""
        return getattr(self.image, f"DIRECTORY_ENTRY_{name}", [])

    def exported(self):
        table = self.table("EXPORT")
        return table.symbols if table else []

    def exported_names(self):
        """In the order of the alphabet; for an export without a name, its number."""
        return sorted(symbol.name.decode() if symbol.name else f"@{symbol.ordinal}" for symbol in self.exported())

    def resources(self, kind):
        """All resources of a kind: (number, language, content)."""
        return [(of_number.id, of_language.id, self.content(of_language.data.struct))
                for of_kind in self.table("RESOURCE").entries if of_kind.id == pefile.RESOURCE_TYPE[kind]
                for of_number in of_kind.directory.entries
                for of_language in of_number.directory.entries]

    def content(self, place):
        return self.image.get_data(place.OffsetToData, place.Size)

    def manifest(self):
        (number, _, content), = self.resources("RT_MANIFEST")
        self.assertEqual(self.MANIFEST_NUMBER, number)
        return xml.etree.ElementTree.fromstring(content)

    def test_the_width_is_that_of_the_build(self):
        self.assertEqual(MACHINES[BITS], pefile.MACHINE_TYPE[self.image.FILE_HEADER.Machine])

    def test_these_names_are_exported_and_no_others(self):
        self.assertEqual(self.EXPORTS, self.exported_names())

    def test_only_libraries_of_windows_are_imported_from(self):
        libraries = {library.dll.decode().lower() for library in self.table("IMPORT")}
        self.assertIn("kernel32.dll", libraries, "cannot be missing, so the imports were not read")
        self.assertEqual(set(), libraries - self.LIBRARIES)
        self.assertEqual([], self.table("DELAY_IMPORT"))

    def test_windows_may_harden_it(self):
        header = self.image.OPTIONAL_HEADER
        present = {name for name in HARDENING[BITS] if getattr(header, f"IMAGE_DLLCHARACTERISTICS_{name}")}
        self.assertEqual(HARDENING[BITS], present)

    def test_it_can_be_loaded_at_any_address(self):
        self.assertFalse(self.image.FILE_HEADER.IMAGE_FILE_RELOCS_STRIPPED)
        self.assertTrue(any(page.entries for page in self.table("BASERELOC")))

    def test_the_version_is_told_in_numbers(self):
        told, = self.image.VS_FIXEDFILEINFO
        major, minor, patch = map(int, VERSION.split("."))
        expected = (major << 16 | minor, patch << 16)
        self.assertEqual(expected, (told.FileVersionMS, told.FileVersionLS))
        self.assertEqual(expected, (told.ProductVersionMS, told.ProductVersionLS))
        self.assertEqual(self.FILE_TYPE, told.FileType)

    def test_the_version_is_told_in_texts(self):
        information, = self.image.FileInfo
        tables = [table for block in information for table in getattr(block, "StringTable", [])]
        self.assertEqual([ENGLISH_US_IN_UNICODE], [table.LangID for table in tables])
        texts = {key.decode(): text.decode() for key, text in tables[0].entries.items()}
        expected = {"FileVersion": VERSION, "ProductVersion": VERSION, "OriginalFilename": self.NAME}
        self.assertEqual(expected, {key: texts.get(key) for key in expected})
        self.assertRegex(texts["Comments"],
                         r"^Built with \w+ [0-9.]+ for Windows (x86_64|i686), MinGW-w64 with msvcrt[.]dll$")


class LibraryImage(Image, unittest.TestCase):
    FILE = "SATWECVT_DLL"
    NAME = "satwecvt.dll"
    EXPORTS = ["ConvertFile", "ConvertFile2"]
    FILE_TYPE = VFT_DLL
    MANIFEST_NUMBER = 2

    def test_it_is_a_library(self):
        self.assertTrue(self.image.is_dll())
        self.assertEqual(self.NAME, self.table("EXPORT").name.decode())

    def test_nothing_else_is_counted_among_the_exports(self):
        header = self.table("EXPORT").struct
        self.assertEqual((2, 2), (header.NumberOfFunctions, header.NumberOfNames))

    def test_every_export_is_code_of_its_own(self):
        for symbol in self.exported():
            with self.subTest(symbol.name):
                self.assertIsNone(symbol.forwarder)
                self.assertTrue(self.image.get_section_by_rva(symbol.address).IMAGE_SCN_MEM_EXECUTE)

    def test_every_export_leaves_its_arguments_to_the_caller(self):
        # __cdecl. With 32 bits, a __stdcall function would take them off the caller's stack, which takes them off, too.
        for symbol in self.exported():
            with self.subTest(symbol.name):
                section = self.image.get_section_by_rva(symbol.address)
                taken_off = bytes_taken_off(section.get_data(), symbol.address - section.VirtualAddress, BITS)
                self.assertEqual({0}, set(taken_off.values()))

    def test_windows_does_these_things_for_it_and_no_others(self):
        # Among the others is much that a user or a host would meet: a sound, a timer, another window, a setting of the
        # whole process. Whoever adds one has to show what it does to them, and then adds it here.
        asked = {library.dll.decode().lower(): {function.name.decode() for function in library.imports}
                 for library in self.table("IMPORT")}
        of_windows = {name: {function.replace("LongPtr", "Long") for function in functions}
                      for name, functions in asked.items() if name not in OF_THE_RUN_TIME_TOO}
        self.assertEqual(ASKED_FOR, of_windows)

    def test_the_dialogs_are_these_and_no_others(self):
        self.assertEqual({(number, ENGLISH_US) for number in DIALOGS},
                         {(number, language) for number, language, _ in self.resources("RT_DIALOG")})

    def test_the_dialogs_are_as_written_down(self):
        for number, _, content in self.resources("RT_DIALOG"):
            expected, found = DIALOGS[number], read_dialog(content)
            with self.subTest(number):
                self.assertEqual(expected._replace(controls=len(expected.controls))._asdict(),
                                 found._replace(controls=len(found.controls))._asdict())
            for place, (expected_control, control) in enumerate(zip(expected.controls, found.controls)):
                with self.subTest(number, place=place):
                    self.assertEqual(expected_control._asdict(), control._asdict())

    def test_the_manifest_asks_for_the_controls_of_the_users_other_windows(self):
        needs = self.manifest().findall(f"{ASSEMBLY}dependency/{ASSEMBLY}dependentAssembly/{ASSEMBLY}assemblyIdentity")
        self.assertEqual([("Microsoft.Windows.Common-Controls", "6.0.0.0")],
                         [(need.get("name"), need.get("version")) for need in needs])


class ProgramImage(Image, unittest.TestCase):
    FILE = "SATWECVT_EXE"
    NAME = "satwecvt.exe"
    FILE_TYPE = VFT_APP
    MANIFEST_NUMBER = 1
    LIBRARIES = WINDOWS_LIBRARIES | {"advapi32.dll"}  # has the random numbers for names of temporary files

    def test_it_is_a_program(self):
        self.assertTrue(self.image.is_exe())

    def test_there_is_no_table_of_exports(self):
        self.assertEqual([], self.table("EXPORT"))

    def test_the_manifest_makes_utf_8_the_code_page(self):
        pages = self.manifest().iter(f"{WINDOWS_SETTINGS}activeCodePage")
        self.assertEqual(["UTF-8"], [page.text for page in pages])


if __name__ == "__main__":
    unittest.main()
