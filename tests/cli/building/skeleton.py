"""A building while it grows: the nodes by floor and place, the stories, and how a member is added to one."""

from building.floors import BAY, Floors
from building.plan import Plan
from building.records import Building, Frame, Node, Story
from building.sections import Sections

CONCRETE_GRADES = (0, 20, 25, 30, 35, 40, 50, 60, 80)
STEEL_GRADES = (0, 15, 16)
HINGES = (0, 0, 0, 0, 0, 1, 2, 3, 4)
ROOFS = ("flat", "flat", "one slope", "two slopes")


class Skeleton:
    def __init__(self, random, seed, count):
        self.random = random
        self.count = count
        self.plan = Plan(random, seed, count)
        self.floors = Floors(random, self.plan, count)
        self.sections = Sections(random, self.plan.unit)
        self.building = Building(sections=self.sections.all)
        self.stories = [None] + [self.story(key) for key in range(1, count + 1)]
        self.building.stories = self.stories[1:]
        self.heights = [self.plan.rounded(random.choice([3000, 3300, 3600, 4200, random.randint(2800, 6000)]))
                        for _ in range(count + 1)]
        self.roof = random.choice(ROOFS)
        self.steps = random.random() < 0.2  # in the ground
        self.lean = random.uniform(50, 400) if random.random() < 0.1 else 0  # a floor beside the one below it
        self.nodes = {}

    def story(self, key):
        grade = self.random.choice(CONCRETE_GRADES[1:])
        grades = [self.random.choice([grade, *CONCRETE_GRADES]) for _ in range(4)]
        return Story(key=key, grades=tuple(grades), steel=self.random.choice(STEEL_GRADES))

    def walls_can_stand(self):
        return self.lean == 0

    def level(self, floor, v):
        """How high the floor lies across the building."""
        height = sum(self.heights[1:floor + 1])
        across = len(self.plan.across) - 1
        v /= BAY
        if floor == self.count and self.roof == "one slope":
            height += self.plan.rounded(400 * v)
        if floor == self.count and self.roof == "two slopes":
            height += self.plan.rounded(700 * min(v, across - v))
        if floor == 0 and self.steps and v > across / 2:
            height -= self.plan.rounded(1200)
        return height

    def node(self, floor, u, v):
        if (floor, u, v) not in self.nodes:
            x, y = self.plan.place(u / BAY, v / BAY)
            x = round(x + floor * self.plan.rounded(self.lean), 6)
            self.nodes[floor, u, v] = self.add_node(floor, x, y, round(self.level(floor, v), 6))
        return self.nodes[floor, u, v]

    def add_node(self, floor, x, y, z):
        node = Node(x, y, z)
        (self.stories[floor].nodes if floor > 0 else self.building.supports).append(node)
        return node

    def node_between(self, floor, nodes):
        """A node in the middle of some others, rounded as a drawing rounds it."""
        middle = [sum(axis) / len(nodes) for axis in zip(*((node.x, node.y, node.z) for node in nodes))]
        return self.add_node(floor, *(round(value, 3) for value in middle))

    def add_beam(self, floor, start, end, hinges=HINGES):
        beam = Frame(start, end, self.random.choice(self.sections.of_beams), self.hinge(hinges))
        if self.random.random() < 0.06:
            beam.offsets = tuple(self.plan.rounded(self.random.choice([0, 0, 50, -75, 120.5])) for _ in range(6))
        if self.random.random() < 0.05:
            beam.angle = self.random.choice([90, 45.5, -30])
        self.stories[floor].beams.append(beam)

    def add_column(self, floor, start, end):
        column = Frame(start, end, self.random.choice(self.sections.of_columns), self.hinge(HINGES))
        column.angle = self.random.choice([0, 0, 90, 22.5])
        self.stories[floor].columns.append(column)
        return column

    def add_brace(self, floor, start, end):
        section = self.random.choice(self.sections.of_braces)
        self.stories[floor].braces.append(Frame(start, end, section, self.random.choice([0, 4, 4, 2])))

    def hinge(self, codes):
        """For beams and columns only the last digit counts."""
        code = self.random.choice(codes)
        return code + 10 if self.random.random() < 0.1 else code
