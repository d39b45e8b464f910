"""Loads of every type that is converted, well inside what they lie on, and what they add up to."""

from building.records import Load

BEAM_FORCE, BEAM_LINE, BEAM_TRIANGLE, BEAM_TRAPEZOID = 1, 2, 3, 4
NODE_MOMENTS, NODE_FORCES = 11, 12
WALL_FORCE, WALL_LINE = 21, 22
ON_BEAMS = (BEAM_FORCE, BEAM_LINE, BEAM_TRIANGLE, BEAM_TRAPEZOID)
ON_NODES = (NODE_MOMENTS, NODE_FORCES)
ON_WALLS = (WALL_FORCE, WALL_LINE)


def add_loads(random, building):
    """For every story a block, some of them without a load."""
    density = random.choice([0.2, 0.5, 1.0])
    for story in building.stories:
        loads = []
        if random.random() < 0.9:
            loads += [beam_load(random, beam) for beam in story.beams if random.random() < density]
            loads += [wall_load(random, wall) for wall in story.walls if random.random() < density]
            loads += [node_load(random, node) for node in story.nodes if random.random() < density / 4]
        random.shuffle(loads)
        for key, load in enumerate(loads, 1):
            load.key = key
            load.case = random.choice([0, 0, 1, 1, 1, 2])
        building.loads[story.key] = loads


def strength(random):
    value = random.choice([random.randint(1, 60), round(random.uniform(0.5, 60), 2), round(random.uniform(1, 20), 3)])
    return -value if random.random() < 0.05 else value


def distance(length, part):
    """As a drawing has it: seven digits of it."""
    return float(f"{length * part:.7g}")


def beam_load(random, beam):
    length = beam.length()
    kind = random.choice(ON_BEAMS)
    value = strength(random)
    if kind == BEAM_FORCE:
        values = (1000 * value, distance(length, random.choice([0, 0.25, 0.5, random.random(), 1])))
    elif kind == BEAM_LINE:
        start = random.choice([0, 0, 0.4 * random.random()])
        end = random.choice([1, 1, 0.5 + 0.5 * random.random()])
        values = (value, random.choice([value, strength(random)]), distance(length, start), distance(length, end))
    elif kind == BEAM_TRIANGLE:
        start = 0.4 * random.random()
        values = (value, distance(length, start), distance(length, random.uniform(0.1, 0.49 - start / 2)))
    else:
        slope = random.choice([0, 0.25, 0.48 * random.random(), 0.5])
        values = (0 if random.random() < 0.02 else value, distance(length, slope))
    return Load(target=beam, kind=kind, values=values)


def wall_load(random, wall):
    kind = random.choice(ON_WALLS)
    value = strength(random)
    values = (1000 * value, distance(wall.length(), random.random())) if kind == WALL_FORCE else (value,)
    return Load(target=wall, kind=kind, values=values)


def node_load(random, node):
    values = tuple(1000 * random.choice([0, 1, 1]) * strength(random) for _ in range(3))
    return Load(target=node, kind=random.choice(ON_NODES), values=values)


def force(load):
    """Fx, Fy and Fz of a load, downward positive."""
    v = (*load.values, 0, 0, 0, 0)
    if load.kind == NODE_FORCES:
        return v[1], v[2], v[0]
    if load.kind == BEAM_LINE:
        return 0, 0, (v[0] + v[1]) / 2 * (v[3] - v[2])
    if load.kind == BEAM_TRIANGLE:
        return 0, 0, v[0] * v[2]
    if load.kind == BEAM_TRAPEZOID:
        return 0, 0, v[0] * (load.target.length() - v[1])
    if load.kind == WALL_LINE:
        return 0, 0, v[0] * load.target.length()
    return 0, 0, v[0]
