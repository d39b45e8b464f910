"""The rooms of the house: which folder of src may lean on which, held against every #include and every CMakeLists.txt.

A table that only a drawing shows drifts from the code; this one fails a test. Environment: SATWECVT_ROOT is the project
(without it, the one that this file belongs to).
"""

import os
import pathlib
import re
import unittest

ROOT = pathlib.Path(os.environ.get("SATWECVT_ROOT", pathlib.Path(__file__).parents[2]))

# What each room may include beside itself. Its tests live in it and may do the same.
ROOMS = {
    "geometry": set(),
    "model": set(),
    "file": set(),
    "ui": set(),
    "ui/console": {"ui"},
    "ui/win32": {"ui"},
    "reader": {"model", "file", "ui"},
    "writer": {"model", "geometry", "file", "ui"},
    "driver": {"geometry", "model", "file", "ui", "reader", "writer"},
    "cli": {"driver", "ui/console", "file", "writer"},  # file and writer: where the outputs lie
}

# The driver is portable but for its files for Windows, which show the library to its host and need the dialogs.
WINDOWS_FILES_OF_DRIVER = {"ui/win32"}

WINDOWS_HEADERS = {"windows.h", "windowsx.h", "commctrl.h", "commdlg.h", "shellapi.h"}
TERMINAL_HEADERS = {"cstdio", "stdio.h", "iostream", "ostream", "istream", "iosfwd", "fstream", "print", "syncstream"}

# Rooms that know the user and the files through their seams alone, so that a host and a test can be both.
SILENT_ROOMS = {"geometry", "model", "reader", "writer", "driver"}

# Libraries of others are for the program: whoever builds the library needs the standard library only.
LIBRARIES = {"CLI": {"cli"}, "nlohmann": {"cli"}}
FLAG_TARGETS = {"arithmetic", "warnings", "windows_image"}  # interface targets that carry compiler flags

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"\n]*)"|<([^>\n]*)>)', re.MULTILINE)


def room_of(path):
    """The room that a file, named from src on, lies in; None when the table does not know its folder."""
    folder = path.rpartition("/")[0]
    return folder if folder in ROOMS else None


def is_test(path):
    return re.search(r"_test\.(h|cpp)$", path) is not None


def is_for_windows(path):
    """Where the system's own headers may stand."""
    room, name = room_of(path), path.rpartition("/")[2]
    if room in {"file", "ui/console"}:
        return name.endswith("_win32.cpp")
    return room == "ui/win32" or room == "driver" and "win32" in name


def may_include(path):
    room = room_of(path)
    windows = WINDOWS_FILES_OF_DRIVER if room == "driver" and is_for_windows(path) else set()
    return {room} | ROOMS[room] | windows


def own_header_faults(path, header):
    """A header of this house, named in quotes or not."""
    if header == "satwecvt/satwecvt.h" and is_for_windows(path) and room_of(path) == "driver":
        return []  # the header for hosts: the exports are checked against it
    room = room_of(header)
    if room is None:
        return [f'{path}: "{header}" is not named by its room']
    faults = []
    if room not in may_include(path):
        faults.append(f'{path}: "{header}": {room_of(path)} may not include {room}')
    if is_test(header) and not is_test(path):
        faults.append(f'{path}: "{header}" is for tests')
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
    """What is wrong with the includes of a file, whose path is given from src on."""
    if room_of(path) is None:
        return [f"{path}: lies in no room that the table knows"]
    faults = []
    for quoted, angled in INCLUDE.findall(text):
        if quoted or room_of(angled) is not None:
            faults += own_header_faults(path, quoted or angled)
        else:
            faults += foreign_header_faults(path, angled)
    return faults


def links_of(text):
    """The rooms, and our other targets, that a CMakeLists.txt links, by target name without its prefix."""
    text = re.sub(r"#.*", "", text)
    links = set()
    for arguments in re.findall(r"\badd_room\s*\(([^)]*)\)", text):
        keyword = ""
        for word in arguments.split():
            if word in ("SOURCES", "LINKS", "TESTS"):
                keyword = word
            elif keyword == "LINKS":
                links.add(word)
    for arguments in re.findall(r"\btarget_link_libraries\s*\(([^)]*)\)", text):
        links.update(word.removeprefix("satwecvt_") for word in arguments.split()[1:] if word.startswith("satwecvt_"))
    return links - FLAG_TARGETS


