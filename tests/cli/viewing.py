"""What `view` writes: one page with the model in it, number for number, and the plans of the stories."""

import os
import re
import signal
import subprocess
import unittest
import xml.etree.ElementTree

from page_columns import columns_of
from program import IS_WINE, PROGRAM, SECONDS, ProgramTest, needs_posix, sample

SVG = "{http://www.w3.org/2000/svg}"

# By hand, from the frame's two files and the rules of the model file. Places and values of the loads: the trapezoid's
# sloping parts are 0.4 of beam 1, the triangle stands on the middle half of beam 3, 6000 long, the forces at half and at
# a quarter of their beams.
FRAME = {
    "file.names": [b"structure.sat", b"load.sat"],
    "story.key": [1], "story.number": [1],
    "node.number": [1, 2, 3, 4, 5, 6, 7, 8],
    "node.x": [0, 6000, 6000, 0, 0, 6000, 6000, 0],
    "node.y": [0, 0, 5000, 5000, 0, 0, 5000, 5000],
    "node.z": [0, 0, 0, 0, 3600, 3600, 3600, 3600],
    "node.story": [-1, -1, -1, -1, 0, 0, 0, 0],
    "node.key": [1, 2, 3, 4, 1, 2, 3, 4],
    "frame.number": [1, 2, 3, 4, 5, 6, 7, 8],
    "frame.kind": [0, 0, 0, 0, 1, 1, 1, 1],
    "frame.story": [0] * 8,
    "frame.key": [1, 2, 3, 4, 1, 2, 3, 4],
    "frame.material": [1, 1, 1, 2, 3, 3, 3, 3],
    "frame.section": [1, 1, 1, 2, 3, 3, 3, 3],
    "frame.nodeI": [5, 6, 7, 8, 1, 2, 3, 4],
    "frame.nodeJ": [6, 7, 8, 5, 5, 6, 7, 8],
    "frame.angle": [0] * 8,
    "planar.type": [1, 1], "planar.number": [9, 10], "planar.nodes": [5, 6, 7, 0, 5, 7, 8, 0],
    "planar.key": [1, 1], "planar.thickness": [1, 1], "planar.material": [4, 4],
    "material.name": [b"C30", b"16Mn", b"C40", b"C25"], "material.type": [0, 1, 0, 0],
    "section.shape": [b"SB", b"H", b"SB"],
    "section.values": [600, 300, 0, 0, 0, 0, 0, 0, 0,
                       400, 200, 8, 13, 200, 13, 0, 0, 0,
                       500, 500, 0, 0, 0, 0, 0, 0, 0],
    "thickness.number": [1], "thickness.value": [120],
    "support.node": [1, 2, 3, 4],
    "release.element": [4], "release.ends": [3],
    "offset.element": [3], "offset.values": [0, 100, 0, 0, 100, 0],
    "nodalLoad.node": [5, 7], "nodalLoad.standing": [1, 0], "nodalLoad.fz": [-40000, -10000],
    "nodalLoad.fx": [0, 5000],
    "beamLoad.element": [1, 3, 1, 2, 4], "beamLoad.standing": [1, 1, 0, 0, 0], "beamLoad.type": [1, 1, 1, 0, 0],
    "beamLoad.d1": [0, 0.25, 0, 0.5, 0.25], "beamLoad.p1": [0, 0, -6, -30000, -8000],
    "beamLoad.d2": [0.4, 0.5, 1, 0, 0], "beamLoad.p2": [-12, -8, -6, 0, 0],
    "balance.story": [1, 1], "balance.case": [0, 1], "balance.holds": [1, 1],
    "balance.model": [3, 0, 0, 95200, 4, 5000, 0, 84000],
    "finding.text": [], "lost.x": [],
}


