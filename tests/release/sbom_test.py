"""The list of what is in the packages: the rules of SPDX 2.3, and that it names what is really linked and bundled.

The rules are written out here: no schema of SPDX 2.3 is at hand.
"""

import datetime
import hashlib
import json
import os
import pathlib
import re
import unittest

from linked import debian_package, emscripten_members, included, traced
from packages import BUILDS, DEB, PACKAGES, PAGE, ROOT, SBOM, TARBALL, TIME, VERSION, ZIPS, run

IDENTIFIER = re.compile(r"SPDXRef-[A-Za-z0-9.-]+")
HEXADECIMAL = {"SHA256": re.compile("[0-9a-f]{64}"), "SHA512": re.compile("[0-9a-f]{128}")}
RELATIONSHIPS = {"DESCRIBES", "CONTAINS", "STATIC_LINK", "DYNAMIC_LINK"}
NEEDED = {"SPDXID", "name", "versionInfo", "downloadLocation", "filesAnalyzed", "licenseConcluded", "licenseDeclared",
          "copyrightText"}
ALLOWED = NEEDED | {"packageFileName", "primaryPackagePurpose", "supplier", "checksums", "licenseComments",
                    "externalRefs"}
HEADER_LIBRARIES = {"CLI11": "CLI", "nlohmann-json": "nlohmann", "fast_float": "fast_float"}
MUSL = pathlib.Path("/usr/share/emscripten/system/lib/libc/musl/src")
# The libraries of Emscripten and whose work they are.
OF_EMSCRIPTEN = {"libc": "musl", "libdlmalloc": "dlmalloc", "libcompiler_rt": "compiler-rt", "libc++": "libc++",
                 "libc++abi": "libc++abi", "libunwind": "libunwind"}


class Document(unittest.TestCase):
    def setUp(self):
        self.document = json.loads(SBOM.read_text(encoding="utf-8"))
        self.packages = {package["SPDXID"]: package for package in self.document["packages"]}

    def of_file(self, path):
        """The identifier of a package of the release."""
        identifier, = (package["SPDXID"] for package in self.packages.values()
                       if package.get("packageFileName") == path.name)
        return identifier

    def components(self, path, kinds=("STATIC_LINK", "DYNAMIC_LINK", "CONTAINS")):
        """What a package has of others."""
        return [self.packages[relation["relatedSpdxElement"]] for relation in self.document["relationships"]
                if relation["spdxElementId"] == self.of_file(path) and relation["relationshipType"] in kinds
                and "packageFileName" not in self.packages[relation["relatedSpdxElement"]]]

    def names(self, path, *kinds):
        return {component["name"] for component in self.components(path, *kinds)}

    def debian_packages(self, path):
        """Those that brought something to it, header libraries aside."""
        addresses = [reference["referenceLocator"] for component in self.components(path)
                     if component["name"] not in HEADER_LIBRARIES for reference in component.get("externalRefs", [])]
        names = [re.match(r"pkg:deb/debian/([^@]+)@", address) for address in addresses]
        return {name[1].replace("%2B", "+") for name in names if name}


class Form(Document):
    def test_the_document_tells_all_that_it_must(self):
        self.assertEqual({"spdxVersion", "dataLicense", "SPDXID", "name", "documentNamespace", "creationInfo",
                          "packages", "relationships"}, set(self.document) - {"hasExtractedLicensingInfos"})
        self.assertEqual(["SPDX-2.3", "CC0-1.0", "SPDXRef-DOCUMENT", f"satwecvt-{VERSION}"],
                         [self.document[key] for key in ("spdxVersion", "dataLicense", "SPDXID", "name")])
        self.assertRegex(self.document["documentNamespace"], r"^urn:uuid:[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}$")

    def test_it_was_created_when_the_commit_was(self):
        created = datetime.datetime.strptime(self.document["creationInfo"]["created"], "%Y-%m-%dT%H:%M:%SZ")
        self.assertEqual(TIME, created.replace(tzinfo=datetime.timezone.utc).timestamp())
        for creator in self.document["creationInfo"]["creators"]:
            self.assertRegex(creator, r"^(Organization: |Tool: \S+-\d)")

    def test_every_identifier_is_one_and_is_used_once(self):
        identifiers = [package["SPDXID"] for package in self.document["packages"]] + ["SPDXRef-DOCUMENT"]
        self.assertEqual(sorted(set(identifiers)), sorted(identifiers))
        self.assertEqual([], [name for name in identifiers if not IDENTIFIER.fullmatch(name)])

    def test_every_package_tells_what_it_must_and_nothing_unknown(self):
        for package in self.packages.values():
            with self.subTest(package["SPDXID"]):
                self.assertEqual((set(), set()), (NEEDED - set(package), set(package) - ALLOWED))
                self.assertEqual([], [key for key in NEEDED if package[key] == ""])
                self.assertIs(False, package["filesAnalyzed"])
                for checksum in package.get("checksums", []):
                    self.assertTrue(HEXADECIMAL[checksum["algorithm"]].fullmatch(checksum["checksumValue"]))
                for reference in package.get("externalRefs", []):
                    self.assertEqual(("PACKAGE-MANAGER", "purl"),
                                     (reference["referenceCategory"], reference["referenceType"]))
                    self.assertRegex(reference["referenceLocator"],
                                     r"^pkg:(deb/debian|npm)/[\w.%-]+@[\w.%~:-]+(\?\S+)?$")

    def test_every_relationship_is_between_what_is_there(self):
        known = {*self.packages, "SPDXRef-DOCUMENT"}
        for relation in self.document["relationships"]:
            self.assertIn(relation["relationshipType"], RELATIONSHIPS)
            self.assertLessEqual({relation["spdxElementId"], relation["relatedSpdxElement"]}, known)
        related = {relation["relatedSpdxElement"] for relation in self.document["relationships"]}
        self.assertEqual(set(self.packages), related)

    def test_every_licence_without_a_name_of_spdx_has_its_text(self):
        explained = {info["licenseId"]: info["extractedText"]
                     for info in self.document.get("hasExtractedLicensingInfos", [])}
        named = " ".join(package["licenseDeclared"] for package in self.packages.values())
        self.assertEqual(set(re.findall(r"LicenseRef-[A-Za-z0-9.-]+", named)), set(explained))
        self.assertEqual([], [name for name, text in explained.items() if len(text) < 100])

    def test_every_licence_is_an_expression_of_spdx(self):
        licences = sorted({package["licenseDeclared"] for package in self.packages.values()} - {"NONE"})
        self.assertGreater(len(licences), 4)
        parse = "for (const text of process.argv.slice(1)) require('spdx-expression-parse')(text)"
        run("node", "-e", parse, *licences, env={**os.environ, "NODE_PATH": "/usr/share/nodejs"})


