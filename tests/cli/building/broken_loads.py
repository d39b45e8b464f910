"""Defects of loads; as in broken_members.py."""

import copy

from building.loads import force
from building.records import Load
from building.told import next_key, next_number, of_all, of_load, pick


def add_load(chance, building, story, target, kind, *values):
    """Somewhere in the block of the story."""
    load = Load(target, kind, values, case=chance.choice([0, 1]), key=1 + len(building.loads[story.key]))
    building.loads[story.key].insert(chance.randint(0, len(building.loads[story.key])), load)
    return load


def on_beam(chance, building, kind, *values):
    """`values` are called with the length of the beam where they are distances."""
    story, beam = pick(chance, of_all(building, "beams"))
    numbers = [value(beam.length()) if callable(value) else value for value in values]
    return story, add_load(chance, building, story, beam, kind, *numbers)


def load_type(chance, building):
    story, load = on_beam(chance, building, chance.choice([5, 31, 40, 0, -1]), 12.5, 0)
    return [of_load("load-type", load, story)]


def load_beam_missing(chance, building):
    story, load = on_beam(chance, building, 1, 12500, 0)
    load.target = copy.copy(load.target)
    load.target.key = next_key(story.beams)
    return [of_load("load-beam-missing", load, story, lost=12500)]


def load_wall_missing(chance, building):
    story, wall = pick(chance, of_all(building, "walls"))
    wall = copy.copy(wall)
    wall.key = next_key(story.walls)
    return [of_load("load-wall-missing", add_load(chance, building, story, wall, 22, 15), story)]


def load_node_missing(chance, building):
    story, node = pick(chance, of_all(building, "nodes"))
    node = copy.copy(node)
    node.number = next_number(building)
    load = add_load(chance, building, story, node, chance.choice([11, 12]), 900, 0, 0)
    return [of_load("load-node-missing", load, story)]


def load_cut_line(chance, building):
    story, load = on_beam(chance, building, 2, 12, 12, 0, lambda length: 1.25 * length)
    return [of_load("load-cut", load, story, lost=12 * 0.25 * load.target.length())]


def load_cut_triangle(chance, building):
    """The half that falls lies beyond the end."""
    story, load = on_beam(chance, building, 3, 8, lambda length: 0.5 * length, lambda length: 0.5 * length)
    return [of_load("load-cut", load, story, lost=force(load)[2] / 2)]


def load_moved(chance, building):
    story, load = on_beam(chance, building, 1, 7500, lambda length: 1.001 * length)
    return [of_load("load-moved", load, story)]


def load_before_start(chance, building):
    kind, *values = chance.choice([(1, 7500, lambda length: -0.01 * length),
                                   (2, 6, 6, lambda length: 0.5 * length, lambda length: 0.4 * length),
                                   (2, 6, 6, lambda length: -0.1 * length, lambda length: 0.4 * length),
                                   (3, 6, lambda length: -0.1 * length, lambda length: 0.4 * length)])
    story, load = on_beam(chance, building, kind, *values)
    return [of_load("load-before-start", load, story)]


def force_beside_a_wall(chance, building):
    code, part = chance.choice([("load-beyond-end", 1.25), ("load-before-start", -0.01)])
    story, wall = pick(chance, of_all(building, "walls"))
    return [of_load(code, add_load(chance, building, story, wall, 21, 7500, part * wall.length()), story)]


def trapezoid_as_triangle(chance, building):
    part = chance.choice([0.4995, 0.7, 1.5])
    story, load = on_beam(chance, building, 4, 12, lambda length: part * length)
    return [of_load("trapezoid-as-triangle", load, story)]


def zero_load(chance, building):
    """A note, which a sound building may have as well."""
    on_beam(chance, building, 4, chance.choice([0, 1e-6, -1e-6]), 0)
    return []


def story_without_load(chance, building):
    """Likewise."""
    building.loads[pick(chance, building.stories).key] = []
    return []
