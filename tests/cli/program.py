"""Runs the program as its user does, in a working folder of its own, and looks at what it leaves behind.

Environment: SATWECVT is the program, with a command in front of it where it needs one; GENERATE_TOWER likewise, the
writer of large samples. SATWECVT_ROOT is the project. SATWECVT_WINE is set when the program is one for Windows, which
runs under Wine: there is no terminal, no /dev/full and no signal for it there. SATWECVT_EMULATOR is set when the command
in front of the program runs it: Wine, qemu or a loader.
"""

import collections
import json
import os
import pathlib
import shlex
import subprocess
import tempfile
import unittest

import jsonschema

PROGRAM = shlex.split(os.environ["SATWECVT"])
ROOT = pathlib.Path(os.environ["SATWECVT_ROOT"])
IS_WINE = "SATWECVT_WINE" in os.environ
LOG = "satwecvt.msg"
SECONDS = 300  # far more than any run takes, sanitizers and Wine included

# As a finding is printed, and what stands for those of its code that are not.
FINDING_LINE = r"\A((\S.*: )?(loss|doubt|note): .+|and [0-9,]+ more of these) \[[a-z0-9-]+\]\Z"

Ended = collections.namedtuple("Ended", "code out err")


def needs_posix(what):
    return unittest.skipIf(IS_WINE, f"{what}: nothing to test under Wine")


def whole_text(file):
    file.seek(0)
    text = file.read().decode("utf-8", "surrogateescape")
    return text.replace("\r\n", "\n") if IS_WINE else text


def sample(name):
    folder = ROOT / "samples" / name
    return (folder / "structure.sat").read_bytes(), (folder / "load.sat").read_bytes()


def read_schema():
    schema = json.loads((ROOT / "docs" / "report.schema.json").read_text(encoding="utf-8"))
    jsonschema.Draft202012Validator.check_schema(schema)
    return jsonschema.Draft202012Validator(schema)


SCHEMA = read_schema()


class ProgramTest(unittest.TestCase):
    """Every run is followed by a look at the inputs, which must not change, whatever happens."""

    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="satwecvt-")))
        self.inputs = {}

    def put(self, name, content):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
        self.inputs[path] = content
        return name

    def put_frame(self, structure="structure.sat", load="load.sat"):
        return [self.put(name, content) for name, content in zip((structure, load), sample("frame"))]

    def put_tower(self, structure="structure.sat", load="load.sat"):
        """The tower has walls and a load that cannot be converted whole, so it fills the log."""
        return [self.put(name, content) for name, content in zip((structure, load), sample("tower"))]

    def run_program(self, *arguments, **options):
        # Files, not pipes: Wine's own processes outlive the program and would keep a pipe open.
        with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
            options = {"stdout": out, "stderr": err, **options}
            ended = subprocess.run([*PROGRAM, *arguments], cwd=self.folder, stdin=subprocess.DEVNULL, timeout=SECONDS,
                                   check=False, **options)
            self.expect_inputs_untouched()
            return Ended(ended.returncode, whole_text(out), whole_text(err))

    def convert(self, *arguments, **options):
        return self.run_program("convert", *arguments, **options)

    def convert_well(self, *arguments):
        """Converts with nothing on stderr but findings; returns what stands on stdout."""
        ended = self.convert(*arguments)
        self.assertEqual(0, ended.code, ended.err)
        for line in ended.err.splitlines():
            self.assertRegex(line, FINDING_LINE)
        return ended.out

    def read(self, name):
        path = self.folder / name
        return path.read_bytes() if path.exists() else None

    def files(self):
        """All files of the working folder and below, by their names in it."""
        return {os.fspath(path.relative_to(self.folder)) for path in self.folder.rglob("*") if not path.is_dir()}

    def new_files(self):
        return self.files() - {os.fspath(path.relative_to(self.folder)) for path in self.inputs}

    def valid_report(self, text):
        report = json.loads(text)
        SCHEMA.validate(report)
        return report

    def report(self, name="report.json"):
        return self.valid_report(self.read(name).decode("utf-8"))

    def expect_inputs_untouched(self):
        for path, content in self.inputs.items():
            self.assertTrue(path.read_bytes() == content, f"{path} has changed")

    def expect_model(self, name):
        model = self.read(name)
        self.assertIsNotNone(model, f"{name} is missing")
        self.assertTrue(model.startswith(b"*VERSION\n  5.8.0\n\n*NODE"), model[:80])
        self.assertTrue(model.endswith(b"load case [LiveLoad] -------------------------\n\n\n"), model[-80:])
