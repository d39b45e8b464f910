"""What fills the fields between the frames: walls, braces, slabs."""

from building.floors import BAY, HALF, THIRDS, crossing, edges_of, ends_of, point_on
from building.records import Slab, Wall

SOLID, NODED, PIERCED = "solid", "noded", "pierced"


class Uprights:
    """Which edges have walls, and up to which floor; which have braces. What they need of the beams is forced."""

    def __init__(self, skeleton):
        self.skeleton = skeleton
        self.random = skeleton.random
        self.kinds = {}
        self.tops = {}
        self.braced = set()
        if skeleton.walls_can_stand():
            self.choose_walls()
        self.choose_braces()

    def choose_walls(self):
        floors = self.skeleton.floors
        if self.random.random() < 0.5:
            core = self.random.choice(sorted(floors.bays[self.skeleton.count]))
            floors.holes.add(core)
            for edge in edges_of(core):
                self.set_wall(edge, self.random.choice([SOLID, SOLID, NODED, PIERCED]))
        for edge in floors.edges(1):
            if self.random.random() < 0.08:
                self.set_wall(edge, self.random.choice([SOLID, NODED, PIERCED]))

    def set_wall(self, edge, kind):
        floors = self.skeleton.floors
        self.kinds[edge] = kind
        height = sum(1 for floor in range(1, self.skeleton.count + 1) if floors.bays_beside(floor, edge))
        self.tops[edge] = self.random.choice([height, height, max(1, height // 2)])
        if kind == PIERCED:
            floors.forced[edge] = set(THIRDS)

    def choose_braces(self):
        for edge in self.skeleton.floors.edges(1):
            if edge not in self.kinds and self.random.random() < 0.08:
                self.braced.add(edge)
                self.skeleton.floors.forced[edge] = {HALF}

    def taken(self):
        return set(self.kinds) | self.braced

    def walled(self):
        """The edges with walls, by floor."""
        floors = range(1, self.skeleton.count + 1)
        return {floor: {edge for edge, top in self.tops.items() if floor <= top} for floor in floors}

    def bare(self):
        """The crossings at whose walls no column stands, by floor."""
        if self.random.random() < 0.5:
            return {}
        return {floor: {end for edge in edges for end in ends_of(edge)} for floor, edges in self.walled().items()}

    def add_walls(self):
        for floor, edges in self.walled().items():
            for edge in sorted(edges):
                self.add_wall(floor, edge)

    def add_wall(self, floor, edge):
        floors = self.skeleton.floors
        common = floors.splits(floor, edge)
        if floor > 1:
            common &= floors.splits(floor - 1, edge)
        kind = self.kinds[edge]
        places = sorted(common | {0, BAY}) if kind != SOLID else [0, BAY]
        if kind != PIERCED:
            self.add_pier(floor, edge, places)
            return
        first, second = THIRDS
        self.add_pier(floor, edge, [t for t in places if t <= first])
        self.add_pier(floor, edge, [t for t in places if t >= second])

    def add_pier(self, floor, edge, places):
        rows = [[self.skeleton.node(level, *point_on(edge, t)) for t in places] for level in (floor, floor - 1)]
        if self.random.random() < 0.3:
            rows = [row[::-1] for row in rows]
        further = [self.random.choice(rows[0]) for _ in range(self.random.choice([0, 0, 0, 2, 4]))]
        thickness = self.skeleton.plan.rounded(self.random.choice([200, 250, 300.5]))
        self.skeleton.stories[floor].walls.append(Wall(*rows, further=further, thickness=thickness))

    def add_braces(self):
        floors = self.skeleton.floors
        for edge in sorted(self.braced):
            for floor in range(1, self.skeleton.count + 1):
                if floors.bays_beside(floor, edge):
                    self.add_braces_of(floor, edge)

    def add_braces_of(self, floor, edge):
        node, add = self.skeleton.node, self.skeleton.add_brace
        start, end = ends_of(edge)
        feet, heads = [node(floor - 1, *start), node(floor - 1, *end)], [node(floor, *start), node(floor, *end)]
        shape = self.random.choice(["cross", "knot", "chevron", "single"])
        if shape == "cross":
            add(floor, feet[0], heads[1])
            add(floor, feet[1], heads[0])
        elif shape == "knot":
            middle = self.skeleton.node_between(floor, feet + heads)
            for other in feet + heads:
                add(floor, middle, other)
        elif shape == "chevron":
            for foot in feet:
                add(floor, foot, node(floor, *point_on(edge, HALF)))
        else:
            add(floor, feet[0], heads[1])


def add_slabs(skeleton):
    """A slab for each field between the beams, or for the whole bay, or over three bays around a corner."""
    floors = skeleton.floors
    for floor in range(1, skeleton.count + 1):
        open_bays = floors.bays[floor] - floors.holes
        if skeleton.random.random() < 0.3:
            open_bays -= add_angle(skeleton, floor, open_bays)
        for bay in sorted(open_bays):
            whole = [floors.outline(floor, crossing(*bay), crossing(bay[0] + 1, bay[1] + 1))]
            fields = whole if skeleton.random.random() < 0.4 else floors.panels(floor, bay)
            for corners, around in fields:
                add_slab(skeleton, floor, around if skeleton.random.random() < 0.3 else corners)


def add_angle(skeleton, floor, bays):
    """One slab with a corner that goes in; returns the bays that it covers."""
    for i, j in sorted(bays):
        covered = {(i, j), (i + 1, j), (i, j + 1)}
        if covered <= bays and skeleton.random.random() < 0.5:
            corners = [(0, 0), (2, 0), (2, 1), (1, 1), (1, 2), (0, 2)]
            add_slab(skeleton, floor, [crossing(i + along, j + across) for along, across in corners])
            return covered
    return set()


def add_slab(skeleton, floor, outline):
    """Starts where no triangle of the fan is so flat that only the last digit says whether it is one."""
    nodes = [skeleton.node(floor, *point) for point in outline]
    thickness = skeleton.plan.rounded(skeleton.random.choice([100, 120, 120, 150.5]))
    starts = list(range(len(nodes)))
    skeleton.random.shuffle(starts)
    for start in starts:
        slab = Slab(corners=nodes[start:] + nodes[:start], thickness=thickness)
        if all(is_flat(*triangle) or is_open(*triangle) for triangle in slab.triangles()):
            halves = split_in_two(slab) if len(nodes) == 4 and skeleton.random.random() < 0.15 else [slab]
            skeleton.stories[floor].slabs += halves
            return


def split_in_two(slab):
    return [Slab(corners=list(triangle), thickness=slab.thickness) for triangle in slab.triangles()]


def sides(first, second, third):
    return [(node.x - first.x, node.y - first.y, node.z - first.z) for node in (second, third)]


def is_flat(*triangle):
    """Both sides at the first corner run along one axis, the same way: the angle is 0 in any arithmetic."""
    ways = [tuple((value > 0) - (value < 0) for value in side) for side in sides(*triangle)]
    return ways[0] == ways[1] and sum(map(abs, ways[0])) == 1


def is_open(*triangle):
    (ax, ay, az), (bx, by, bz) = sides(*triangle)
    normal = (ay * bz - az * by, az * bx - ax * bz, ax * by - ay * bx)
    lengths = (ax * ax + ay * ay + az * az) * (bx * bx + by * by + bz * bz)
    return sum(value * value for value in normal) > 1e-8 * lengths
