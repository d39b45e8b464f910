"""Every whole conversion of tests/cases, through the program."""

import json
import unittest

from program import LOG, ROOT, ProgramTest

EXIT_CODES = {0: 0, -1: 1}


class Cases(ProgramTest):
    def test_every_case_gives_its_bytes_and_its_exit_code(self):
        folders = sorted((ROOT / "tests" / "cases").iterdir())
        self.assertGreater(len(folders), 200)
        for folder in folders:
            about = json.loads((folder / "case.json").read_text(encoding="utf-8"))
            if "cancelAtStep" not in about:  # no user is that quick
                with self.subTest(folder.name):
                    self.expect_case(folder, about)

    def expect_case(self, case, about):
        self.start_afresh(case)
        ended = self.convert("--json", "report.json", "structure.sat", "load.sat")
        self.assertEqual(EXIT_CODES[about["result"]], ended.code, ended.err)
        if ended.code == 0:
            self.expect_bytes(case / "expected.vkm", "structure.vkm")
            self.expect_bytes(case / "expected.msg", LOG)
        else:  # what the library leaves of a model is never put in its place
            self.assertEqual({"report.json"}, self.new_files())

        report = self.report()
        self.assertEqual(about["result"], report["result"])
        self.assertEqual(about.get("messages", []), report["messages"])
        self.assertEqual(about["result"] != 0, report["output"] is None)
        self.assertEqual(about["result"] != 0, report["failure"] is not None)
        self.expect_sums(report)
        self.assertNotEqual(ended.code == 0, ended.out == "")
        for key, name in (("total", "totalLines"), ("read", "lineCounter"), ("steps", "steps")):
            self.assertEqual(about.get(name, report["lines"][key]), report["lines"][key], name)

    def expect_sums(self, report):
        """Of a whole model: nothing of the input is unaccounted for, and the loads of the model are those of the input
        less what is lost."""
        for kind, count in report["counts"].items():
            if count["read"] is not None and report["output"]:
                self.assertEqual(count["read"], count["converted"] + count["lost"], kind)
                self.assertGreaterEqual(min(count["converted"], count["lost"]), 0, kind)
        if report["output"]:
            for kind in ("nodes", "beams", "braces", "walls"):  # one line each
                self.assertEqual(report["counts"][kind]["converted"], report["counts"][kind]["lines"], kind)
            self.assertEqual([], [row for row in report["loads"] if not row["holds"]])

    def start_afresh(self, case):
        for name in self.files():
            (self.folder / name).unlink()
        self.inputs = {}
        for name in ("structure.sat", "load.sat"):
            if (case / name).exists():
                self.put(name, (case / name).read_bytes())

    def expect_bytes(self, expected, name):
        content = expected.read_bytes() if expected.exists() else None
        self.assertTrue(content == self.read(name), f"{name} is not what it has to be")


if __name__ == "__main__":
    unittest.main()
