"""The frames of a building: columns, and the beams of its floors."""

from building.floors import BAY, point_on

def add_columns(skeleton, bare):
    """`bare` are the crossings where walls carry alone, by floor. Now and then a column ends on the beams that cross
    under it, where the hall below has none."""
    random, floors = skeleton.random, skeleton.floors
    for floor in range(1, skeleton.count + 1):
        for crossing in floors.crossings(floor):
            carried = crossing in bare.get(floor, ())
            if not carried and not (random.random() < 0.03 and may_be_left_out(skeleton, floor, crossing)):
                skeleton.add_column(floor, skeleton.node(floor - 1, *crossing), skeleton.node(floor, *crossing))


def may_be_left_out(skeleton, floor, crossing):
    """Bays on all sides, and on each side a crossing that has a column for sure: only one in four may be missing."""
    i, j = crossing[0] // BAY, crossing[1] // BAY
    around = {(i, j), (i - 1, j), (i, j - 1), (i - 1, j - 1)}
    return i % 2 == 1 and j % 2 == 1 and around <= skeleton.floors.bays[floor] and floor > 1


def add_beams(skeleton, walled):
    """`walled` are the edges with walls, by floor: some of them have no beams on top, where none meet there."""
    random, floors = skeleton.random, skeleton.floors
    for floor in range(1, skeleton.count + 1):
        for edge in floors.edges(floor):
            points = floors.points(floor, edge)
            if edge in walled.get(floor, ()) and len(points) == 2 and random.random() < 0.5:
                continue
            add_line(skeleton, floor, points)
        for bay in sorted(floors.bays[floor]):
            for line in floors.inner_lines(bay):
                add_line(skeleton, floor, line, hinges=random.choice([(0,), (4,), (0, 2, 3)]))


def add_line(skeleton, floor, points, **options):
    for start, end in zip(points, points[1:]):
        ends = [skeleton.node(floor, *start), skeleton.node(floor, *end)]
        if skeleton.random.random() < 0.2:
            ends.reverse()
        skeleton.add_beam(floor, *ends, **options)


def add_columns_on_beams(skeleton, taken):
    """From a node that splits a beam to the one above it. `taken` are the edges of walls and braces."""
    floors = skeleton.floors
    for floor in range(2, skeleton.count + 1):
        for edge in floors.edges(floor):
            common = floors.splits(floor, edge) & floors.splits(floor - 1, edge)
            if common and edge not in taken and skeleton.random.random() < 0.04:
                point = point_on(edge, min(common))
                skeleton.add_column(floor, skeleton.node(floor - 1, *point), skeleton.node(floor, *point))
