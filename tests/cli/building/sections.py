"""Sections as a design office uses them, of all the kinds that the format knows, in millimetres."""

from building.records import Section

STEEL, CONCRETE = 5, 6

BEAMS = [
    (1, CONCRETE, (300, 600)), (1, CONCRETE, (250, 550.5)), (11, CONCRETE, (200, 450)),
    (2, STEEL, (8, 400, 200, 13, 200, 13)), (2, STEEL, (6.5, 350, 175, 11, 150, 9)),
    (5, STEEL, (9, 300, 80, 13.5, 80, 13.5)), (5, STEEL, (9, 300, -80, 13.5, -80, 13.5)),
    (9, STEEL, (8.5, 200, 66.5, 11, 0, 10)),
    (7, STEEL, (300, 500, 16, 16, 16)), (13, CONCRETE, (500, 700, 12, 450, 200, 20)),
    (0, CONCRETE, (160000, 3.1e9, 5.3e9, 1.2e9)),
]
COLUMNS = [
    (1, CONCRETE, (500, 500)), (3, CONCRETE, (700,)), (6, CONCRETE, (250, 900, 0, 250, 0, 325)),
    (7, STEEL, (400, 400, 20, 20, 20)), (10, STEEL, (12, 500, 0, 20, 0, 220)), (8, STEEL, (426, 402)),
    (12, STEEL, (800, 760)), (13, CONCRETE, (700, 700, 14, 400, 300, 22)), (14, CONCRETE, (800, 800, 400, 400, 20, 20)),
    (2, STEEL, (10, 400, 400, 16, 400, 16)),
]
BRACES = [(8, STEEL, (245, 221)), (2, STEEL, (8, 250, 250, 12, 250, 12)), (4, STEEL, (60,)), (1, CONCRETE, (300, 300)),
          (5, STEEL, (7, 200, 75, 11, 75, 11)), (8, 0, (219, 203))]

POWERS = {0: (2, 4, 4, 4)}  # of the unit of length, where a value is no length


class Sections:
    """The sections of one building: a few of each kind of member, and now and then one that no member uses."""

    def __init__(self, random, unit):
        self.random = random
        self.unit = unit
        self.all = []
        self.of_beams = self.some(BEAMS, 3)
        self.of_columns = self.some(COLUMNS, 2)
        self.of_braces = self.some(BRACES, 2)
        if random.random() < 0.3:
            self.some(COLUMNS, 1)
        random.shuffle(self.all)
        first = random.choice([1, 1, 1, 101])
        for key, section in enumerate(self.all, first):
            section.key = key

    def some(self, choices, most):
        sections = [self.made(*choice) for choice in self.random.sample(choices, self.random.randint(1, most))]
        self.all += sections
        return sections

    def made(self, kind, mark, dimensions):
        powers = POWERS.get(kind, (1,) * len(dimensions))
        values = [float(f"{value * self.unit ** power:.12g}") for value, power in zip(dimensions, powers)]
        return Section(kind, mark, tuple(values + [0] * (10 - len(values))))
