"""Writes a building as the two files, and sets the line of every record."""


class Sheet:
    """A file that grows by data lines, with what counts nowhere between them."""

    def __init__(self, dressing):
        self.dressing = dressing
        self.texts = []

    def put(self, *values, exact=False):
        """Returns the number of the line."""
        return self.put_text(self.dressing.line(values, exact))

    def put_open(self, *values, least=1):
        """A line whose missing numbers are 0."""
        kept = len(values)
        while kept > least and values[kept - 1] == 0 and self.dressing.may_leave_out():
            kept -= 1
        return self.put(*values[:kept], exact=kept < len(values))

    def put_text(self, text):
        self.texts += self.dressing.between()
        self.texts.append(text)
        return len(self.texts)

    def content(self):
        return "".join(text + self.dressing.line_end() for text in self.texts).encode("ascii")


def structure_file(building, dressing):
    sheet = Sheet(dressing)
    sheet.put_open(len(building.stories), len(building.sections), len(building.supports), 0, 0, least=3)
    for section in building.sections:
        section.line = sheet.put(section.key, section.kind, section.mark, 0, *section.dimensions[:6])
        sheet.put(*section.dimensions[6:])
    put_nodes(sheet, building.supports)
    for story in building.stories:
        put_story(sheet, story)
    return sheet.content()


def put_nodes(sheet, nodes):
    for node in nodes:
        node.line = sheet.put(node.key, node.number, 0, node.x, node.y, node.z)


def put_story(sheet, story):
    story.line = sheet.put_open(story.key, story.number, 0, least=2)
    sheet.put(1, 2, 3)
    third = sheet.dressing.line((3600, *story.grades, story.steel))
    for text in [third, *sheet.dressing.repeats(third)]:
        sheet.put_text(text)
    members = (story.nodes, story.beams, story.columns, story.braces, story.walls, story.slabs)
    sheet.put_open(*(len(records) for records in members))
    put_nodes(sheet, story.nodes)
    for beam in story.beams:
        put_beam(sheet, beam)
    for column in story.columns:
        put_column(sheet, column)
    for brace in story.braces:
        brace.line = put_frame(sheet, brace, brace.node_i.number, brace.node_j.number)
    for wall in story.walls:
        put_wall(sheet, wall)
    for slab in story.slabs:
        put_slab(sheet, slab)


def put_frame(sheet, frame, number_i, number_j):
    return sheet.put(frame.key, number_i, number_j, frame.section.key, frame.hinge, 0, frame.angle)


def put_beam(sheet, beam):
    sign_i = -1 if any(beam.offsets[:3]) or beam.offsets and not any(beam.offsets) else 1
    sign_j = -1 if any(beam.offsets[3:]) else 1
    beam.line = put_frame(sheet, beam, sign_i * beam.node_i.number, sign_j * beam.node_j.number)
    if beam.offsets:
        sheet.put(*beam.offsets)


def put_column(sheet, column):
    sign = -1 if column.split else 1
    column.line = put_frame(sheet, column, column.node_i.number, sign * column.node_j.number)
    if column.split:
        sheet.put(0, column.split.number)


def put_wall(sheet, wall):
    rows = [node.number for node in (*wall.upper, *wall.lower, *wall.further)]
    wall.line = sheet.put(wall.key, len(wall.upper), len(wall.further) // 2, 0, 0, wall.thickness, *wall.opening)
    if len(rows) > 20 or sheet.dressing.may_leave_out():
        sheet.put(*rows[:len(rows) // 2], exact=True)
        sheet.put(*rows[len(rows) // 2:], exact=True)
    else:
        sheet.put(*rows, exact=True)


def put_slab(sheet, slab):
    numbers = [node.number for node in slab.corners]
    first, *others = sheet.dressing.slab([slab.key, len(numbers), 0, slab.thickness, *numbers])
    slab.line = sheet.put_text(first)
    sheet.texts += others


def load_file(building, dressing):
    """The blocks stand in the order of the keys, whatever the order of the stories."""
    sheet = Sheet(dressing)
    for key, loads in sorted(building.loads.items()):
        building.count_lines[key] = sheet.put(len(loads))
        for load in loads:
            target = load.target.number if load.kind in (11, 12) else load.target.key
            load.line = sheet.put_open(load.key, target, load.kind, load.case, *load.values, least=4)
    return sheet.content()
