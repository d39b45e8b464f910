"""What the two files hold, as plain records that know one another. Whoever writes a record sets its line."""

import dataclasses
import math


@dataclasses.dataclass(eq=False)
class Record:
    key: int = dataclasses.field(default=0, kw_only=True)
    line: int = dataclasses.field(default=0, kw_only=True)  # in its file, once that is written


@dataclasses.dataclass(eq=False)
class Section(Record):
    kind: int
    mark: int  # 5 steel, 6 concrete
    dimensions: tuple


@dataclasses.dataclass(eq=False)
class Node(Record):
    x: float
    y: float
    z: float
    number: int = 0

    def distance(self, other):
        return math.dist((self.x, self.y, self.z), (other.x, other.y, other.z))


@dataclasses.dataclass(eq=False)
class Frame(Record):
    """A beam, a column or a brace. A beam may have end offsets, a column a node that splits it."""
    node_i: Node
    node_j: Node
    section: Section
    hinge: int = 0
    angle: float = 0.0
    offsets: tuple = ()
    split: Node = None

    def length(self):
        return self.node_i.distance(self.node_j)


@dataclasses.dataclass(eq=False)
class Wall(Record):
    """Both rows run the same way."""
    upper: list
    lower: list
    further: list = dataclasses.field(default_factory=list)
    thickness: float = 0.0
    opening: tuple = (0, 0, 0, 0)

    def length(self):
        return self.upper[0].distance(self.upper[-1])

    def corners(self):
        return [self.lower[0], self.lower[-1], self.upper[-1], self.upper[0]]


@dataclasses.dataclass(eq=False)
class Slab(Record):
    corners: list
    thickness: float

    def triangles(self):
        """The fan around the first corner."""
        return [(self.corners[0], *self.corners[i:i + 2]) for i in range(1, len(self.corners) - 1)]


@dataclasses.dataclass(eq=False)
class Story(Record):
    number: int = 0
    grades: tuple = ()  # of concrete: beams and braces, columns, walls, slabs
    steel: int = 0
    nodes: list = dataclasses.field(default_factory=list)
    beams: list = dataclasses.field(default_factory=list)
    columns: list = dataclasses.field(default_factory=list)
    braces: list = dataclasses.field(default_factory=list)
    walls: list = dataclasses.field(default_factory=list)
    slabs: list = dataclasses.field(default_factory=list)

    def frames(self):
        return self.beams + self.columns + self.braces


@dataclasses.dataclass(eq=False)
class Load(Record):
    """The key is the running number, which nobody reads."""
    target: Record  # a beam, a wall or a node
    kind: int
    values: tuple
    case: int = 0  # 0 dead


@dataclasses.dataclass(eq=False)
class Building:
    sections: list = dataclasses.field(default_factory=list)
    supports: list = dataclasses.field(default_factory=list)
    stories: list = dataclasses.field(default_factory=list)  # in the order of the file
    loads: dict = dataclasses.field(default_factory=dict)  # by the key of the story
    count_lines: dict = dataclasses.field(default_factory=dict)  # of the blocks, once they are written

    def nodes(self):
        return self.supports + [node for story in self.stories for node in story.nodes]

    def extent(self):
        return max(max(axis) - min(axis) for axis in zip(*((node.x, node.y, node.z) for node in self.nodes())))
