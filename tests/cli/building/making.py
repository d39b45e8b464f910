"""A building from a seed: always the same one for the same seed."""

import random

from building.dressing import dressing
from building.extras import add_cantilevers, add_floor_bracing, add_ground_beams, add_mezzanines, add_stairs
from building.files import load_file, structure_file
from building.frames import add_beams, add_columns, add_columns_on_beams
from building.loads import add_loads
from building.panels import Uprights, add_slabs
from building.skeleton import Skeleton

TOWERS = 40  # one building in so many has twenty stories


def make_building(seed):
    chance = random.Random(seed)
    skeleton = Skeleton(chance, seed, 20 if seed % TOWERS == 7 else chance.choice([1, 2, 2, 3, 4, 5, 7]))
    uprights = Uprights(skeleton)
    add_columns(skeleton, uprights.bare())
    add_beams(skeleton, uprights.walled())
    add_columns_on_beams(skeleton, uprights.taken())
    add_mezzanines(skeleton, uprights.taken())
    add_cantilevers(skeleton)
    uprights.add_walls()
    uprights.add_braces()
    add_ground_beams(skeleton)
    add_stairs(skeleton)
    add_floor_bracing(skeleton)
    add_slabs(skeleton)
    building = skeleton.building
    number_nodes(chance, building)
    give_keys(chance, building)
    add_loads(chance, building)
    return building


def number_nodes(chance, building):
    nodes = building.nodes()
    step = chance.choice([1, 1, 3])
    numbers = [step * i for i in range(1, len(nodes) + 1)]
    if chance.random() < 0.2:
        chance.shuffle(numbers)
    for node, number in zip(nodes, numbers):
        node.number = number


def give_keys(chance, building):
    """Keys count within a story and a kind; some programs let them run in another order than the lines."""
    is_mixed = chance.random() < 0.2
    groups = [building.supports]
    for story in building.stories:
        groups += [story.nodes, story.beams, story.columns, story.braces, story.walls, story.slabs]
        story.number = story.key + chance.choice([0, 0, 0, 100])
    for records in groups:
        keys = list(range(1, len(records) + 1))
        if is_mixed:
            chance.shuffle(keys)
        for record, key in zip(records, keys):
            record.key = key
    if is_mixed:
        chance.shuffle(building.stories)


def write_files(seed, building):
    """Both files as bytes, each in a dress of its own."""
    chance = random.Random(~seed)
    return structure_file(building, dressing(chance)), load_file(building, dressing(chance))