class Viewing(ProgramTest):
    def view(self, *arguments, **options):
        return self.run_program("view", *arguments, **options)

    def columns(self, page="structure.html"):
        return columns_of(self.read(page))

    def view_well(self, *arguments):
        ended = self.view(*arguments, "structure.sat", "load.sat")
        self.assertEqual((0, ""), (ended.code, ended.err))
        return ended.out

    def test_writes_the_page_beside_the_structure_file_and_nothing_else(self):
        self.put_tower("in/tower.sat", "in/loads.sat")
        ended = self.view("in/tower.sat", "in/loads.sat")
        page = os.path.join("in", "tower.html")
        self.assertEqual((0, f"Page   {page}\n10 losses, 0 doubts, 1 note\n", ""), (ended.code, ended.out, ended.err))
        self.assertEqual({page}, self.new_files())

    def test_puts_the_frame_into_the_page_number_for_number(self):
        self.put_frame()
        self.assertEqual("Page   structure.html\n0 losses, 0 doubts, 0 notes\n", self.view_well())
        columns = self.columns()
        for name, expected in FRAME.items():
            with self.subTest(name):
                self.assertEqual(expected, columns[name])

    def test_holds_what_the_model_file_holds(self):
        """Nodes and elements of the tower, against the text of the model file."""
        self.put_tower()
        self.view_well()
        self.convert("-q", "structure.sat", "load.sat")
        lines = self.read("structure.vkm").decode("ascii").splitlines()
        columns = self.columns()
        nodes = zip(*(columns[f"node.{name}"] for name in ("number", "x", "y", "z")))
        start = lines.index("; iNO, X, Y, Z") + 1
        written = [line.split(",") for line in lines[start:lines.index("", start)]]
        self.assertEqual([tuple(map(float, line)) for line in written], list(nodes))
        fields = ("number", "material", "section", "nodeI", "nodeJ", "angle")
        frames = zip(*(columns[f"frame.{name}"] for name in fields))
        written = [line.split(",") for line in lines if re.match("  [0-9]+, BEAM, ", line)]
        self.assertEqual([tuple(map(float, line[:1] + line[2:])) for line in written], list(frames))

    def test_tells_what_was_lost_and_where_it_was(self):
        self.put_tower()
        self.view_well()
        columns = self.columns()
        codes = dict(zip(columns["findingCode.name"], columns["findingCode.total"]))
        self.assertEqual({b"wall-not-upright": 1, b"wall-opening": 8, b"load-type": 1, b"zero-load": 1}, codes)
        lost = columns["finding.text"].index(b"wall 5 of story 8 is left out: its ends do not stand upright, 8400 apart "
                                             b"in x")
        self.assertEqual(([lost], [4]), (columns["lost.finding"], columns["lost.points"]))
        self.assertEqual([26100, 26100, 29700, 29700], columns["lost.z"])

    def test_lists_findings_as_the_building_grows_and_counts_all(self):
        """The frame has 10 elements, which makes 1,002 findings; codes with few keep all of theirs."""
        self.put("structure.sat", sample("frame")[0])
        self.put("load.sat", b"4500\n" + b"1 1 31 0 1\n" * 2400 + b"1 9 1 0 1 1\n" * 2000 + b"1 1 4 0 0 0\n" * 100)
        self.assertTrue(self.view_well().endswith("\n4,400 losses, 0 doubts, 100 notes\n"))
        columns = self.columns()
        totals = dict(zip(columns["findingCode.name"], columns["findingCode.total"]))
        self.assertEqual({b"load-type": 2400, b"load-beam-missing": 2000, b"zero-load": 100}, totals)
        listed = [columns["findingCode.name"][code] for code in columns["finding.code"]]
        self.assertEqual((451, 451, 100), tuple(map(listed.count, (b"load-type", b"load-beam-missing", b"zero-load"))))
        self.assertEqual([*range(2, 453), *range(2402, 2853), *range(4402, 4502)], columns["finding.line"])
        self.assertLessEqual(len(self.read("structure.html")), 1_000_000 + 100 * 10)

    def test_loads_that_are_no_numbers_stand_once(self):
        self.put("structure.sat", sample("frame")[0])
        self.put("load.sat", b"2\n1 5 11 0 nan 0 0\n2 1 1 0 nan 0.5\n")
        self.view_well()
        columns = self.columns()
        self.assertEqual(([1], [1]), (columns["nodalLoad.standing"], columns["beamLoad.standing"]))

    def test_writes_a_plan_for_each_story(self):
        self.put_tower()
        folder = os.path.join("new", "out")
        out = self.view_well("-o", "page.html", "--plans", folder)
        self.assertEqual(f"Page   page.html\nPlans  8 in {folder}\n10 losses, 0 doubts, 1 note\n", out)
        plans = [os.path.join(folder, f"story-{key}.svg") for key in range(1, 9)]
        self.assertEqual({"page.html", *plans}, self.new_files())
        for plan in plans:
            drawing = xml.etree.ElementTree.fromstring(self.read(plan))
            self.assertEqual(SVG + "svg", drawing.tag)
        self.assertEqual([self.read(plan) for plan in plans], self.columns("page.html")["plan.svg"])

    def test_writes_page_and_plans_into_a_new_folder(self):
        self.put_frame()
        self.view_well("-o", "out/tower.html", "--plans", "out")
        self.assertEqual({os.path.join("out", "tower.html"), os.path.join("out", "story-1.svg")}, self.new_files())

    def test_a_failure_takes_new_folders_away_again(self):
        self.put_frame()
        ended = self.view("-o", "nowhere/page.html", "--plans", "a/b/c", "structure.sat", "load.sat")
        self.assertEqual(4, ended.code)
        self.assertFalse((self.folder / "a").exists())

    def test_writes_the_same_bytes_again(self):
        self.put_tower()
        self.view_well()
        first = self.read("structure.html")
        self.view_well()
        self.assertEqual(first, self.read("structure.html"))

    def test_a_page_is_at_most_a_megabyte_and_100_bytes_an_element(self):
        for put in (self.put_frame, self.put_tower):
            put()
            self.view_well()
            elements = [number for kind in ("frame", "planar") for number in self.columns()[kind + ".number"]]
            self.assertLessEqual(len(self.read("structure.html")), 1_000_000 + 100 * len(elements))

    @needs_posix("names with these bytes")
    def test_names_are_data_whatever_they_hold(self):
        hostile = [b"</script><script>alert(1)</script>".replace(b"/", b"\\"), b"<!--", b'"\'&', b"\xff\xfe\x80",
                   "塔楼".encode(), b"@PICTURE@"]
        structure, load = sample("frame")
        for name in hostile:
            with self.subTest(name):
                (self.folder / "plain.html").unlink(missing_ok=True)
                path = os.path.join(os.fsencode(self.folder), name)
                for ending, content in ((b".s", structure), (b".l", load)):
                    with open(path + ending, "wb") as file:
                        file.write(content)
                ended = self.view("-o", "plain.html", "--plans", "plans", name + b".s", name + b".l")
                self.assertEqual(0, ended.code, ended.err)
                self.assertEqual([name + b".s", name + b".l"], self.columns("plain.html")["file.names"])
                xml.etree.ElementTree.fromstring(self.read("plans/story-1.svg"))

    def test_a_failure_leaves_everything_as_it_was(self):
        self.put("structure.sat", b"1 3 4 0 0\n")
        self.put("load.sat", b"")
        (self.folder / "structure.html").write_bytes(b"old")
        ended = self.view("--plans", "plans", "structure.sat", "load.sat")
        self.assertEqual(1, ended.code)
        self.assertIn("structure.sat:1: error: the file ends here", ended.err)
        self.assertEqual(b"old", self.read("structure.html"))
        self.assertFalse((self.folder / "plans").exists())

    def test_an_input_is_never_written_over(self):
        self.put_frame("structure.html", "load.sat")
        ended = self.view("structure.html", "load.sat")
        self.assertEqual((4, ""), (ended.code, ended.out))
        self.assertEqual("satwecvt: structure.html could not be written: it is an input, or another output\n", ended.err)

    def test_a_page_and_a_plan_are_two_files(self):
        self.put_frame()
        ended = self.view("-o", "story-1.svg", "--plans", ".", "structure.sat", "load.sat")
        self.assertEqual((4, ""), (ended.code, ended.out))
        self.assertEqual(set(), self.new_files())

    def test_a_file_in_the_place_of_the_folder_is_told(self):
        self.put_frame()
        (self.folder / "plans").write_bytes(b"a file")
        ended = self.view("--plans", "plans", "structure.sat", "load.sat")
        self.assertEqual(4, ended.code)
        self.assertRegex(ended.err, r"\Asatwecvt: plans could not be written: .+\n\Z")
        self.assertEqual({"plans"}, self.new_files())

    @needs_posix("/dev/stdout")
    def test_a_page_on_stdout_has_nothing_beside_it(self):
        self.put_frame()
        ended = self.view("-o", "/dev/stdout", "structure.sat", "load.sat")
        self.assertEqual((0, ""), (ended.code, ended.err))
        self.assertTrue(ended.out.startswith("<!DOCTYPE html>"), ended.out[:80])
        self.assertTrue(ended.out.rstrip().endswith("</html>"), ended.out[-80:])

    @needs_posix("/dev/full")
    def test_a_full_disk_is_told(self):
        self.put_frame()
        ended = self.view("-o", "/dev/full", "structure.sat", "load.sat")
        self.assertEqual((4, ""), (ended.code, ended.out))
        self.assertEqual("satwecvt: /dev/full could not be written: No space left on device\n", ended.err)


