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
        self.expect_bytes(case / "expected.vkm", "structure.vkm")
        self.expect_bytes(case / "expected.msg", LOG)

        report = self.report()
        self.assertEqual(about["result"], report["result"])
        self.assertEqual(about.get("messages", []), report["messages"])
        for message in report["messages"]:
            self.assertIn(f"satwecvt: {message}\n", ended.err)
        self.assertEqual(about["result"] != 0, report["output"] is None)
        self.assertNotEqual(ended.code == 0, ended.out == "")
        for key, name in (("total", "totalLines"), ("read", "lineCounter"), ("steps", "steps")):
            self.assertEqual(about.get(name, report["lines"][key]), report["lines"][key], name)

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
