"""The frames of a building: columns, beams, what is cantilevered, and the floors between floors."""

from building.floors import BAY, corners_of, edges_of, point_on
from building.records import Slab

OUT = 2  # how far a cantilever goes, in sixths of a bay

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


def add_cantilevers(skeleton):
    """Out of the building where an axis ends. Two side by side may have a balcony."""
    random, floors = skeleton.random, skeleton.floors
    for floor in range(1, skeleton.count + 1):
        ends = {}
        for crossing in floors.crossings(floor):
            for direction in ((-1, 0), (1, 0), (0, -1), (0, 1)):
                if random.random() < 0.15 and leads_out(floors, floor, crossing, direction):
                    u, v = (place + OUT * step for place, step in zip(crossing, direction))
                    ends[crossing, direction] = skeleton.node(floor, u, v)
                    skeleton.add_beam(floor, skeleton.node(floor, *crossing), ends[crossing, direction], hinges=(0,))
        for (crossing, (du, dv)), end in ends.items():
            beside = (crossing[0] + BAY * abs(dv), crossing[1] + BAY * abs(du))
            if (beside, (du, dv)) in ends:
                add_balcony(skeleton, floor, [crossing, beside], [end, ends[beside, (du, dv)]])


def leads_out(floors, floor, crossing, direction):
    (i, j), (du, dv) = (crossing[0] // BAY, crossing[1] // BAY), direction
    edge = (min(i, i + du), min(j, j + dv), 0 if du else 1)
    return not floors.bays_beside(floor, edge)


def add_balcony(skeleton, floor, crossings, ends):
    skeleton.add_beam(floor, *ends)
    inner = [skeleton.node(floor, *crossing) for crossing in crossings]
    slab = Slab(corners=[inner[0], ends[0], ends[1], inner[1]], thickness=skeleton.plan.rounded(100))
    skeleton.stories[floor].slabs.append(slab)


def add_mezzanines(skeleton, taken):
    """Between two floors: four split columns, beams between their middles, and a slab."""
    random, floors = skeleton.random, skeleton.floors
    for floor in range(1, skeleton.count + 1):
        columns = {column.node_j: column for column in skeleton.stories[floor].columns}
        for bay in sorted(floors.bays[floor]):
            around = [columns.get(skeleton.node(floor, *corner)) for corner in corners_of(bay)]
            if None not in around and not taken & set(edges_of(bay)) and random.random() < 0.12:
                add_mezzanine(skeleton, floor, around)
                break


def add_mezzanine(skeleton, floor, columns):
    for column in columns:
        column.split = skeleton.node_between(floor, [column.node_i, column.node_j])
    nodes = [column.split for column in columns]
    for start, end in zip(nodes, nodes[1:] + nodes[:1]):
        skeleton.add_beam(floor, start, end)
    if skeleton.random.random() < 0.7:
        slab = Slab(corners=nodes, thickness=skeleton.plan.rounded(120))
        skeleton.stories[floor].slabs.append(slab)