def allowed_links(room):
    rooms = ROOMS[room] | (WINDOWS_FILES_OF_DRIVER if room == "driver" else set())
    return {other.replace("/", "_") for other in rooms} | ({"headers"} if room == "cli" else set())


def link_faults(path, text):
    """What is wrong with the links of a CMakeLists.txt, whose path is given from src on."""
    room = room_of(path)
    if room is None:
        return [f"{path}: lies in no room that the table knows"]
    own = {room.replace("/", "_")}  # a library or program of the same folder links the room itself
    return [f"{path}: {room} may not link {link}" for link in sorted(links_of(text) - allowed_links(room) - own)]


def files_of_the_house(*patterns):
    """Path from src on, and text, of every file."""
    source = ROOT / "src"
    paths = sorted(path for pattern in patterns for path in source.rglob(pattern))
    return [(path.relative_to(source).as_posix(), path.read_text(encoding="utf-8")) for path in paths]


class House(unittest.TestCase):
    def test_every_include_is_allowed(self):
        files = files_of_the_house("*.h", "*.cpp")
        self.assertGreater(len(files), 100)
        self.assertEqual([], [fault for path, text in files for fault in source_faults(path, text)])

    def test_every_link_is_allowed(self):
        files = [(path, text) for path, text in files_of_the_house("CMakeLists.txt") if path != "CMakeLists.txt"]
        self.assertGreaterEqual(len(files), 9)
        self.assertEqual([], [fault for path, text in files for fault in link_faults(path, text)])

    def test_every_library_links_what_the_table_allows(self):
        """So that the table allows no more than the builder was told of."""
        for path, text in files_of_the_house("CMakeLists.txt"):
            room = room_of(path)
            if room is not None and room != "cli":
                with self.subTest(room):
                    self.assertLessEqual({other.replace("/", "_") for other in ROOMS[room]}, links_of(text))

    def test_the_table_has_no_circle(self):
        done = set()
        while done != set(ROOMS):
            ready = {room for room, others in ROOMS.items() if others <= done} - done
            self.assertTrue(ready, f"a circle among {set(ROOMS) - done}")
            done |= ready


