"""The rooms of the house: which folder of src may lean on which, held against every #include and every CMakeLists.txt.

The table is src/rooms.txt, which the build reads as well. Environment: SATWECVT_ROOT is the project (without it, the one
that this file belongs to).
"""

import os
import pathlib
import re
import unittest

ROOT = pathlib.Path(os.environ.get("SATWECVT_ROOT", pathlib.Path(__file__).parents[2]))


class Room:
    """A line of the table: the part it belongs to, the rooms that it may include, its public headers."""

    def __init__(self, line):
        self.name, self.part, includes, headers = (field.strip() for field in line.split("|"))
        self.may_include = set(includes.split())
        self.headers = set(headers.split())


def rooms_of(table):
    lines = [line for line in table.splitlines() if line and not line.startswith("#")]
    return {room.name: room for room in map(Room, lines)}


ROOMS = rooms_of((ROOT / "src" / "rooms.txt").read_text(encoding="utf-8"))
PUBLIC = "satwecvt/"  # the folder of the public headers, below include

WINDOWS_HEADERS = {"windows.h", "windowsx.h", "commctrl.h", "commdlg.h", "shellapi.h"}
TERMINAL_HEADERS = {"cstdio", "stdio.h", "iostream", "ostream", "istream", "iosfwd", "fstream", "print", "syncstream"}

# Rooms of the library that know the user and the files through their seams alone, so that a host and a test can be both.
SEAMS = {"file", "output", "ui/console"}
PRINTERS = {"doubles"}  # into memory, by snprintf
SILENT_ROOMS = {name for name, room in ROOMS.items() if room.part in {"library", "windows"}} - SEAMS - PRINTERS

# Libraries of others are for program and page: whoever builds the library needs the standard library only. But some
# compilers have one that reads no doubles.
LIBRARIES = {"CLI": {"commands"}, "nlohmann": {"cli"}, "fast_float": {"doubles"}}

PARTS_BELOW = {
    "library": set(),
    "windows": {"library"},
    "building": {"library"},
    "program": {"library", "building"},
    "web": {"library", "building"},
}
FLAG_TARGETS = {"arithmetic", "warnings", "windows_image"}  # interface targets that carry compiler flags

# Windows' headers define macros of these names, and a header of ours may stand behind one of them.
BARE_LIMIT = re.compile(r"::(min|max)\(")

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"\n]*)"|<([^>\n]*)>)', re.MULTILINE)


def room_of(path):
    """The room of a file, named as an #include names it; None when the table does not know it."""
    if path.startswith(PUBLIC):
        return next((room.name for room in ROOMS.values() if path.removeprefix(PUBLIC) in room.headers), None)
    folder = path.rpartition("/")[0]
    return folder if folder in ROOMS else None


def is_test(path):
    return re.search(r"_test\.(h|cpp)$", path) is not None


def is_for_windows(path):
    """Where the system's own headers may stand."""
    room = room_of(path)
    return ROOMS[room].part == "windows" or room in SEAMS and path.endswith("_win32.cpp")


def own_header_faults(path, header):
    """A header of this house, named in quotes or not."""
    room, other = room_of(path), room_of(header)
    if other is None:
        return [f'{path}: "{header}" is not named by its room']
    faults = []
    if other not in {room} | ROOMS[room].may_include:
        faults.append(f'{path}: "{header}": {room} may not include {other}')
    if is_test(header) and not is_test(path):
        faults.append(f'{path}: "{header}" is for tests')
    if path.startswith(PUBLIC) and not header.startswith(PUBLIC):
        faults.append(f'{path}: "{header}" is not installed')
    return faults


def foreign_header_faults(path, header):
    room = room_of(path)
    faults = []
    if header.lower() in WINDOWS_HEADERS and not is_for_windows(path):
        faults.append(f"{path}: <{header}>: only the files for Windows know Windows")
    if header in TERMINAL_HEADERS and room in SILENT_ROOMS and not is_test(path):
        faults.append(f"{path}: <{header}>: {room} knows its user and its files through their seams alone")
    library = header.partition("/")[0]
    if room not in LIBRARIES.get(library, {room}):
        faults.append(f"{path}: <{header}>: {library} is not for {room}")
    return faults


def source_faults(path, text):
    """What is wrong with the includes of a file, named as an #include names it."""
    if room_of(path) is None:
        return [f"{path}: lies in no room that the table knows"]
    faults = []
    for quoted, angled in INCLUDE.findall(text):
        if quoted or room_of(angled) is not None:
            faults += own_header_faults(path, quoted or angled)
        else:
            faults += foreign_header_faults(path, angled)
    if path.endswith(".h") and not is_test(path) and BARE_LIMIT.search(text):
        faults.append(f"{path}: min and max stand in parentheses")
    return faults


