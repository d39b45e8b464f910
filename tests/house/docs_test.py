"""The pages for people: every link leads somewhere, the changelog knows the version, every code of a finding is
explained and in the report's schema.

Environment: SATWECVT_ROOT is the project (without it, the one that this file belongs to).
"""

import json
import os
import pathlib
import re
import unittest

ROOT = pathlib.Path(os.environ.get("SATWECVT_ROOT", pathlib.Path(__file__).parents[2]))
PAGES = [ROOT / "README.md", ROOT / "CONTRIBUTING.md", ROOT / "CHANGELOG.md", *sorted((ROOT / "docs").glob("*.md"))]

LINK = re.compile(r"\[[^]]*\]\(([^)\s]+)\)")
CODE = re.compile(r'\{"([a-z0-9-]+)", EFinding::\w+, ESeverity::(\w+)\}')


def without_code(text):
    """The text without its blocks of code, in which brackets are no links and # no heading."""
    return re.sub(r"^```.*?^```", "", text, flags=re.MULTILINE | re.DOTALL)


def anchors_of(text):
    """What its headings can be reached by."""
    headings = re.findall(r"^#+ +(.*)$", without_code(text), re.MULTILINE)
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in headings}


def link_faults(page, text):
    """The links of a page that lead nowhere; those into the net are not followed."""
    faults = []
    for link in LINK.findall(without_code(text)):
        path, _, anchor = link.partition("#")
        target = page.parent / path if path else page
        if "://" in link:
            continue
        if not target.exists():
            faults.append(f"{page.name}: {link}: there is no such file")
        elif anchor and anchor not in anchors_of(text if target == page else target.read_text(encoding="utf-8")):
            faults.append(f"{page.name}: {link}: there is no such heading")
    return faults


def codes():
    """The codes with their severities, as the program has them."""
    table = (ROOT / "src" / "finding" / "FindingCodes.cpp").read_text(encoding="utf-8")
    return {name: severity.lower() for name, severity in CODE.findall(table)}


class Links(unittest.TestCase):
    def test_every_link_leads_somewhere(self):
        self.assertGreater(len(PAGES), 8)
        self.assertEqual([], [fault for page in PAGES for fault in link_faults(page, page.read_text(encoding="utf-8"))])

    def test_the_changelog_begins_with_the_version(self):
        project = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
        version = re.search(r"^ +VERSION ([\d.]+)$", project, re.MULTILINE)
        headings = re.findall(r"^## (.*)$", (ROOT / "CHANGELOG.md").read_text(encoding="utf-8"), re.MULTILINE)
        self.assertEqual(version[1], headings[0])

    def test_links_that_lead_nowhere_are_found(self):
        for link in ("nowhere.md", "#no-such-heading", "README.md#no-such-heading", "docs/nowhere.md#pages"):
            with self.subTest(link):
                self.assertEqual(1, len(link_faults(ROOT / "README.md", f"# Pages\nSee [this\npage]({link}).\n")))

    def test_other_links_pass(self):
        for link in ("docs", "#a-b-c", "CONTRIBUTING.md#rooms", "https://example.org/nowhere.md"):
            with self.subTest(link):
                text = f"## A, `b` C\n[page]({link})\n```\n[a](b)\n```\n"
                self.assertEqual([], link_faults(ROOT / "README.md", text))


class Findings(unittest.TestCase):
    # A load on a node that is not there is left out, or written all the same: its place decides.
    BOTH = {"load-node-missing": ["doubt", "loss"]}

    def setUp(self):
        self.codes = codes()
        self.assertGreater(len(self.codes), 40)
        schema = json.loads((ROOT / "docs" / "report.schema.json").read_text(encoding="utf-8"))
        self.parts = schema["$defs"]

    def named_in(self, *parts):
        """By code: the parts of the schema that name it."""
        named = {}
        for part in parts:
            for code in self.parts[part]["properties"]["code"]["enum"]:
                named.setdefault(code, []).append(part)
        return named

    def test_each_is_explained_once(self):
        page = (ROOT / "docs" / "checking.md").read_text(encoding="utf-8")
        rows = re.findall(r"^\| `([a-z0-9-]+)`", page, re.MULTILINE)
        expected = [code for code in self.codes for _ in self.BOTH.get(code, [code])]
        self.assertEqual(sorted(expected), sorted(rows))

    def test_each_has_its_severity_in_the_schema(self):
        expected = {code: self.BOTH.get(code, [severity]) for code, severity in self.codes.items()}
        self.assertEqual(expected, self.named_in("doubt", "loss", "note"))

    def test_each_is_about_one_thing_in_the_schema(self):
        named = self.named_in("ofFile", "ofModel", "ofLoad")
        self.assertEqual(set(self.codes), set(named))
        self.assertEqual([], [code for code, parts in named.items() if len(parts) != 1])


if __name__ == "__main__":
    unittest.main()
