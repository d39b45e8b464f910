"""The page's own program: which folder of page/src may lean on which, and what none of it may use.

Environment: SATWECVT_ROOT is the project (without it, the one that this file belongs to).
"""

import os
import pathlib
import re
import unittest

ROOT = pathlib.Path(os.environ.get("SATWECVT_ROOT", pathlib.Path(__file__).parents[2]))
SOURCES = ROOT / "page" / "src"

# What the files of a folder may import: folders of page/src, and packages.
MAY_IMPORT = {
    "data": {"data"},
    "model": {"model", "data"},
    "stage": {"stage", "model", "three"},
    "ui": {"ui", "stage", "model", "data"},
    "convert": {"convert", "data", "satwecvt-module"},
    "start": {"start", "convert", "ui", "model", "data"},
}
WITHOUT_BROWSER = {"data", "model", "convert"}  # so that node can test them

IMPORT = re.compile(r'^(?:import\s+|(?:import|export)\b[^;"=()]*?\bfrom\s+)"([^"]+)"', re.MULTILINE)
BROWSER = re.compile(r"\b(?:document|window|navigator|HTML\w*Element|localStorage)\b")
FORBIDDEN = re.compile(r"\b(?:innerHTML|outerHTML|insertAdjacentHTML|document\.write|eval|Function\(|fetch\(|"
                       r"XMLHttpRequest|WebSocket|sendBeacon|EventSource|import\()")


def without_comments(text):
    return re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.DOTALL)


def imports_of(folder, text):
    """The folders and packages that a file of a folder imports."""
    for name in IMPORT.findall(text):
        if name.startswith("../"):
            yield name.split("/")[1]
        else:
            yield folder if name.startswith("./") else name.split("/")[0]


def faults_of(folder, text):
    text = without_comments(text)
    faults = [f"{folder} may not import {other}" for other in imports_of(folder, text)
              if other not in MAY_IMPORT[folder]]
    if folder in WITHOUT_BROWSER and (word := BROWSER.search(text)):
        faults.append(f"{folder} knows no browser: {word[0]}")
    faults += [f"not in a page: {word}" for word in FORBIDDEN.findall(text)]
    return faults


class Page(unittest.TestCase):
    def test_every_file_keeps_to_its_folder(self):
        files = sorted(SOURCES.rglob("*.ts"))
        self.assertGreater(len(files), 40)
        faults = [f"{path.name}: {fault}" for path in files
                  for fault in faults_of(path.relative_to(SOURCES).parts[0], path.read_text(encoding="utf-8"))]
        self.assertEqual([], faults)

    def test_every_finding_has_a_title(self):
        codes = re.findall(r'\{"([a-z0-9-]+)", EFinding::\w+',
                           (ROOT / "src" / "finding" / "FindingCodes.cpp").read_text(encoding="utf-8"))
        self.assertGreater(len(codes), 40)
        titles = (SOURCES / "ui" / "FindingTitles.ts").read_text(encoding="utf-8")
        self.assertEqual([], [code for code in codes if not re.search(rf'^ *"?{code}"?: ', titles, re.MULTILINE)])

    def test_the_lock_file_names_no_host(self):
        self.assertNotIn("://", (ROOT / "page" / "package-lock.json").read_text(encoding="utf-8"))


class Rules(unittest.TestCase):
    """Every rule can fail, and lets pass what it is not about."""

    BAD = [
        ("data", 'import { a } from "../model/A";'),
        ("model", 'import { Mesh } from "three";'),
        ("model", 'import {\n    a,\n    b,\n} from "../stage/A";'),
        ("model", "const width = window.innerWidth;"),
        ("stage", 'import { a } from "../ui/A";'),
        ("stage", 'import "../data/A";'),
        ("ui", 'import { Mesh } from "three";'),
        ("ui", 'export { a } from "three/examples/A";'),
        ("ui", "cell.innerHTML = text;"),
        ("ui", 'await fetch("data.bin");'),
        ("ui", 'const later = await import("./A");'),
        ("ui", 'import { a } from "../start/A";'),
        ("ui", 'import { a } from "../convert/A";'),
        ("convert", 'import { a } from "../ui/A";'),
        ("convert", 'const page = document.body;'),
        ("start", 'import makeModule from "satwecvt-module";'),
        ("start", 'import { a } from "../stage/A";'),
    ]
    GOOD = [
        ("model", 'import type { Columns } from "../data/Columns";\nimport { a } from "./A";'),
        ("stage", 'import { Mesh } from "three";\nimport { a } from "../model/A";\nconst canvas = document;'),
        ("ui", 'import { a } from "../stage/A";\ncell.textContent = text;'),
        ("model", "// window\n/* document */"),
        ("convert", 'import makeModule from "satwecvt-module";\nimport { a } from "../data/A";'),
        ("start", 'import { a } from "../convert/A";\nconst bar = document.body;'),
    ]

    def test_what_is_against_the_rules_is_found(self):
        for folder, text in self.BAD:
            with self.subTest(folder=folder, text=text):
                self.assertEqual(1, len(faults_of(folder, text)), faults_of(folder, text))

    def test_what_is_within_the_rules_passes(self):
        for folder, text in self.GOOD:
            with self.subTest(folder=folder, text=text):
                self.assertEqual([], faults_of(folder, text))


if __name__ == "__main__":
    unittest.main()
