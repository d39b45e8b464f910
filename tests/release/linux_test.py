"""The archive for Linux, unpacked and used."""

import pathlib
import tempfile
import unittest

from packages import BUILDS, TARBALL, Converting, inputs, outputs, run, unpack, work


class Tarball(Converting):
    def setUp(self):
        self.folder = unpack(TARBALL)
        self.program = self.folder / "bin" / "satwecvt"

    def test_the_program_converts(self):
        self.expect_conversion(self.program, env={})

    def test_the_program_converts_as_the_built_one_does(self):
        made = []
        for program in (self.program, BUILDS / "linux-release" / "bin" / "satwecvt"):
            place = inputs("tower")
            run(program, "convert", "--quiet", "structure.sat", "load.sat", cwd=place)
            made.append(outputs(place))
        self.assertEqual(*made)

    def test_view_and_batch_work_without_what_the_build_had(self):
        place = inputs("tower")
        run(self.program, "view", "structure.sat", "load.sat", cwd=place, env={})
        self.assertIn(b"</html>", (place / "structure.html").read_bytes())
        self.assertIn("1 pair: 1 ok", run(self.program, "batch", ".", cwd=place, env={}))

    def test_the_library_serves_a_project_after_the_folder_has_moved(self):
        moved = pathlib.Path(tempfile.mkdtemp(dir=work())) / "an other place"
        self.folder.rename(moved)
        self.expect_consumers(moved, moved / "bin" / "satwecvt")

    def test_the_man_page_and_the_completions_are_those_of_the_program(self):
        manual = BUILDS / "linux-release" / "src" / "manual"
        for built, packed in {"satwecvt.1": "man/man1/satwecvt.1", "_satwecvt": "zsh/site-functions/_satwecvt",
                              "satwecvt.bash": "bash-completion/completions/satwecvt",
                              "satwecvt.fish": "fish/vendor_completions.d/satwecvt.fish"}.items():
            self.assertEqual((manual / built).read_bytes(), (self.folder / "share" / packed).read_bytes())


if __name__ == "__main__":
    unittest.main()
