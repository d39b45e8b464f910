"""Where the axes of a building meet. Numbers u and v stand on the axes where they are whole, and between them where
they are not: u counts along the building, v across it."""

import math

STEPS = (1, 1, 1, 0.5, 0.1, 0.01)  # to which coordinates are rounded, in millimetres
SHAPES = ("regular", "irregular", "rotated", "skewed", "tapered", "curved")


class Plan:
    def __init__(self, random, seed, stories):
        self.random = random
        self.shape = SHAPES[seed % len(SHAPES)]
        self.unit = 0.001 if random.random() < 0.25 else 1.0  # metres or millimetres
        self.step = random.choice(STEPS)
        most = 6 if stories < 8 else 4
        self.along = self.axes(random.randint(1, most))
        self.across = self.axes(random.randint(1, 4))
        self.angle = random.uniform(0.05, 0.6)
        self.origin = random.choice([(0, 0), (0, 0), (12345, -6789), (random.uniform(-9e4, 9e4), 4321.5)])

    def axes(self, bays):
        if self.shape == "regular":
            spans = [100 * self.random.randint(36, 90)] * bays
        else:
            spans = [self.span() for _ in range(bays)]
        return [sum(spans[:i]) for i in range(bays + 1)]

    def span(self):
        choice = self.random.random()
        if choice < 0.5:
            return 100 * self.random.randint(36, 90)
        return self.random.randint(3600, 9000) if choice < 0.8 else self.random.uniform(3600, 9000)

    def bays(self):
        return [(i, j) for i in range(len(self.along) - 1) for j in range(len(self.across) - 1)]

    def rounded(self, length):
        """In the units of the file, with no more digits than the rounding leaves."""
        decimals = 2 + (3 if self.unit < 1 else 0)
        return round(round(length / self.step) * self.step * self.unit, decimals)

    def place(self, u, v):
        x, y = self.bent(on_axis(self.along, u), on_axis(self.across, v))
        return self.rounded(x + self.origin[0]), self.rounded(y + self.origin[1])

    def bent(self, x, y):
        if self.shape == "rotated":
            cos, sin = math.cos(self.angle), math.sin(self.angle)
            return x * cos - y * sin, x * sin + y * cos
        if self.shape == "skewed":
            return x + y * math.tan(self.angle), y
        if self.shape == "tapered":
            return x * (1 + self.angle * y / self.across[-1] / 2), y
        if self.shape == "curved":
            radius = 3 * self.along[-1]
            turn = x / radius
            return (radius + y) * math.sin(turn), (radius + y) * math.cos(turn)
        return x, y


def on_axis(axis, position):
    """Straight between the axes, and on as it was beyond the last one."""
    index = min(max(math.floor(position), 0), len(axis) - 2)
    return axis[index] + (position - index) * (axis[index + 1] - axis[index])