def links_of(text):
    """The rooms, and our other targets, that a CMakeLists.txt links by name, without their prefix."""
    links = set()
    for arguments in re.findall(r"\btarget_link_libraries\s*\(([^)]*)\)", text):
        links.update(word.removeprefix("satwecvt_") for word in arguments.split()[1:] if word.startswith("satwecvt"))
    return links - FLAG_TARGETS


def link_faults(path, text):
    """What is wrong with a room's CMakeLists.txt, whose path is given from src on: the table says what it links."""
    room = room_of(path)
    if room is None:
        return [f"{path}: lies in no room that the table knows"]
    text = re.sub(r"#.*", "", text)
    allowed = {room.replace("/", "_")}  # a program beside the room's library
    if any(room in rooms for rooms in LIBRARIES.values()):
        allowed.add("headers")
    faults = [f"{path}: {room} may not link {link}" for link in sorted(links_of(text) - allowed)]
    if not re.search(rf"\b(add_room\s*\(\s*{room}|link_rooms\s*\(\s*\w+\s+{room})[\s)]", text):
        faults.append(f"{path}: {room} is not linked by the table")
    return faults


def arithmetic_faults(path, text):
    """Every target takes the flags of the arithmetic: without them a processor that has a fused multiply-add rounds
    once where the source rounds twice, in the functions of our headers, too."""
    links = re.findall(r"\btarget_link_libraries\s*\(([^)]*)\)", re.sub(r"#.*", "", text))
    ours = [words for words in map(str.split, links) if "satwecvt_warnings" in words]
    return [f"{path}: {words[0]} does not link satwecvt_arithmetic" for words in ours
            if "satwecvt_arithmetic" not in words]


def files_of_the_house(*patterns):
    """Path as an #include names it, and text, of every file."""
    folders = (ROOT / "src", ROOT / "include")
    paths = sorted((path, folder) for folder in folders for pattern in patterns for path in folder.rglob(pattern))
    return [(path.relative_to(folder).as_posix(), path.read_text(encoding="utf-8")) for path, folder in paths]


class House(unittest.TestCase):
    def test_every_include_is_allowed(self):
        files = files_of_the_house("*.h", "*.cpp")
        self.assertGreater(len(files), 100)
        self.assertEqual([], [fault for path, text in files for fault in source_faults(path, text)])

    def test_every_link_is_allowed(self):
        files = [(path, text) for path, text in files_of_the_house("CMakeLists.txt") if path != "CMakeLists.txt"]
        self.assertEqual(len(ROOMS), len(files))
        self.assertEqual([], [fault for path, text in files for fault in link_faults(path, text)])

    def test_whoever_takes_the_warnings_takes_the_arithmetic(self):
        folders = [ROOT / name for name in ("bench", "cmake", "fuzz", "samples", "src", "tests")]
        paths = [path for folder in folders for name in ("CMakeLists.txt", "*.cmake") for path in folder.rglob(name)]
        texts = [(path.relative_to(ROOT).as_posix(), path.read_text(encoding="utf-8")) for path in sorted(paths)]
        self.assertGreater(sum("satwecvt_arithmetic" in text for _, text in texts), 5)
        self.assertEqual([], [fault for path, text in texts for fault in arithmetic_faults(path, text)])

    def test_every_public_header_is_there(self):
        named = [header for room in ROOMS.values() for header in room.headers]
        there = [path.name for path in (ROOT / "include" / "satwecvt").iterdir()]
        self.assertEqual(sorted(there), sorted(named))

    def test_the_library_leans_on_no_room_of_the_program(self):
        for name, room in ROOMS.items():
            with self.subTest(name):
                parts = {ROOMS[other].part for other in room.may_include}
                self.assertLessEqual(parts, {room.part} | PARTS_BELOW[room.part])

    def test_every_room_uses_what_it_may_include(self):
        """So that the table allows no more than it has to."""
        used = {name: set() for name in ROOMS}
        for path, text in files_of_the_house("*.h", "*.cpp"):
            used[room_of(path)].update(room_of(quoted or angled) for quoted, angled in INCLUDE.findall(text))
        for name, room in ROOMS.items():
            with self.subTest(name):
                self.assertEqual(set(), room.may_include - used[name])

    def test_the_table_has_no_circle(self):
        done = set()
        while done != set(ROOMS):
            ready = {name for name, room in ROOMS.items() if room.may_include <= done} - done
            self.assertTrue(ready, f"a circle among {set(ROOMS) - done}")
            done |= ready


