"""Writing of the model text file, block by block, and of the message log."""

import block_headers
from c_values import absolute, at, divide, formatted, smaller_of_one_and, truncate, wrap
from geometry import angle_deg, distance, normalize
from output_files import FileError, OutputFile, output_path
from records import Node
from section_lines import section_lines


class Writer:
    def __init__(self, model, progress):
        self.model = model
        self.progress = progress
        self.modelFile = None
        self.messageFile = None
        self.writtenNodes = {}
        self.elementsWritten = 0
        self.edgeDirections = [[0.0, 0.0, 0.0], [0.0, 0.0, 0.0]]

    def write_model_file(self, structurePath, loadPath):
        """1 also after a file error, which a message box tells; an invalid-argument failure passes through."""
        inputPaths = [structurePath, loadPath]
        self.modelFile = OutputFile(output_path(structurePath), inputPaths)
        self.messageFile = OutputFile("satwecvt.msg", inputPaths)
        try:
            try:
                self.messageFile.open()
                self.modelFile.open()
                if self.modelFile.openError is not None:
                    raise self.modelFile.openError
                self.write_model_text()
            finally:
                self.modelFile.close()
                self.messageFile.close()
        except FileError as error:
            self.progress.show_message(str(error))
        return 1

    def out(self, pattern, *arguments):
        self.modelFile.write(formatted(pattern, arguments))

    def log(self, pattern, *arguments):
        self.messageFile.write(formatted(pattern, arguments))

    # Frame

    def write_model_text(self):
        self.out("*VERSION\n")
        self.out("  5.8.0\n\n")
        self.progress.set_stage_text("Write Data File : Node")
        self.write_nodes()
        self.progress.set_stage_text("Write Data File : Element")
        self.write_elements()
        self.progress.set_stage_text("Write Data File : Material")
        self.write_materials()
        self.progress.set_stage_text("Write Data File : Section")
        self.write_sections()
        self.progress.set_stage_text("Write Data File : Thickness")
        self.write_thicknesses()
        self.progress.set_stage_text("Write Data File : Support")
        self.write_supports()
        self.progress.set_stage_text("Write Data File : Beam End Release")
        self.write_releases()
        self.progress.set_stage_text("Write Data File : Beam End Offset")
        self.write_offsets()
        self.progress.set_stage_text("Write Data File : Load Case")
        self.write_load_cases()
        self.progress.set_stage_text("Write File : Static Load")
        self.write_static_loads()

    def write_load_cases(self):
        self.out("*STLDCASE    ; Static Load Cases\n")
        self.out("; LCNAME, LCTYPE, DESC\n")
        self.out("  %s, D, %s\n", "DeadLoad", "")
        self.out("  %s, L, %s\n", "LiveLoad", "")
        self.out("\n")

    def write_static_loads(self):
        if len(self.model.loads) == 0:
            return
        for selector, name in [(0, "DeadLoad"), (1, "LiveLoad")]:
            self.out("*USE-STLD, %s\n\n", name)
            self.write_nodal_loads(selector)
            self.write_beam_loads(selector)
            self.write_pressure_loads(selector)
            self.out("; End of data for load case [%s] -------------------------\n\n", name)
        self.out("\n")

    # Nodes

    def write_nodes(self):
        total = self.model.nodeCount
        for story in self.model.stories.values():
            total = total + story.nodeCount
        if total == 0:
            return
        self.writtenNodes = {}
        self.out(block_headers.NODE)
        self.write_node_lines(self.model.nodes, self.model.nodeCount)
        storyKeys = sorted(self.model.stories)
        for s in range(self.model.storyCount):
            story = self.model.stories[at(storyKeys, s)]
            self.write_node_lines(story.nodes, story.nodeCount)
        self.out("\n")

    def write_node_lines(self, nodes, count):
        keys = sorted(nodes)
        for i in range(count):
            node = nodes[at(keys, i)]
            self.out("  %d, %g, %g, %g\n", node.number, node.x, node.y, node.z)
            self.writtenNodes[node.number] = node

    # Elements

    def write_elements(self):
        total = 0
        for story in self.model.stories.values():
            total = total + story.beamCount + story.columnCount + story.braceCount
            total = total + story.wallCount + story.plateCount
        if total == 0:
            return
        self.elementsWritten = 1
        self.out(block_headers.ELEMENT)
        storyKeys = sorted(self.model.stories)
        for s in range(self.model.storyCount):
            story = self.model.stories[at(storyKeys, s)]
            self.write_beams(story)
            self.write_columns(story)
            self.write_braces(story)
            self.write_walls(story)
            self.write_plates(story)
        self.out("\n")

    def frame_section(self, member):
        """(kind, param1) of the member's section; zeros for a section that is not defined."""
        section = self.model.inputSections.get(member.c3)
        if section is None:
            return 0, 0
        return section.kind, section.param1

    def beam_or_column_material(self, story, member, storyValue):
        kind, param1 = self.frame_section(member)
        if 12 <= kind <= 15:
            return self.model.find_or_add_material(2, truncate(storyValue), story.storyExtra)
        if param1 == 5:
            return self.model.find_or_add_material(1, story.storyExtra, 0)
        return self.model.find_or_add_material(0, truncate(storyValue), 0)

    def brace_material(self, story, member, storyValue):
        kind, param1 = self.frame_section(member)
        if 12 <= kind <= 15:
            return self.model.find_or_add_material(2, truncate(storyValue), story.storyExtra)
        if param1 == 6:
            return self.model.find_or_add_material(0, truncate(storyValue), 0)
        return self.model.find_or_add_material(1, story.storyExtra, 0)

    def write_frame_line(self, element, material, section, first, second, angle):
        pattern = "  %d, %s, %d, %d, %d, %d, %g\n"
        self.out(pattern, element, "BEAM", material, section, absolute(first), absolute(second), angle)

    def write_beams(self, story):
        keys = sorted(story.beams)
        for i in range(story.beamCount):
            beam = story.beams[at(keys, i)]
            value = story.storyValues[1]
            material = self.beam_or_column_material(story, beam, value)
            section = self.model.find_or_add_section(beam.c3, truncate(value), story.storyExtra)
            digit = last_digit(beam.c4)
            if digit > 1:
                self.model.releases.append((beam.seq, digit))
            if beam.hasExtra == 1:
                self.model.offsets.append((beam.seq, beam.extra))
            self.write_frame_line(beam.seq, material, section, beam.nodeI, beam.nodeJ, beam.d6)

    def write_columns(self, story):
        keys = sorted(story.columns)
        for i in range(story.columnCount):
            column = story.columns[at(keys, i)]
            value = story.storyValues[2]
            material = self.beam_or_column_material(story, column, value)
            section = self.model.find_or_add_section(column.c3, truncate(value), story.storyExtra)
            self.add_column_releases(column)
            if column.hasExtra == 0:
                self.write_frame_line(column.seq, material, section, column.nodeI, column.nodeJ, column.d6)
                continue
            middle = column.extraValue
            self.write_frame_line(column.seq, material, section, column.nodeI, middle, column.d6)
            self.write_frame_line(wrap(column.seq + 1), material, section, middle, column.nodeJ, column.d6)

    def add_column_releases(self, column):
        """On a split column each end's release moves to the piece that owns that end."""
        digit = last_digit(column.c4)
        releases = self.model.releases
        if digit <= 1:
            return
        if column.hasExtra == 0:
            releases.append((column.seq, digit))
        elif digit == 2:
            releases.append((column.seq, 2))
        elif digit == 3:
            releases.append((wrap(column.seq + 1), 3))
        elif digit == 4:
            releases.append((column.seq, 2))
            releases.append((wrap(column.seq + 1), 3))

    def write_braces(self, story):
        keys = sorted(story.braces)
        for i in range(story.braceCount):
            brace = story.braces[at(keys, i)]
            value = story.storyValues[1]
            material = self.brace_material(story, brace, value)
            section = self.model.find_or_add_section(brace.c3, truncate(value), story.storyExtra)
            if brace.c4 > 1:
                self.model.releases.append((brace.seq, brace.c4))
            self.write_frame_line(brace.seq, material, section, brace.nodeI, brace.nodeJ, brace.d6)

    # Walls and plates

    def write_walls(self, story):
        keys = sorted(story.walls)
        for i in range(story.wallCount):
            key = at(keys, i)
            self.write_wall(story, key, story.walls[key])

    def write_wall(self, story, key, wall):
        thickness = self.model.find_or_add_thickness(wall.wallValues[1])
        k = wall.firstCount - 1
        lastA = at(wall.firstListA, k)
        lastB = at(wall.firstListB, k)
        firstA = at(wall.firstListA, 0)
        firstB = at(wall.firstListB, 0)
        if not self.is_upright(lastA, lastB) or not self.is_upright(firstA, firstB):
            self.log("The wall(story id:%d,wall id:%d) has invalid shape\n", story.storyNo, key)
            return
        material = self.model.find_or_add_material(0, truncate(story.storyValues[3]), 0)
        pattern = "  %d, %s, %d, %d, %d, %d, %d, %d, 1, %d\n"
        corners = (firstB, lastB, lastA, firstA)
        self.out(pattern, wall.seq, "WALL", material, thickness, *corners, self.elementsWritten)
        for value in wall.wallValues[2:]:
            if value != 0.0:
                self.log("Opening of the wall(story id:%d,wall id:%d) is not converted\n", story.storyNo, key)
                break

    def is_upright(self, first, second):
        """Both nodes are written, and stand one above the other in plan."""
        if first not in self.writtenNodes or second not in self.writtenNodes:
            return False
        a = self.writtenNodes[first]
        b = self.writtenNodes[second]
        return not (abs(a.x - b.x) > 1e-6 or abs(a.y - b.y) > 1e-6)

    def write_plates(self, story):
        keys = sorted(story.plates)
        for i in range(story.plateCount):
            key = at(keys, i)
            self.write_plate(story, key, story.plates[key])

    def write_plate(self, story, key, plate):
        reported = False
        for t in range(1, plate.vertexCount - 1):
            corners = (at(plate.vertices, 0), at(plate.vertices, t), at(plate.vertices, t + 1))
            thickness = self.model.find_or_add_thickness(plate.thickness)
            material = self.model.find_or_add_material(0, truncate(story.storyValues[4]), 0)
            if not self.all_written(corners):
                if not reported:
                    self.log("The plate(story id:%d,plate id:%d) has invalid shape\n", story.storyNo, key)
                    reported = True
                continue
            if self.corner_angle(corners) == 0.0:
                continue
            element = wrap(plate.seq + t - 1)
            pattern = "  %d, %s, %d, %d, %d, %d, %d, 0, 1\n"
            self.out(pattern, element, "PLATE", material, thickness, *corners)

    def all_written(self, corners):
        for corner in corners:
            if corner not in self.writtenNodes:
                return False
        return True

    def corner_angle(self, corners):
        """Angle at the first corner; an edge too short leaves the direction of the triangle before."""
        start = self.writtenNodes[corners[0]].point()
        for edge in range(2):
            end = self.writtenNodes[corners[1 + edge]].point()
            vector = [end[0] - start[0], end[1] - start[1], end[2] - start[2]]
            normalize(vector, self.edgeDirections[edge])
        return angle_deg(self.edgeDirections[0], self.edgeDirections[1])

    # Materials, sections, thicknesses

    def write_materials(self):
        if len(self.model.materials) == 0:
            return
        self.out(block_headers.MATERIAL)
        composites = 1
        for index in range(len(self.model.materials)):
            material = self.model.materials[index]
            number = index + 1
            concrete = concrete_name(material.grade)
            if material.type == 0:
                self.out("  %d, CONC, %s, 0, 0, 1, GB(RC), %s\n", number, concrete, concrete)
            elif material.type == 1:
                steel = steel_name(material.grade)
                self.out("  %d, STEEL, %s, 0, 0, 1, GB(S), %s\n", number, steel, steel)
            elif material.type == 2:
                steel = steel_name(material.steelGrade)
                pattern = "  %d, SRC, SRC%d, 0, 0, 1, GB(S), %s, 1, GB(RC), %s\n"
                self.out(pattern, number, composites, steel, concrete)
                composites = composites + 1
        self.out("\n")

    def write_sections(self):
        if len(self.model.sections) == 0:
            return
        self.out(block_headers.SECTION)
        for index in range(len(self.model.sections)):
            for pattern, arguments in section_lines(index + 1, self.model.sections[index]):
                self.out(pattern, *arguments)
        self.out("\n")

    def write_thicknesses(self):
        if len(self.model.thicknesses) == 0:
            return
        self.out(block_headers.THICKNESS)
        for index in range(len(self.model.thicknesses)):
            self.out("  %d, VALUE, YES, %g, 0\n", index + 1, self.model.thicknesses[index])
        self.out("\n")

    # Supports, end releases, end offsets

    def write_supports(self):
        if self.model.nodeCount == 0:
            return
        self.out(block_headers.CONSTRAINT)
        keys = [0] * self.model.nodeCount
        for index, key in enumerate(self.model.nodes):
            at(keys, index)
            keys[index] = key
        keys.sort()
        node = Node()
        for key in keys:
            if key in self.model.nodes:
                node = self.model.nodes[key]
            self.out("  %d, %s\n", node.number, "111111")
        self.out("\n")

    def write_releases(self):
        if len(self.model.releases) == 0:
            return
        self.out(block_headers.FRAME_RLS)
        flags = {2: ("000011", "000000"), 3: ("000000", "000011"), 4: ("000011", "000011")}
        for element, code in self.model.releases:
            if code in flags:
                self.out("  %d, %s, 0, 0, 0, 0, 0, 0\n", element, flags[code][0])
                self.out("      %s, 0, 0, 0, 0, 0, 0,\n", flags[code][1])
        self.out("\n")

    def write_offsets(self):
        if len(self.model.offsets) == 0:
            return
        self.out(block_headers.OFFSET)
        for element, rgd in self.model.offsets:
            self.out("  %d, GLOBAL, %g, %g, %g, %g, %g, %g,  \n", element, *rgd)
        self.out("\n")

    # Loads

    def loads_of_case(self, selector):
        """The loads in key order: the dead ones for selector 0, all of them for selector 1."""
        chosen = []
        for key in sorted(self.model.loads):
            load = self.model.loads[key]
            if selector == 1 or load.loadCase == 0:
                chosen.append(load)
        return chosen

    def find_wall(self, load):
        story = self.model.stories.get(load.storyId)
        if story is None:
            return None
        return story.walls.get(load.memberId)

    def write_nodal_loads(self, selector):
        headerWritten = False
        for load in self.loads_of_case(selector):
            if load.loadType not in (11, 12, 21):
                continue
            if not headerWritten:
                self.out(block_headers.CONLOAD)
                headerWritten = True
            if load.loadType == 11:
                values = [0.0, 0.0, -load.value[0], load.value[1], load.value[2], 0.0]
                self.write_nodal_line(load.memberId, values)
            elif load.loadType == 12:
                forces = (load.value[1], load.value[2], -load.value[0])
                self.out("%d, %g, %g, %g, 0, 0, 0\n", load.memberId, *forces)
            else:
                self.write_wall_force(load)
        self.out("\n")

    def write_nodal_line(self, node, values):
        self.out("%d, %g, %g, %g, %g, %g, %g\n", node, *values)

    def write_wall_force(self, load):
        """A force on a wall becomes two forces at the ends of its first node row."""
        wall = self.find_wall(load)
        row = []
        if wall is not None:
            row = wall.firstListA
        first = at(row, 0)
        last = at(row, wall.firstCount - 1)
        if first not in self.writtenNodes or last not in self.writtenNodes:
            return
        length = distance(self.writtenNodes[first].point(), self.writtenNodes[last].point())
        force = load.value[0]
        a = load.value[1]
        firstForce = -divide((length - a) * force, length)
        lastForce = -divide(force * a, length)
        self.write_nodal_line(first, [0.0, 0.0, firstForce, 0.0, 0.0, 0.0])
        self.write_nodal_line(last, [0.0, 0.0, lastForce, 0.0, 0.0, 0.0])

    def write_beam_loads(self, selector):
        headerWritten = False
        for load in self.loads_of_case(selector):
            if load.loadType in (11, 12, 21, 22, 31):
                continue
            if not headerWritten:
                self.out(block_headers.BEAMLOAD)
                headerWritten = True
            self.write_beam_load(load)
        self.out("\n")

    def write_beam_load(self, load):
        story = self.model.stories.get(load.storyId)
        if story is None:
            return
        beam = story.beams.get(load.memberId)
        if beam is None:
            return
        nodeI = self.writtenNodes.get(absolute(beam.nodeI))
        nodeJ = self.writtenNodes.get(absolute(beam.nodeJ))
        if nodeI is None or nodeJ is None:
            return
        length = distance(nodeI.point(), nodeJ.point())
        value = load.value
        if load.loadType == 1:
            values = [fraction(value[1], length), -value[0]]
            self.out("%d, BEAM, CONLOAD, GZ, NO, %g, %g, 0, 0, 0, 0, 0, 0\n", beam.seq, *values)
        elif load.loadType == 2:
            values = [fraction(value[2], length), -value[0], fraction(value[3], length), -value[1]]
            self.out("%d, BEAM, UNILOAD, GZ, NO, %g, %g, %g, %g, 0, 0, 0, 0\n", beam.seq, *values)
        elif load.loadType == 3:
            peak = value[2] + value[1]
            end = value[2] + (value[2] + value[1])
            values = [fraction(value[1], length), 0.0, fraction(peak, length), -value[0], fraction(end, length), 0.0]
            self.out("%d, BEAM, UNILOAD, GZ, NO, %g, %g, %g, %g, %g, %g, 0, 0\n", beam.seq, *values)
        elif load.loadType == 4:
            self.write_trapezoid(load, beam.seq, fraction(value[1], length))

    def write_trapezoid(self, load, element, c):
        intensity = load.value[0]
        if abs(intensity) < 1e-5:
            pattern = "Beam load value '0'(story id:%d,beam id:%d) is not converted\n"
            self.log(pattern, load.storyId, load.memberId)
        elif c > 0.5 or abs(c - 0.5) < 0.001:
            self.out("%d, BEAM, UNILOAD, GZ, NO, 0, 0, 0.5, %g, 1, 0, 0, 0\n", element, -intensity)
        else:
            values = [c, -intensity, smaller_of_one_and(1.0 - c), -intensity]
            self.out("%d, BEAM, UNILOAD, GZ, NO, 0, 0, %g, %g, %g, %g, 1, 0\n", element, *values)

    def write_pressure_loads(self, selector):
        headerWritten = False
        for load in self.loads_of_case(selector):
            if load.loadType != 22:
                continue
            wall = self.find_wall(load)
            if wall is None:
                continue
            if not headerWritten:
                self.out(block_headers.PRESSURE)
                headerWritten = True
            self.out("%d, PRES, PLATE, EDGE, 3, GZ, 0, 0, 0, %g, 0, 0,\n", wall.seq, -load.value[0])
        self.out("\n")


def fraction(position, length):
    """A distance along a beam as a part of its length, capped at 1."""
    return smaller_of_one_and(divide(position, length))


def last_digit(code):
    return int(str(code)[-1])


def concrete_name(grade):
    if grade == 0:
        return "C30"
    return "C%d" % grade


def steel_name(code):
    return {3: "Grade3", 15: "15MnV", 16: "16Mn"}.get(code, "Grade3")
