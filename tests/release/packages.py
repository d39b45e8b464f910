"""Where the tests find the packages of a release.

Environment: SATWECVT_ROOT is the project (without it, the one that this file belongs to); SATWECVT_RELEASE is the
folder of packages, SATWECVT_BUILDS that of the builds they were packed from (without them, those of scripts/package).
"""

import atexit
import functools
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(os.environ.get("SATWECVT_ROOT", pathlib.Path(__file__).parents[2])).resolve()
RELEASE = pathlib.Path(os.environ.get("SATWECVT_RELEASE", ROOT / "build" / "release")).resolve()
BUILDS = pathlib.Path(os.environ.get("SATWECVT_BUILDS", ROOT / "build" / "package")).resolve()
VERSION = re.search(r"^ +VERSION (\S+)$", (ROOT / "CMakeLists.txt").read_text(encoding="utf-8"), re.MULTILINE)[1]

LINUX = f"satwecvt-{VERSION}-linux-x64"
WINDOWS = {64: f"satwecvt-{VERSION}-windows-x64", 32: f"satwecvt-{VERSION}-windows-x86"}
TARBALL = RELEASE / f"{LINUX}.tar.gz"
ZIPS = {bits: RELEASE / f"{name}.zip" for bits, name in WINDOWS.items()}
DEB = RELEASE / f"satwecvt_{VERSION}_amd64.deb"
PAGE = RELEASE / f"satwecvt-{VERSION}.html"
SBOM = RELEASE / f"satwecvt-{VERSION}.spdx.json"
PACKAGES = [TARBALL, *ZIPS.values(), PAGE, SBOM, DEB]

# That of the commit, unless another was set.
TIME = int(os.environ.get("SOURCE_DATE_EPOCH") or
           subprocess.run(["git", "log", "-1", "--format=%ct"], cwd=ROOT, check=True, capture_output=True).stdout)

sys.path.insert(0, str(ROOT / "tests" / "reference"))
import reference  # noqa: E402

SAMPLES = ("frame", "tower")
OUTPUTS = ("structure.vkm", "satwecvt.msg")


def run(*command, **options):
    """What a command prints. It fails with all that the command said."""
    ended = subprocess.run([str(word) for word in command], check=False, stdout=subprocess.PIPE,
                           stderr=subprocess.STDOUT, **options)
    text = ended.stdout.decode("utf-8", errors="replace")
    if ended.returncode != 0:
        raise AssertionError(f"{command[0]} ended with {ended.returncode}:\n{text}")
    return text


def source_of(build):
    """Where the source of a build lay."""
    cache = (build / "CMakeCache.txt").read_text(encoding="utf-8")
    return pathlib.Path(re.search(r"^CMAKE_HOME_DIRECTORY:INTERNAL=(.+)$", cache, re.MULTILINE)[1])


@functools.cache
def work():
    """A folder for what the tests unpack and build."""
    folder = pathlib.Path(tempfile.mkdtemp(prefix="satwecvt-release-"))
    atexit.register(shutil.rmtree, folder, ignore_errors=True)
    return folder


def unpack(package):
    """The folder that an archive holds, or the root of the Debian package, in a fresh place."""
    place = pathlib.Path(tempfile.mkdtemp(dir=work()))
    if package == DEB:
        run("dpkg-deb", "-x", package, place)
        return place
    run(*(["tar", "-xf", package] if package == TARBALL else ["unzip", "-q", package]), cwd=place)
    folder, = place.iterdir()
    return folder


def inputs(sample):
    """A fresh folder with the files of a sample."""
    place = pathlib.Path(tempfile.mkdtemp(dir=work()))
    for name in ("structure.sat", "load.sat"):
        shutil.copyfile(ROOT / "samples" / sample / name, place / name)
    return place


def outputs(place):
    return {name: (place / name).read_bytes() for name in OUTPUTS}


@functools.cache
def expected_outputs(sample):
    """What the second, independent converter makes of a sample."""
    place = inputs(sample)
    previous = os.getcwd()
    os.chdir(place)
    try:
        reference.convert("structure.sat", "load.sat")
    finally:
        os.chdir(previous)
    return outputs(place)


class Converting(unittest.TestCase):
    """A test that lets a program of the release convert the samples."""

    def expect_conversion(self, *program, **options):
        for sample in SAMPLES:
            with self.subTest(sample):
                place = inputs(sample)
                run(*program, "convert", "--quiet", "structure.sat", "load.sat", cwd=place, **options)
                self.assertEqual(expected_outputs(sample), outputs(place))

    def expect_consumers(self, prefix, program):
        """The projects of tests/package find the installed library by CMake and by pkg-config, are built, and run."""
        public = sorted(f"satwecvt/{path.name}" for path in (ROOT / "include/satwecvt").glob("*.h")
                        if path.name != "satwecvt.h")
        run("ctest", "--build-and-test", ROOT / "tests/package/cmake", tempfile.mkdtemp(dir=work()),
            "--build-generator", "Ninja", "--build-options", f"-DVERSION={VERSION}", f"-DCMAKE_PREFIX_PATH={prefix}",
            f"-DPUBLIC_HEADERS={','.join(public)}", f"-DPROGRAM={program}", f"-DSAMPLE={ROOT / 'samples/tower'}",
            "--test-command", "ctest", "--output-on-failure", "--no-tests=error")
        run("cmake", f"-DVERSION={VERSION}", f"-DPREFIX={prefix}", "-DCOMPILER=g++",
            f"-DSAMPLE={ROOT / 'samples/tower'}", f"-DWORK={tempfile.mkdtemp(dir=work())}",
            f"-DSOURCE={ROOT / 'tests/package/consumer.cpp'}", "-P", ROOT / "tests/package/CheckPkgConfig.cmake")
