"""What hangs together, what lies where: worked out from the records, each pair of them looked at."""

import math


def stands(wall, present):
    """Whether the wall becomes an element: all corners are there, and each upper one is above its lower one."""
    upright = all(max(abs(above.x - below.x), abs(above.y - below.y)) <= 1e-6
                  for above, below in ((wall.upper[0], wall.lower[0]), (wall.upper[-1], wall.lower[-1])))
    return upright and present.issuperset(wall.corners())


def elements(building):
    """Every element with its kind, record, story and nodes, in the order of their numbers."""
    present = set(building.nodes())
    for story in building.stories:
        for beam in story.beams:
            yield "beam", beam, story, [beam.node_i, beam.node_j]
        for column in story.columns:
            yield "column", column, story, [column.node_i, column.node_j] + [column.split] * (column.split is not None)
        for brace in story.braces:
            yield "brace", brace, story, [brace.node_i, brace.node_j]
        for wall in story.walls:
            if stands(wall, present):
                yield "wall", wall, story, wall.corners()
        for slab in story.slabs:
            for triangle in slab.triangles():
                if present.issuperset(triangle):
                    yield "plate", slab, story, list(triangle)


def unsupported(building):
    """The first element of each part that no way leads from to a support."""
    leader = {}

    def lead(node):
        while leader.setdefault(node, node) is not node:
            leader[node] = node = leader[leader[node]]
        return node

    found = list(elements(building))
    for *_, nodes in found:
        for node in nodes[1:]:
            leader[lead(node)] = lead(nodes[0])
    held = {lead(node) for node in building.supports}
    first = {}
    for kind, record, story, nodes in found:
        if lead(nodes[0]) not in held:
            first.setdefault(lead(nodes[0]), (kind, record, story))
    return list(first.values())


def place(node):
    return (node.x, node.y, node.z)


def minus(a, b):
    return [p - q for p, q in zip(a, b)]


def dot(a, b):
    return sum(p * q for p, q in zip(a, b))


def distance_to(beam, node):
    """From a node to the stretch between the beam's ends."""
    start, end = place(beam.node_i), place(beam.node_j)
    along = minus(end, start)
    part = min(1.0, max(0.0, dot(minus(place(node), start), along) / dot(along, along)))
    return math.dist(place(node), [p + part * q for p, q in zip(start, along)])


def gap(beam, other):
    """Between two beams that lie in one horizontal plane and are not parallel: 0 where they cross inside of both,
    otherwise no less than the way to go along one of them."""
    d, e = minus(place(beam.node_j), place(beam.node_i)), minus(place(other.node_j), place(other.node_i))
    between = minus(place(other.node_i), place(beam.node_i))
    turn = d[0] * e[1] - d[1] * e[0]
    if beam.node_i.z != other.node_i.z or abs(turn) < 1e-3 * math.hypot(*d) * math.hypot(*e):
        return math.inf
    parts = [(between[0] * e[1] - between[1] * e[0]) / turn, (between[0] * d[1] - between[1] * d[0]) / turn]
    return max(0.0, *(max(-part, part - 1.0) for part in parts))
