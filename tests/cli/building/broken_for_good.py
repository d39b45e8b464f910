"""Defects that no conversion outlives. Each takes a source of chance and a building, breaks it at one place and returns
the file (0 structure, 1 loads), and two functions for when the files are written: the line of the failure, and words
that it has to hold."""

import copy

from building.broken_loads import add_load
from building.told import next_key, of_all, pick


def key_twice(chance, building):
    kinds = ("nodes", "beams", "columns", "braces", "walls", "slabs")
    records = pick(chance, [getattr(story, kind) for story in building.stories for kind in kinds
                            if len(getattr(story, kind)) > 1])
    return twice(*chance.sample(records, 2))


def key_of_a_support_twice(chance, building):
    return twice(*chance.sample(building.supports, 2))


def key_of_a_story_twice(chance, building):
    pick(chance, building.stories[1:])
    return twice(*chance.sample(building.stories, 2))


def twice(record, other):
    record.key = other.key
    return 0, lambda: max(record.line, other.line), lambda: f"line {min(record.line, other.line)}"


def force_on_no_wall(chance, building):
    story, wall = pick(chance, of_all(building, "walls"))
    wall = copy.copy(wall)
    wall.key = next_key(story.walls)
    load = add_load(chance, building, story, wall, 21, 30000, 500)
    return 1, lambda: load.line, lambda: f"wall {wall.key} of story {story.key}"