class Rules(unittest.TestCase):
    """Every rule can fail, and lets pass what it is not about."""

    BAD_SOURCES = [
        ("geometry/A.cpp", '#include "model/Int32.h"', "geometry may not include model"),
        ("model/A.h", '#include "geometry/MathFunc.h"', "model may not include geometry"),
        ("file/A.cpp", '#include "ui/UserInterface.h"', "file may not include ui"),
        ("ui/A.h", '#include "ui/console/Interrupt.h"', "ui may not include ui/console"),
        ("ui/console/A.cpp", '#include "driver/ConvertSatwe.h"', "ui/console may not include driver"),
        ("ui/win32/A.cpp", '#include "ui/console/Interrupt.h"', "ui/win32 may not include ui/console"),
        ("reader/A.cpp", '#include "writer/OutputFile.h"', "reader may not include writer"),
        ("reader/A.cpp", '#include "ui/console/Interrupt.h"', "reader may not include ui/console"),
        ("writer/A.cpp", '#include "reader/InputFile.h"', "writer may not include reader"),
        ("driver/A.cpp", '#include "cli/ExitCode.h"', "driver may not include cli"),
        ("driver/A.cpp", '#include "ui/win32/CPrgsDlg.h"', "driver may not include ui/win32"),
        ("cli/A.cpp", '#include "model/SatweModel.h"', "cli may not include model"),
        ("reader/A_test.cpp", '#include "writer/OutputFile.h"', "reader may not include writer"),
        ("model/A.cpp", "#include <geometry/MathFunc.h>", "model may not include geometry"),
        ("model/A.cpp", 'int x;\n  #  include   "reader/B.h" // why', "model may not include reader"),
        ("model/A.cpp", '#include "B.h"', "not named by its room"),
        ("model/A.cpp", '#include "../reader/B.h"', "not named by its room"),
        ("model/A.cpp", '#include "elsewhere/B.h"', "not named by its room"),
        ("elsewhere/A.cpp", "", "no room"),
        ("A.cpp", "", "no room"),
        ("reader/A.cpp", '#include "file/MemoryFiles_test.h"', "is for tests"),
        ("reader/A.cpp", "#include <windows.h>", "know Windows"),
        ("ui/console/A.cpp", "#include <Windows.h>", "know Windows"),
        ("file/FileSystem_posix.cpp", "#include <windows.h>", "know Windows"),
        ("file/FileSystem_win32.h", "#include <windows.h>", "know Windows"),
        ("driver/ConvertSatwe.cpp", "#include <windows.h>", "know Windows"),
        ("cli/main.cpp", "#include <commdlg.h>", "know Windows"),
        ("reader/A.cpp", "#include <iostream>", "seams"),
        ("reader/A.h", "#include <cstdio>", "seams"),
        ("writer/A.cpp", "#include <stdio.h>", "seams"),
        ("writer/A.h", "#include <fstream>", "seams"),
        ("driver/A.cpp", "#include <iostream>", "seams"),
        ("driver/A.cpp", "#include <nlohmann/json.hpp>", "not for driver"),
        ("writer/A.cpp", "#include <CLI/CLI.hpp>", "not for writer"),
    ]

    GOOD_SOURCES = [
        ("model/A.cpp", '#include "model/B.h"\n#include <vector>'),
        ("reader/A.cpp", '#include "model/B.h"\n#include "file/B.h"\n#include "ui/B.h"\n#include "reader/B.h"'),
        ("writer/A.h", '#include "geometry/B.h"\n#include "model/B.h"\n#include "file/B.h"\n#include "ui/B.h"'),
        ("driver/A.cpp", '#include "reader/B.h"\n#include "writer/B.h"\n#include "geometry/B.h"'),
        ("cli/A.cpp", '#include "driver/B.h"\n#include "ui/console/B.h"\n#include <iostream>\n#include <CLI/CLI.hpp>'),
        ("ui/console/A.cpp", '#include "ui/B.h"\n#include <cstdio>'),
        ("file/FileSystem_win32.cpp", "#include <windows.h>"),
        ("ui/win32/A.h", '#include "ui/B.h"\n#include <windows.h>'),
        ("driver/Exports_win32.cpp", '#include "ui/win32/B.h"\n#include <windows.h>'),
        ("reader/A_test.cpp", '#include "file/MemoryFiles_test.h"\n#include <iostream>\n#include <gtest/gtest.h>'),
        ("model/A.cpp", '// #include "reader/B.h"'),
    ]

    BAD_LINKS = [
        ("reader/CMakeLists.txt", "add_room(reader SOURCES A.cpp LINKS model writer TESTS A_test.cpp)", "link writer"),
        ("model/CMakeLists.txt", "add_room(model\n    SOURCES A.cpp\n    LINKS\n        ui)", "link ui"),
        ("model/CMakeLists.txt", "add_room(model SOURCES A.cpp)\nadd_room(model SOURCES B.cpp LINKS ui)", "link ui"),
        ("ui/CMakeLists.txt", "target_link_libraries(satwecvt_ui INTERFACE satwecvt_model)", "link model"),
        ("ui/console/CMakeLists.txt", "add_room(ui_console SOURCES A.cpp LINKS ui ui_win32)", "link ui_win32"),
        ("driver/CMakeLists.txt", "add_room(driver SOURCES A.cpp LINKS ui_console)", "link ui_console"),
        ("driver/CMakeLists.txt", "target_link_libraries(satwecvt_driver PRIVATE satwecvt_headers)", "link headers"),
        ("cli/CMakeLists.txt", "target_link_libraries(satwecvt PRIVATE satwecvt_reader)", "link reader"),
        ("elsewhere/CMakeLists.txt", "", "no room"),
    ]

    GOOD_LINKS = [
        ("reader/CMakeLists.txt", "add_room(reader SOURCES A.cpp LINKS model file ui TESTS writer_test.cpp)"),
        ("model/CMakeLists.txt", "# LINKS ui\nadd_room(model SOURCES A.cpp) # LINKS ui"),
        ("cli/CMakeLists.txt", "target_link_libraries(satwecvt PRIVATE satwecvt_driver satwecvt_ui_console "
                               "satwecvt_headers satwecvt_warnings)"),
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

    def test_links_within_the_rules_pass(self):
        for path, text in self.GOOD_LINKS:
            with self.subTest(path=path, text=text):
                self.assertEqual([], link_faults(path, text))


if __name__ == "__main__":
    unittest.main()
