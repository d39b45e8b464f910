"""Defects of walls and slabs, and of stories; as in broken_members.py."""

import copy

from building.broken_loads import add_load
from building.broken_members import add
from building.expected import is_nothing
from building.panels import is_flat
from building.records import Node
from building.told import NoPlace, next_number, of_all, of_load, of_member, pick


def thickness_zero(chance, building):
    story, panel = pick(chance, of_all(building, "walls", "slabs"))
    panel.thickness = chance.choice([0, -120])
    return [of_member("thickness-zero", "wall" if panel in story.walls else "plate", panel, story)]


def stranger(building, node):
    """A node beside another one, that no line of the file tells of."""
    return Node(node.x, node.y, node.z, next_number(building) + 5)


def of_lost_wall(building, story, wall, is_force_lost):
    """What its loads come to: line loads find no element, forces go to the end nodes where these are there."""
    told = []
    for load in building.loads[story.key]:
        if load.target is wall and load.kind == 22:
            told.append(of_load("load-on-lost-wall", load, story))
        elif load.target is wall and is_force_lost:
            told.append(of_load("load-node-missing", load, story, severity="loss"))
    return told


def wall_corner_missing(chance, building):
    story, wall = pick(chance, of_all(building, "walls"))
    row, end = chance.choice([wall.upper, wall.lower]), chance.choice([0, -1])
    row[end] = stranger(building, row[end])
    return [of_member("wall-corner-missing", "wall", wall, story),
            *of_lost_wall(building, story, wall, row is wall.upper)]


def wall_not_upright(chance, building):
    story, wall = pick(chance, of_all(building, "walls"))
    return leaning(chance, building, story, wall)


def load_on_lost_wall(chance, building):
    story, wall = pick(chance, of_all(building, "walls"))
    add_load(chance, building, story, wall, 22, 15)
    return leaning(chance, building, story, wall)


def leaning(chance, building, story, wall):
    """A corner is another node at its height."""
    row = chance.choice([wall.upper, wall.lower])
    others = [node for node in building.nodes() if node.z == row[0].z and (node.x, node.y) != (row[0].x, row[0].y)]
    row[0] = pick(chance, [node for node in others if (node.x, node.y) != (row[-1].x, row[-1].y)])
    return [of_member("wall-not-upright", "wall", wall, story), *of_lost_wall(building, story, wall, False)]


def wall_opening(chance, building):
    story, wall = pick(chance, of_all(building, "walls"))
    wall.opening = chance.choice([(0, 0, 1200, 2100), (900, 0, 1000, 2100), (0, 0, 0, 1e-9)])
    return [of_member("wall-opening", "wall", wall, story)]


def plate_corner_missing(chance, building):
    story, slab = pick(chance, of_all(building, "slabs"))
    corner = chance.randrange(len(slab.corners))
    slab.corners[corner] = stranger(building, slab.corners[corner])
    return [of_member("plate-corner-missing", "plate", slab, story)]


def same_nodes_of_panels(chance, building):
    """A wall or a slab that stands there twice, a slab from whichever corner."""
    story, panel = pick(chance, of_all(building, "walls", "slabs"))
    twin = copy.copy(panel)
    if panel in story.walls:
        return [of_member("same-nodes", "wall", add(story.walls, twin), story)]
    first = chance.randrange(len(panel.corners))
    twin.corners = panel.corners[first:] + panel.corners[:first]
    return [of_member("same-nodes", "plate", add(story.slabs, twin), story)]


def zero_length_of_a_wall(chance, building):
    """A wall without height."""
    story, wall = pick(chance, of_all(building, "walls"))
    flat = copy.copy(wall)
    flat.upper = flat.lower = chance.choice([wall.upper, wall.lower])
    return [of_member("zero-length", "wall", add(story.walls, flat), story)]


def plate_too_few_corners(chance, building):
    story, slab = pick(chance, of_all(building, "slabs"))
    lost = copy.copy(slab)
    lost.corners = slab.corners[:chance.randrange(1, 3)]
    add(story.slabs, lost)
    return [of_member("plate-too-few-corners", "plate", lost, story)]


def flat_triangle(chance, building):
    """A note, which a sound building may have as well: a corner that stands there twice."""
    _, slab = pick(chance, of_all(building, "slabs"))
    slab.corners.insert(1, slab.corners[1])
    if not is_flat(*slab.corners[:3]):
        raise NoPlace
    return []


def load_story_missing(chance, building):
    """The key of a story lies beyond their number: the block that was meant for it finds no members."""
    story = pick(chance, building.stories)
    loads = building.loads[story.key]
    loads[:] = [load for load in loads if load.kind not in (11, 12, 21) and not is_nothing(load)]
    if not loads:
        raise NoPlace
    told = [of_load("load-story-missing", load, story.key) for load in loads]
    story.key += len(building.stories) + chance.randint(0, 3)
    return [of_member("story-key", "story", story, story), *told]


def story_key(chance, building):
    """Of a story whose block has no load."""
    story = pick(chance, building.stories)
    building.loads[story.key] = []
    story.key += len(building.stories)
    return [of_member("story-key", "story", story, story)]
