"""What a build really links and includes: its link commands are run once more, and the linker tells of every file."""

import os
import pathlib
import re
import subprocess

from packages import BUILDS, ROOT, run, source_of, work


def link_command(build, target):
    """The command that links a target, writing into a folder of the tests. Its source may have gone meanwhile."""
    command = run("ninja", "-C", BUILDS / build, "-t", "commands", "-s", target).splitlines()[-1]
    command = next(part for part in command.split(" && ") if f"-o {target} " in part)
    command = command.replace(str(source_of(BUILDS / build)), str(ROOT))
    return re.sub(r"(-o |--out-implib,)bin/", rf"\g<1>{work()}/", command)


def traced(build, target):
    """The files outside the build that the linker reads for a target."""
    said = run("sh", "-c", link_command(build, target) + " -Wl,--trace", cwd=BUILDS / build)
    lines = (line.split("(")[0].strip() for line in said.splitlines())
    files = {os.path.realpath(line) for line in lines if re.fullmatch(r"/\S+\.(a|o|so[.\d]*)", line)}
    return {file for file in files if not file.startswith(str(BUILDS))}


def debian_package(file):
    """The Debian package that holds a file. The start files of glibc pass for glibc itself."""
    names = subprocess.run(["dpkg-query", "-S", file, file.removeprefix("/usr")], check=False, capture_output=True,
                           text=True).stdout
    return {"libc6-dev": "libc6"}.get(names.split(":")[0], names.split(":")[0])


def included(build):
    """The header libraries that any object of a build includes."""
    deps = run("ninja", "-C", BUILDS / build, "-t", "deps")
    return set(re.findall(r"^\s+(?:\S*/)?headers/(\w+)/", deps, re.MULTILINE))


def emscripten_members():
    """What the linker takes for the module from the libraries of Emscripten: the library, and the object."""
    command = link_command("web-release", "bin/satwecvt.mjs") + " -Wl,--trace"
    said = run("sh", "-c", command, cwd=BUILDS / "web-release")
    return {(pathlib.Path(library).name, member)
            for library, member in re.findall(r"^(/\S+\.a)\((\S+)\)", said, re.MULTILINE)
            if not library.startswith(str(BUILDS))}