class Rules(unittest.TestCase):
    """Every rule can fail, and lets pass what it is not about."""

    BAD_SOURCES = [
        ("geometry/A.cpp", '#include "model/Int32.h"', "geometry may not include model"),
        ("model/A.h", '#include "geometry/MathFunc.h"', "model may not include geometry"),
        ("model/A.h", '#include "finding/A.h"', "model may not include finding"),
        ("lines/A.h", '#include "model/Int32.h"', "lines may not include model"),
        ("text/A.h", '#include "lines/A.h"', "text may not include lines"),
        ("file/A.cpp", '#include "satwecvt/UserInterface.h"', "file may not include ui"),
        ("satwecvt/UserInterface.h", '#include "satwecvt/FileSystem.h"', "ui may not include file"),
        ("satwecvt/ConvertSatwe.h", '#include "model/SatweModel.h"', "is not installed"),
        ("ui/console/A.cpp", '#include "satwecvt/ConvertSatwe.h"', "ui/console may not include driver"),
        ("ui/win32/A.cpp", '#include "ui/console/Interrupt.h"', "ui/win32 may not include ui/console"),
        ("reader/A.cpp", '#include "writer/A.h"', "reader may not include writer"),
        ("reader/A.cpp", '#include "text/OutputFile.h"', "reader may not include text"),
        ("reader/A.cpp", '#include "ui/console/Interrupt.h"', "reader may not include ui/console"),
        ("writer/A.cpp", '#include "lines/InputFile.h"', "writer may not include lines"),
        ("driver/A.cpp", '#include "cli/Outcome.h"', "driver may not include cli"),
        ("driver/A.cpp", '#include "ui/win32/CPrgsDlg.h"', "driver may not include ui/win32"),
        ("driver/A.cpp", '#include "driver/win32/HostCall.h"', "driver may not include driver/win32"),
        ("reader/A_test.cpp", '#include "text/OutputFile.h"', "reader may not include text"),
        ("model/A.cpp", "#include <geometry/MathFunc.h>", "model may not include geometry"),
        ("model/A.cpp", 'int x;\n  #  include   "reader/B.h" // why', "model may not include reader"),
        ("model/A.cpp", '#include "B.h"', "not named by its room"),
        ("model/A.cpp", '#include "../reader/B.h"', "not named by its room"),
        ("model/A.cpp", '#include "elsewhere/B.h"', "not named by its room"),
        ("model/A.cpp", '#include "satwecvt/Unknown.h"', "not named by its room"),
        ("elsewhere/A.cpp", "", "no room"),
        ("A.cpp", "", "no room"),
        ("satwecvt/Unknown.h", "", "no room"),
        ("lines/A.cpp", '#include "file/MemoryFiles_test.h"', "is for tests"),
        ("reader/A.cpp", "#include <windows.h>", "know Windows"),
        ("ui/console/A.cpp", "#include <Windows.h>", "know Windows"),
        ("file/FileSystem_posix.cpp", "#include <windows.h>", "know Windows"),
        ("satwecvt/FileSystem.h", "#include <windows.h>", "know Windows"),
        ("driver/ConvertSatwe.cpp", "#include <windows.h>", "know Windows"),
        ("cli/main.cpp", "#include <commdlg.h>", "know Windows"),
        ("reader/A.cpp", "#include <iostream>", "seams"),
        ("lines/A.h", "#include <cstdio>", "seams"),
        ("text/A.cpp", "#include <stdio.h>", "seams"),
        ("writer/A.h", "#include <fstream>", "seams"),
        ("satwecvt/ConversionReport.h", "#include <iosfwd>", "seams"),
        ("driver/A.cpp", "#include <iostream>", "seams"),
        ("driver/A.cpp", "#include <nlohmann/json.hpp>", "not for driver"),
        ("writer/A.cpp", "#include <CLI/CLI.hpp>", "not for writer"),
        ("model/A.h", "return std::max(a, b);", "in parentheses"),
        ("model/A.h", "return std::numeric_limits<int>::min();", "in parentheses"),
    ]

    GOOD_SOURCES = [
        ("model/A.cpp", '#include "model/B.h"\n#include <vector>'),
        ("lines/A.cpp", '#include "satwecvt/FileSystem.h"\n#include "lines/B.h"'),
        ("reader/A.cpp", '#include "model/B.h"\n#include "lines/B.h"\n#include "satwecvt/UserInterface.h"'),
        ("writer/A.h", '#include "geometry/B.h"\n#include "model/B.h"\n#include "text/B.h"\n#include "finding/B.h"'),
        ("driver/A.cpp", '#include "reader/B.h"\n#include "writer/B.h"\n#include "satwecvt/ConvertSatwe.h"'),
        ("satwecvt/ConvertSatwe.h", '#include "satwecvt/ConversionReport.h"\n#include <memory>'),
        ("cli/A.cpp", '#include "satwecvt/ConvertSatwe.h"\n#include <iostream>\n#include <nlohmann/json.hpp>'),
        ("commands/A.cpp", "#include <CLI/CLI.hpp>"),
        ("ui/console/A.cpp", '#include "satwecvt/UserInterface.h"\n#include <cstdio>'),
        ("file/FileSystem_win32.cpp", "#include <windows.h>"),
        ("ui/win32/A.h", '#include "satwecvt/UserInterface.h"\n#include <windows.h>'),
        ("driver/win32/A.cpp", '#include "ui/win32/B.h"\n#include "satwecvt/satwecvt.h"\n#include <windows.h>'),
        ("lines/A_test.cpp", '#include "file/MemoryFiles_test.h"\n#include <iostream>\n#include <gtest/gtest.h>'),
        ("model/A.cpp", '// #include "reader/B.h"'),
        ("model/A.h", "return (std::max)(a, (std::numeric_limits<int>::min)());"),
        ("model/A.cpp", "return std::max(a, b);"),
    ]

    BAD_LINKS = [
        ("cli/CMakeLists.txt", "link_rooms(satwecvt cli)\n"
                               "target_link_libraries(satwecvt PRIVATE satwecvt::satwecvt)", "link satwecvt::satwecvt"),
        ("reader/CMakeLists.txt", "add_room(reader SOURCES A.cpp)\n"
                                  "target_link_libraries(satwecvt_reader PRIVATE satwecvt_writer)", "link writer"),
        ("ui/CMakeLists.txt", "add_room(ui)\n"
                              "target_link_libraries(satwecvt_ui INTERFACE satwecvt_model)", "link model"),
        ("driver/CMakeLists.txt", "add_room(driver SOURCES A.cpp)\n"
                                  "target_link_libraries(satwecvt_driver PRIVATE satwecvt_headers)", "link headers"),
        ("cli/CMakeLists.txt", "link_rooms(satwecvt cli)\n"
                               "target_link_libraries(satwecvt PRIVATE satwecvt_reader)", "link reader"),
        ("model/CMakeLists.txt", "add_library(satwecvt_model STATIC A.cpp)", "not linked by the table"),
        ("model/CMakeLists.txt", "# add_room(model)", "not linked by the table"),
        ("ui/console/CMakeLists.txt", "add_room(ui SOURCES A.cpp)", "not linked by the table"),
        ("elsewhere/CMakeLists.txt", "", "no room"),
    ]

    GOOD_LINKS = [
        ("manual/CMakeLists.txt", "add_room(manual SOURCES A.cpp)\n"
                                  "target_link_libraries(write_manual PRIVATE satwecvt_manual satwecvt_warnings)"),
        ("reader/CMakeLists.txt", "add_room(reader\n    SOURCES A.cpp\n    TESTS A_test.cpp)"),
        ("ui/CMakeLists.txt", "add_room(ui) # nothing but headers"),
        ("ui/console/CMakeLists.txt", "add_room(ui/console SOURCES A.cpp)"),
        ("cli/CMakeLists.txt", "link_rooms(satwecvt cli)\n"
                               "target_link_libraries(satwecvt PRIVATE satwecvt_headers satwecvt_warnings)"),
    ]

    def expect_fault(self, faults, why):
        self.assertEqual(1, len(faults), faults)
        self.assertIn(why, faults[0])

    def test_includes_against_the_rules_are_found(self):
        for path, text, why in self.BAD_SOURCES:
            with self.subTest(path=path, text=text):
                self.expect_fault(source_faults(path, text), why)

    def test_includes_within_the_rules_pass(self):
        for path, text in self.GOOD_SOURCES:
            with self.subTest(path=path, text=text):
                self.assertEqual([], source_faults(path, text))

    def test_links_against_the_rules_are_found(self):
        for path, text, why in self.BAD_LINKS:
            with self.subTest(path=path, text=text):
                self.expect_fault(link_faults(path, text), why)

    def test_targets_with_an_arithmetic_of_their_own_are_found(self):
        for text in ("target_link_libraries(a PRIVATE satwecvt_warnings)",
                     "target_link_libraries(a PRIVATE\n    b\n    satwecvt_warnings c) # satwecvt_arithmetic"):
            with self.subTest(text):
                self.expect_fault(arithmetic_faults("samples/CMakeLists.txt", text), "a does not link")
        for text in ("target_link_libraries(a PRIVATE satwecvt_arithmetic satwecvt_warnings)",
                     "target_link_libraries(a PRIVATE b)", "# target_link_libraries(a PRIVATE satwecvt_warnings)"):
            with self.subTest(text):
                self.assertEqual([], arithmetic_faults("samples/CMakeLists.txt", text))

    def test_links_within_the_rules_pass(self):
        for path, text in self.GOOD_LINKS:
            with self.subTest(path=path, text=text):
                self.assertEqual([], link_faults(path, text))


if __name__ == "__main__":
    unittest.main()
