"""Reading of the structure file and of the load file into the model.

Three ways out of a read that goes wrong: ReadStopped (end of file, cancel, a line or a wall that does not
fit), InvalidArgument (a line with too few numbers), CannotOpen (told by a message box).
"""

from c_values import InvalidArgument, at, truncate, wrap
from line_tokens import check_line, parse_numbers
from physical_lines import CannotOpen, LineFile, text_of_piece
from records import Load, Member, Node, Plate, Section, Story, Wall


class ReadStopped(Exception):
    """Reading ends here without a message."""


class Reader:
    def __init__(self, model, progress):
        self.model = model
        self.progress = progress
        self.file = None
        self.pending = []
        self.memberSeq = 0
        self.lineCounter = 0
        self.cancelled = 0
        self.positionBefore = 0

    # Both files

    def read_structure_file(self, structurePath, loadPath):
        """1 for success, 0 for failure; reads the load file too."""
        try:
            return self._read_both(structurePath, loadPath)
        except ReadStopped:
            return 0

    def _read_both(self, structurePath, loadPath):
        self.memberSeq = 1
        try:
            self.file = LineFile(structurePath)
        except CannotOpen:
            self.progress.show_message("Can't open structure input file!")
            return 0
        self.read_header()
        self.read_sections()
        self.read_model_nodes()
        for _ in range(self.model.storyCount):
            self.read_story()
        try:
            self.file = LineFile(loadPath)
        except CannotOpen:
            self.progress.show_message("Can't open load file!")
            return 0
        if self.model.storyCount >= 1:
            self.read_loads()
        return 1

    def read_data_line(self):
        """The upper-cased text of the next data line."""
        while True:
            if self.progress.step_line(self.lineCounter) == 0:
                self.cancelled = 1
                raise ReadStopped()
            self.lineCounter = wrap(self.lineCounter + 1)
            self.positionBefore = self.file.position
            piece = self.file.read_piece()
            if piece is None:
                raise ReadStopped()
            accepted, text = check_line(text_of_piece(piece))
            if accepted == 1:
                return text

    def read_pending(self, count):
        """Fill the pending lines; a count below 1 is never reached and takes the rest of the file."""
        self.pending = []
        while True:
            self.pending.append(self.read_data_line())
            if len(self.pending) == count:
                return

    # Structure file, from its header to its stories

    def read_header(self):
        numbers = numbers_of(self.read_data_line())
        fields = ["storyCount", "sectionCount", "nodeCount", "headerCount4", "headerCount5"]
        for index in range(min(5, len(numbers))):
            setattr(self.model, fields[index], truncate(numbers[index]))

    def read_sections(self):
        self.read_pending(2 * self.model.sectionCount)
        for k in range(self.model.sectionCount):
            first = numbers_of(at(self.pending, 2 * k))
            section = Section()
            key = integer(first, 1)
            section.kind = integer(first, 2)
            section.param1 = integer(first, 3)
            section.param2 = integer(first, 4)
            for index in range(6):
                section.dims[index] = real(first, 5 + index)
            second = numbers_of(at(self.pending, 2 * k + 1))
            for index in range(4):
                section.dims[6 + index] = real(second, 1 + index)
            self.model.inputSections[key] = section

    def read_model_nodes(self):
        self.read_pending(self.model.nodeCount)
        self.parse_nodes(self.model.nodeCount, self.model.nodes)

    def parse_nodes(self, count, nodes):
        for index in range(count):
            numbers = numbers_of(at(self.pending, index))
            node = Node()
            key = integer(numbers, 1)
            node.number = integer(numbers, 2)
            node.flag = integer(numbers, 3)
            node.x = real(numbers, 4)
            node.y = real(numbers, 5)
            node.z = real(numbers, 6)
            nodes[key] = node

    def read_story(self):
        story = Story()
        key = self.read_story_line_1(story)
        self.read_story_line_2(story)
        self.read_story_line_3(story)
        self.read_story_line_4(story)
        if story.nodeCount != 0:
            self.read_pending(story.nodeCount)
        self.parse_nodes(story.nodeCount, story.nodes)
        self.read_member_lines(story.beamCount)
        self.parse_beams(story)
        self.read_member_lines(story.columnCount)
        self.parse_columns(story)
        if story.braceCount != 0:
            self.read_pending(story.braceCount)
        self.parse_braces(story)
        self.read_walls(story)
        self.read_plate_lines(story.plateCount)
        self.parse_plates(story)
        self.model.stories[key] = story

    def read_story_line_1(self, story):
        numbers = numbers_of(self.read_data_line())
        if len(numbers) >= 2:
            story.storyNo = truncate(numbers[1])
        if len(numbers) >= 3:
            story.storyKind = truncate(numbers[2])
        return truncate(numbers[0])

    def read_story_line_2(self, story):
        for number in numbers_of(self.read_data_line()):
            story.storyList.append(truncate(number))

    def read_story_line_3(self, story):
        """Repeats of the line are dropped; the first line that differs is read again by the next read."""
        text = self.read_data_line()
        while self.read_data_line() == text:
            pass
        self.file.position = self.positionBefore
        numbers = numbers_of(text)
        for index in range(min(5, len(numbers))):
            story.storyValues[index] = numbers[index]
        if len(numbers) >= 6:
            story.storyExtra = truncate(numbers[5])

    def read_story_line_4(self, story):
        numbers = numbers_of(self.read_data_line())
        fields = ["nodeCount", "beamCount", "columnCount", "braceCount", "wallCount", "plateCount"]
        for index in range(min(6, len(numbers))):
            setattr(story, fields[index], truncate(numbers[index]))

    # Members of a story

    def next_seq(self, step):
        self.memberSeq = wrap(self.memberSeq + step)

    def read_member_lines(self, count):
        """Lines of beams or columns; a negative end node asks for an extra line."""
        self.pending = []
        members = 0
        if count == 0:
            return
        while True:
            text = self.read_data_line()
            self.pending.append(text)
            numbers = numbers_of(text)
            at(numbers, 2)
            if integer(numbers, 2) < 0 or integer(numbers, 3) < 0:
                self.pending.append(self.read_data_line())
            members = members + 1
            if members == count:
                return

    def parse_beams(self, story):
        extraLines = 0
        for index in range(story.beamCount):
            numbers = numbers_of(at(self.pending, index + extraLines))
            beam = Member()
            key = integer(numbers, 1)
            beam.seq = self.memberSeq
            beam.nodeI = integer(numbers, 2)
            beam.nodeJ = integer(numbers, 3)
            beam.c3 = integer(numbers, 4)
            beam.c4 = integer(numbers, 5)
            beam.d5 = real(numbers, 6)
            beam.d6 = real(numbers, 7)
            if beam.nodeI < 0 or beam.nodeJ < 0:
                extraLines = extraLines + 1
                extra = numbers_of(at(self.pending, index + extraLines))
                beam.hasExtra = 1
                for element in range(6):
                    beam.extra[element] = real(extra, 1 + element)
            story.beams[key] = beam
            self.next_seq(1)

    def parse_columns(self, story):
        """A column with an extra line takes two numbers: the second is for its other piece."""
        extraLines = 0
        for index in range(story.columnCount):
            key, column = self.parse_column_or_brace(at(self.pending, index + extraLines))
            if column.nodeI < 0 or column.nodeJ < 0:
                extraLines = extraLines + 1
                extra = numbers_of(at(self.pending, index + extraLines))
                self.next_seq(1)
                column.hasExtra = 1
                column.extraValue = integer(extra, 2)
            story.columns[key] = column
            self.next_seq(1)

    def parse_braces(self, story):
        for index in range(story.braceCount):
            key, brace = self.parse_column_or_brace(at(self.pending, index))
            story.braces[key] = brace
            self.next_seq(1)

    def parse_column_or_brace(self, text):
        numbers = numbers_of(text)
        member = Member()
        key = integer(numbers, 1)
        member.seq = self.memberSeq
        member.nodeI = integer(numbers, 2)
        member.nodeJ = integer(numbers, 3)
        member.c3 = integer(numbers, 4)
        member.c4 = integer(numbers, 5)
        member.c5 = integer(numbers, 6)
        member.d6 = real(numbers, 7)
        return key, member

    def read_walls(self, story):
        walls = 0
        if story.wallCount == 0:
            return
        while True:
            self.read_wall(story)
            walls = walls + 1
            if walls == story.wallCount:
                return

    def read_wall(self, story):
        numbers = numbers_of(self.read_data_line())
        wall = Wall()
        key = integer(numbers, 1)
        wall.firstCount = integer(numbers, 2)
        wall.secondCount = integer(numbers, 3)
        wall.wallCode = integer(numbers, 4)
        for index in range(6):
            wall.wallValues[index] = real(numbers, 5 + index)
        points = self.read_wall_points(2 * (wall.firstCount + wall.secondCount))
        distribute_wall_points(wall, points)
        wall.seq = self.memberSeq
        story.walls[key] = wall
        self.next_seq(1)

    def read_wall_points(self, required):
        points = numbers_of(self.read_data_line())
        if len(points) < required:
            points = points + numbers_of(self.read_data_line())
        if len(points) != required:
            raise ReadStopped()
        return points

    def read_plate_lines(self, count):
        """One logical line per plate: physical lines joined as they stand until it has its vertices."""
        self.pending = []
        plates = 0
        if count == 0:
            return
        while True:
            text = self.read_data_line()
            numbers = numbers_of(text)
            vertexCount = integer(numbers, 2)
            while len(numbers) - 4 < vertexCount:
                text = text + self.read_data_line()
                numbers = numbers_of(text)
            self.pending.append(text)
            plates = plates + 1
            if plates == count:
                return

    def parse_plates(self, story):
        for index in range(story.plateCount):
            numbers = numbers_of(at(self.pending, index))
            plate = Plate()
            key = integer(numbers, 1)
            plate.seq = self.memberSeq
            plate.vertexCount = integer(numbers, 2)
            real(numbers, 3)
            plate.thickness = real(numbers, 4)
            for number in numbers[4:]:
                plate.vertices.append(truncate(number))
            story.plates[key] = plate
            self.next_seq(plate.vertexCount - 2)

    # Load file

    def read_loads(self):
        """Whatever stops the load file, the loads read so far stand."""
        try:
            for storyId in range(1, self.model.storyCount + 1):
                numbers = numbers_of(self.read_data_line())
                self.read_story_loads(storyId, truncate(numbers[0]))
        except ReadStopped:
            pass

    def read_story_loads(self, storyId, count):
        for _ in range(count):
            load = Load()
            numbers = numbers_of(self.read_data_line())
            load.storyId = storyId
            if len(numbers) >= 2:
                load.memberId = truncate(numbers[1])
            if len(numbers) >= 3:
                load.loadType = truncate(numbers[2])
            if len(numbers) >= 4:
                load.loadCase = truncate(numbers[3])
            for index in range(6):
                if len(numbers) >= 5 + index:
                    load.value[index] = numbers[4 + index]
            self.model.loads[len(self.model.loads) + 1] = load


def numbers_of(text):
    """The numbers of a line; a line without any stops the read."""
    numbers = parse_numbers(text)
    if len(numbers) == 0:
        raise ReadStopped()
    return numbers


def real(numbers, column):
    """The number in a column, counted from 1."""
    return at(numbers, column - 1)


def integer(numbers, column):
    return truncate(real(numbers, column))


def distribute_wall_points(wall, points):
    """The second pair of lists starts where firstListB does."""
    first = wall.firstCount
    second = wall.secondCount
    if first < 0 or second < 0:
        raise InvalidArgument("negative node count of a wall")
    for k in range(first):
        wall.firstListA.append(truncate(at(points, k)))
        wall.firstListB.append(truncate(at(points, first + k)))
    for k in range(second):
        wall.secondListA.append(truncate(at(points, first + k)))
        wall.secondListB.append(truncate(at(points, first + second + k)))
