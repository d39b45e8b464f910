"""What a frame has beside its columns and floor beams: ground beams, cantilevers with balconies, floors between floors,
stairs, and bracing that lies in a floor."""

from building.floors import BAY, corners_of, edges_of, point_on
from building.records import Slab

OUT = 2  # how far a cantilever goes, in sixths of a bay


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


def add_ground_beams(skeleton):
    """From support to support; what stands between two of them ends the beam."""
    if skeleton.random.random() > 0.3:
        return
    for edge in skeleton.floors.edges(1):
        supports = [skeleton.nodes[0, *point] for point in (point_on(edge, t) for t in range(BAY + 1))
                    if (0, *point) in skeleton.nodes]
        for start, end in zip(supports, supports[1:]):
            skeleton.add_beam(1, start, end)


def add_stairs(skeleton):
    """A flight through an open bay, as a beam from corner to corner."""
    for floor in range(2, skeleton.count + 1):
        for bay in sorted(skeleton.floors.holes & skeleton.floors.bays[floor]):
            if skeleton.random.random() < 0.4:
                foot, _, head, _ = corners_of(bay)
                skeleton.add_beam(floor, skeleton.node(floor - 1, *foot), skeleton.node(floor, *head), hinges=(4,))


def add_floor_bracing(skeleton):
    """Diagonals that cross each other, and the secondary beams of their bay, without a node."""
    for floor in range(1, skeleton.count + 1):
        for bay in sorted(skeleton.floors.bays[floor]):
            if skeleton.random.random() < 0.05:
                first, second, third, fourth = (skeleton.node(floor, *corner) for corner in corners_of(bay))
                skeleton.add_brace(floor, first, third)
                skeleton.add_brace(floor, fourth, second)