def many_stories(count):
    """A structure file of so many stories with nothing in them."""
    story = b"%d %d 0\n1\n0 30 30 30 30 0\n0 0 0 0 0 0\n"
    return (b"%d 1 1\n1 1 6 0 300 600 0 0 0 0\n0 0 0 0\n1 1 0 0 0 0\n" % count +
            b"".join(story % (key, key) for key in range(1, count + 1)))


@unittest.skipIf(IS_WINE, "signals and pipes: Wine gives neither")
class Interrupted(ProgramTest):
    def put_stories(self, count):
        self.put("structure.sat", many_stories(count))
        self.put("load.sat", b"0\n" * count)
        return ["view", "--plans", "plans", "structure.sat", "load.sat"]

    def test_ctrl_c_while_plans_are_written_leaves_nothing(self):
        arguments = self.put_stories(3000)
        with subprocess.Popen([*PROGRAM, *arguments], cwd=self.folder, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, text=True) as view:
            plans = self.folder / "plans"
            while not plans.exists() or sum(1 for _ in plans.iterdir()) < 5:
                self.assertIsNone(view.poll())
            view.send_signal(signal.SIGINT)
            out, err = view.communicate(timeout=SECONDS)
        self.assertEqual((130, "", "satwecvt: cancelled; nothing was written\n"), (view.returncode, out, err))
        self.assertEqual(set(), self.new_files())
        self.assertFalse(plans.exists())

    def test_a_reader_of_the_page_that_goes_away_leaves_nothing(self):
        self.put_frame()
        reader, writer = os.pipe()
        os.close(reader)
        with os.fdopen(writer, "wb") as out:
            ended = self.run_program("view", "-o", "/dev/stdout", "--plans", "plans", "structure.sat", "load.sat",
                                     stdout=out)
        self.assertEqual((4, "satwecvt: /dev/stdout could not be written: Broken pipe\n"), (ended.code, ended.err))
        self.assertEqual(set(), self.new_files())

    def test_a_thousand_stories_have_a_thousand_plans(self):
        ended = self.run_program(*self.put_stories(1000))
        self.assertEqual((0, ""), (ended.code, ended.err))
        names = sorted(path.name for path in (self.folder / "plans").iterdir())
        self.assertEqual([f"story-{key:04}.svg" for key in range(1, 1001)], names)


class NothingToShow(ProgramTest):
    def test_a_building_without_members_has_a_page(self):
        self.put("structure.sat", b"1 1 1\n1 1 6 0 300 600 0 0 0 0\n0 0 0 0\n1 1 0 0 0 0\n1 1 0\n1\n0 30 30 30 30 0\n"
                                  b"0 0 0 0 0 0\n")
        self.put("load.sat", b"0\n")
        ended = self.run_program("view", "--plans", ".", "structure.sat", "load.sat")
        self.assertEqual((0, ""), (ended.code, ended.err))
        columns = columns_of(self.read("structure.html"))
        self.assertEqual(([1], [], []), (columns["node.number"], columns["frame.number"], columns["planar.number"]))


if __name__ == "__main__":
    unittest.main()