class Truth(Document):
    def test_every_package_of_the_release_is_described_with_its_sum(self):
        described = {relation["relatedSpdxElement"] for relation in self.document["relationships"]
                     if relation["relationshipType"] == "DESCRIBES"}
        files = [path for path in PACKAGES if path != SBOM]
        self.assertEqual({self.of_file(path) for path in files}, described)
        for path in files:
            self.assertEqual([{"algorithm": "SHA256", "checksumValue": hashlib.sha256(path.read_bytes()).hexdigest()}],
                             self.packages[self.of_file(path)]["checksums"])

    def test_it_names_what_the_linker_reads_for_linux(self):
        linked = {debian_package(file) for file in traced("linux-release", "bin/satwecvt")}
        for package in (TARBALL, DEB):
            self.assertEqual(linked, self.debian_packages(package))

    def test_it_names_what_the_program_asks_the_system_for(self):
        program = BUILDS / "linux-release/bin/satwecvt"
        asked = set(re.findall(r"\(NEEDED\).*\[(.+)\]", run("readelf", "-d", program)))
        self.assertLessEqual({"libc.so.6"}, asked)
        self.assertEqual(set(), asked - {"libc.so.6", "libm.so.6", "ld-linux-x86-64.so.2"})  # all glibc's
        self.assertEqual({"glibc"}, self.names(TARBALL, ["DYNAMIC_LINK"]))

    def test_it_names_what_the_linker_reads_for_windows(self):
        for bits, build in {64: "windows-x64", 32: "windows-x86"}.items():
            files = traced(build, "bin/satwecvt.exe") | traced(build, "bin/satwecvt.dll")
            self.assertEqual({debian_package(file) for file in files}, self.debian_packages(ZIPS[bits]))
            self.assertIn("winpthreads", self.names(ZIPS[bits]))

    def test_it_names_what_the_linker_reads_for_the_page(self):
        linked = {OF_EMSCRIPTEN.get(re.sub(r"(-\w+)*\.a$", "", library), "Emscripten")
                  for library, _ in emscripten_members()}
        self.assertLessEqual({"musl", "libc++"}, linked)
        self.assertEqual(linked | {"Emscripten"},
                         self.names(PAGE, ["STATIC_LINK"]) - set(HEADER_LIBRARIES))

    def test_the_page_has_the_notice_of_everybody_whose_work_is_in_musl(self):
        taken = {member.removesuffix(".o") for _, member in emscripten_members()}
        texts = [path.read_text(encoding="utf-8") for path in MUSL.rglob("*.c") if path.stem in taken]
        self.assertGreater(len(texts), 50)
        notices = {" ".join(notice.split()) for text in texts
                   for notice in re.findall(r"Copyright [^\n]*\d{4}.*", text)}
        licences = (ROOT / "page/module-licences.txt").read_text(encoding="utf-8")
        self.assertGreater(len(notices), 0)
        self.assertEqual([], [notice for notice in notices if notice not in licences])
        self.assertIn(licences.strip(), PAGE.read_text(encoding="utf-8"))

    def test_it_names_the_header_libraries_that_are_included(self):
        for build, packages in {"linux-release": [TARBALL, DEB], "windows-x64": [ZIPS[64]], "windows-x86": [ZIPS[32]],
                                "web-release": [PAGE]}.items():
            for package in packages:
                self.assertEqual(included(build), {HEADER_LIBRARIES[name] for name in self.names(package)
                                                   if name in HEADER_LIBRARIES}, package.name)

    def test_it_names_what_of_npm_is_bundled(self):
        bundled = run("node", ROOT / "tests/release/bundled.mjs", ROOT).split()
        lock = json.loads((ROOT / "page/package-lock.json").read_text(encoding="utf-8"))["packages"]
        expected = {f"pkg:npm/{name}@{lock[f'node_modules/{name}']['version']}" for name in bundled}
        for package in (PAGE, TARBALL, DEB, *ZIPS.values()):  # the program has the page of view
            addresses = {reference["referenceLocator"] for component in self.components(package)
                         for reference in component.get("externalRefs", [])}
            self.assertEqual(expected, {address for address in addresses if address.startswith("pkg:npm/")})


if __name__ == "__main__":
    unittest.main()
