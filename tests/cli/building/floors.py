"""Which bays each floor has, and where its beams are split.

A floor is a set of bays, each within the floor below: podium, set-backs, towers side by side, courtyards. An edge is a
side of a bay, (i, j, 0) from the crossing of axes i and j along the building, (i, j, 1) across it. Secondary beams of a
bay end inside its edges, and split what runs there, so that every beam ends where another one meets it. A point is
given in sixths of a bay, along the building and across it.
"""

BAY = 6
HALF = 3
THIRDS = (2, 4)
# Secondary beams along the building and across it, by their places in the bay.
PATTERNS = [((), ()), ((), ()), ((HALF,), ()), ((), (HALF,)), (THIRDS, ()), ((), THIRDS), ((HALF,), (HALF,)),
            (THIRDS, (HALF,)), (THIRDS, THIRDS)]


def edges_of(bay):
    i, j = bay
    return [(i, j, 0), (i, j + 1, 0), (i, j, 1), (i + 1, j, 1)]


def crossing(i, j):
    return BAY * i, BAY * j


def corners_of(bay):
    i, j = bay
    return [crossing(i, j), crossing(i + 1, j), crossing(i + 1, j + 1), crossing(i, j + 1)]


def point_on(edge, t):
    i, j, axis = edge
    u, v = crossing(i, j)
    return (u + t, v) if axis == 0 else (u, v + t)


def ends_of(edge):
    return point_on(edge, 0), point_on(edge, BAY)


class Floors:
    def __init__(self, random, plan, count):
        self.random = random
        self.count = count  # floors are numbered from 1 to this; 0 is the ground
        self.bays = self.masks(plan.bays())
        self.patterns = {bay: random.choice(PATTERNS) for bay in plan.bays()}
        self.holes = {bay for bay in plan.bays() if len(plan.bays()) > 2 and random.random() < 0.1}
        self.forced = {}  # by edge: splits that walls and braces ask for, on every floor

    def masks(self, bays):
        """By floor; nothing on the ground."""
        bays = set(bays)
        if len(bays) > 3 and self.random.random() < 0.4:
            bays -= set(self.random.sample(sorted(bays), self.random.randint(1, len(bays) // 4)))
        masks = [set()]
        for floor in range(1, self.count + 1):
            if floor > 1 and len(bays) > 2 and self.random.random() < 0.25:
                bays = self.set_back(bays)
            masks.append(bays)
        return masks

    def set_back(self, bays):
        """Without a row at one side; in a podium's middle that parts it into two towers."""
        axis = self.random.randint(0, 1)
        rows = sorted({bay[axis] for bay in bays})
        row = self.random.choice([rows[0], rows[-1], rows[len(rows) // 2]])
        return {bay for bay in bays if bay[axis] != row} or bays

    def edges(self, floor):
        return sorted({edge for bay in self.bays[floor] for edge in edges_of(bay)})

    def crossings(self, floor):
        return sorted({point for bay in self.bays[floor] for point in corners_of(bay)})

    def bays_beside(self, floor, edge):
        i, j, axis = edge
        beside = [(i, j), (i, j - 1) if axis == 0 else (i - 1, j)]
        return [bay for bay in beside if bay in self.bays[floor]]

    def splits(self, floor, edge):
        """The secondary beams of both bays beside it, and what is forced."""
        beside = self.bays_beside(floor, edge)
        if not beside:
            return set()
        across = 1 - edge[2]
        return set(self.forced.get(edge, ())).union(*(self.patterns[bay][across] for bay in beside))

    def points(self, floor, edge):
        return [point_on(edge, t) for t in sorted(self.splits(floor, edge) | {0, BAY})]

    def inner_lines(self, bay):
        """The secondary beams of a bay, each by its points from edge to edge."""
        (u, v), (along, across) = crossing(*bay), self.patterns[bay]
        lines = [[(u + s, v + t) for s in (0, *across, BAY)] for t in along]
        return lines + [[(u + s, v + t) for t in (0, *along, BAY)] for s in across]

    def panels(self, floor, bay):
        """The fields between the beams of a bay, each by the points around it, those that split its sides too."""
        (u, v), (along, across) = crossing(*bay), self.patterns[bay]
        us, vs = (0, *across, BAY), (0, *along, BAY)
        for low, high in zip(us, us[1:]):
            for near, far in zip(vs, vs[1:]):
                yield self.outline(floor, (u + low, v + near), (u + high, v + far))

    def outline(self, floor, low, high):
        """The corners, and all points around."""
        corners = [low, (high[0], low[1]), high, (low[0], high[1])]
        around = []
        for start, end in zip(corners, corners[1:] + corners[:1]):
            around += [start, *self.between(floor, start, end)]
        return corners, around

    def between(self, floor, start, end):
        """The points that split an edge strictly between two others, in the order from one to the other."""
        (u0, v0), (u1, v1) = min(start, end), max(start, end)
        axis = 0 if v0 == v1 else 1
        if (v0 if axis == 0 else u0) % BAY != 0:
            return []  # inside the bay: the panels have no other points there
        edge = (u0 // BAY, v0 // BAY, axis)
        inside = [point for point in self.points(floor, edge) if (u0, v0) < point < (u1, v1)]
        return inside if start < end else inside[::-1]
