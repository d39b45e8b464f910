"""The Debian package, installed by dpkg into a root that holds nothing but what it depends on, and used there.

Whoever is not root needs sudo: dpkg and chroot ask for it.
"""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

from packages import DEB, ROOT, VERSION, Converting, expected_outputs, inputs, outputs, run, unpack, work

AS_ROOT = [] if os.geteuid() == 0 else ["sudo"]
LIBRARY_FOLDER = "usr/lib/x86_64-linux-gnu"
PLACES = """
    usr/bin/satwecvt
    usr/lib/x86_64-linux-gnu/libsatwecvt.a
    usr/lib/x86_64-linux-gnu/cmake/satwecvt/satwecvtConfig.cmake
    usr/lib/x86_64-linux-gnu/cmake/satwecvt/satwecvtConfigVersion.cmake
    usr/lib/x86_64-linux-gnu/cmake/satwecvt/satwecvtLibrary.cmake
    usr/lib/x86_64-linux-gnu/cmake/satwecvt/satwecvtLibrary-release.cmake
    usr/lib/x86_64-linux-gnu/pkgconfig/satwecvt.pc
    usr/share/bash-completion/completions/satwecvt
    usr/share/fish/vendor_completions.d/satwecvt.fish
    usr/share/zsh/vendor-completions/_satwecvt
    usr/share/man/man1/satwecvt.1.gz
""".split()
# The pages lead to these by their places in the tree.
IN_DOCS = """
    CHANGELOG.md CONTRIBUTING.md README.md changelog.gz copyright satwecvt.html
    examples/host/host.cpp include/satwecvt/satwecvt.h
    samples/frame/load.sat samples/frame/structure.sat samples/tower/load.sat samples/tower/structure.sat
""".split()


def field(name):
    return run("dpkg-deb", "--field", DEB, name).strip()


def needs():
    """What it depends on: {package: lowest version}."""
    return dict(re.match(r"(\S+) \(>= (\S+)\)$", need).groups() for need in field("Depends").split(", "))


class Root:
    """A root with the files of the packages that are needed, and dpkg's notes of them."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(dir=work()))
        for name in ("lib", "lib64"):
            (self.folder / "usr" / name).mkdir(parents=True)
            (self.folder / name).symlink_to(f"usr/{name}")
        notes = self.folder / "var/lib/dpkg"
        for name in ("info", "updates"):
            (notes / name).mkdir(parents=True)
        (notes / "status").write_text("".join(run("dpkg-query", "--status", need) + "\n" for need in needs()))
        for need in needs():
            self.copy_libraries(need)

    def copy_libraries(self, package):
        for path in map(pathlib.Path, run("dpkg-query", "--listfiles", package).split()):
            if ".so" in path.name and path.is_file():
                place = self.folder / str(path.parent).lstrip("/")
                place.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(path, place / path.name)
                (place / path.name).chmod(0o755)

    def dpkg(self, *action):
        """Whatever this machine leaves out of its own packages: here nothing is."""
        return run(*AS_ROOT, "dpkg", f"--root={self.folder}", f"--log={self.folder}/dpkg.log", "--path-include=*",
                   *action)

    def files(self):
        return {str(path.relative_to(self.folder)) for path in self.folder.rglob("*") if path.is_file()}


class Description(unittest.TestCase):
    def test_name_version_and_width(self):
        self.assertEqual(["satwecvt", VERSION, "amd64"],
                         [field(name) for name in ("Package", "Version", "Architecture")])

    def test_it_needs_the_c_library_alone(self):
        self.assertEqual(["libc6"], list(needs()))

    def test_it_needs_a_c_library_that_has_all_that_the_program_asks_for(self):
        program = unpack(DEB) / "usr/bin/satwecvt"
        versions = set(re.findall(r"GLIBC_(\d[\d.]*)", run("objdump", "-T", program)))
        self.assertIn("2.2.5", versions)  # the oldest of this width: the symbols were read
        for version in versions:
            run("dpkg", "--compare-versions", needs()["libc6"], "ge", version)

    def test_lintian_finds_nothing(self):
        run("lintian", "--fail-on", "error,warning", DEB)

    def test_the_sums_of_its_files_are_right(self):
        place = unpack(DEB)
        run("dpkg-deb", "--control", DEB, place / "DEBIAN")
        run("md5sum", "--check", "--strict", "--quiet", "DEBIAN/md5sums", cwd=place)
        listed = {line.split("  ")[1] for line in (place / "DEBIAN/md5sums").read_text().splitlines()}
        self.assertEqual({str(path.relative_to(place)) for path in (place / "usr").rglob("*") if path.is_file()},
                         listed)

    def test_the_man_page_is_one(self):
        page = subprocess.run(["gzip", "-dc", unpack(DEB) / "usr/share/man/man1/satwecvt.1.gz"], check=True,
                              capture_output=True).stdout
        shown = subprocess.run(["groff", "-man", "-Tascii", "-ww"], input=page, check=True, capture_output=True)
        self.assertEqual(b"", shown.stderr)
        self.assertIn(b"satwecvt(1)", shown.stdout.lower())


class Installed(Converting):
    def setUp(self):
        self.root = Root()
        self.before = self.root.files()
        self.root.dpkg("--install", DEB)

    def of_package(self):
        notes = {name for name in self.root.files() if name.startswith(("var/", "dpkg.log"))}
        return self.root.files() - self.before - notes

    def test_every_file_has_its_place(self):
        headers = [f"usr/include/satwecvt/{path.name}" for path in (ROOT / "include/satwecvt").glob("*.h")
                   if path.name != "satwecvt.h"]
        docs = IN_DOCS + [str(path.relative_to(ROOT)) for path in (ROOT / "docs").rglob("*") if path.is_file()]
        self.assertEqual(sorted([*PLACES, *headers, *(f"usr/share/doc/satwecvt/{name}" for name in docs)]),
                         sorted(self.of_package()))

    def test_the_program_converts_with_nothing_but_what_it_depends_on(self):
        for sample in ("frame", "tower"):
            place = self.root.folder / sample
            shutil.copytree(inputs(sample), place)
            run(*AS_ROOT, "chroot", self.root.folder, "/usr/bin/satwecvt", "convert",
                "--quiet", "--log", f"/{sample}/satwecvt.msg", f"/{sample}/structure.sat", f"/{sample}/load.sat")
            self.assertEqual(expected_outputs(sample), outputs(place))

    def test_the_library_serves_a_project(self):
        self.expect_consumers(self.root.folder / "usr", self.root.folder / "usr/bin/satwecvt")

    def test_nothing_stays_behind(self):
        self.root.dpkg("--purge", "satwecvt")
        self.assertEqual(set(), self.of_package())


if __name__ == "__main__":
    unittest.main()
