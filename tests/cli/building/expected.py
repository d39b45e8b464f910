"""What a check of a building has to tell, by the rules of the formats: counts, notes, and the balance."""

import collections
import math

from building.loads import BEAM_TRAPEZOID, NODE_FORCES, NODE_MOMENTS, ON_BEAMS, WALL_FORCE, force
from building.looking import elements
from building.panels import is_flat
from building.sections import CONCRETE, STEEL

CASES = {True: "dead", False: "live"}
COMPOSITE = (12, 13, 14, 15)

Expected = collections.namedtuple("Expected", "read lines")


def frames_of(story):
    """Every frame with its kind and the grade of concrete that its kind has."""
    beams, columns = story.grades[:2]
    of_kinds = (("beam", story.beams, beams), ("column", story.columns, columns), ("brace", story.braces, beams))
    return [(kind, frame, grade) for kind, frames, grade in of_kinds for frame in frames]


def material(kind, section, grade, steel):
    if section.kind in COMPOSITE:
        return 2, grade, steel
    is_steel = section.mark != CONCRETE if kind == "brace" else section.mark == STEEL
    return (1, steel, 0) if is_steel else (0, grade, 0)


def materials(building):
    found = set()
    for story in building.stories:
        found |= {material(kind, frame.section, grade, story.steel) for kind, frame, grade in frames_of(story)}
        found |= {(0, story.grades[2], 0) for _ in story.walls} | {(0, story.grades[3], 0) for _ in story.slabs}
    return found


def sections(building):
    found = set()
    for story in building.stories:
        for _, frame, grade in frames_of(story):
            section = frame.section
            grades = (grade, story.steel) if section.kind in COMPOSITE else ()
            found.add((section.kind, section.mark, section.dimensions, grades))
    return found


def releases(story):
    """Elements with a hinge; of a split column each piece has the one at its end."""
    count = sum(1 for frame in story.beams + story.columns if frame.hinge % 10 in (2, 3, 4))
    count += sum(1 for column in story.columns if column.split and column.hinge % 10 == 4)
    return count + sum(1 for brace in story.braces if brace.hinge in (2, 3, 4))


def triangles(story):
    return [triangle for slab in story.slabs for triangle in slab.triangles()]


def load_counts(loads, kinds):
    """Every load stands in the live case, a dead one in both; a force on a wall goes to two nodes."""
    chosen = [load for load in loads if load.kind in kinds]
    written = [load for load in chosen if not is_nothing(load)]
    return Expected(len(chosen), sum((2 if load.case == 0 else 1) * (2 if load.kind == WALL_FORCE else 1)
                                     for load in written))


def is_nothing(load):
    return load.kind == BEAM_TRAPEZOID and abs(load.values[0]) < 1e-5


def counts(building):
    """By kind: what is read, and its lines in the model."""
    stories, loads = building.stories, [load for block in building.loads.values() for load in block]

    def total(number_in):
        return sum(map(number_in, stories))

    walls = total(lambda story: len(story.walls))
    thicknesses = {panel.thickness for story in stories for panel in story.walls + story.slabs}
    return {
        "stories": Expected(len(stories), len(stories)),
        "nodes": Expected(len(building.nodes()), len(building.nodes())),
        "beams": Expected(*[total(lambda story: len(story.beams))] * 2),
        "columns": Expected(total(lambda story: len(story.columns)),
                            total(lambda story: sum(2 if column.split else 1 for column in story.columns))),
        "braces": Expected(*[total(lambda story: len(story.braces))] * 2),
        "walls": Expected(walls, walls),
        "plates": Expected(total(lambda story: len(story.slabs)),
                           total(lambda story: sum(not is_flat(*triangle) for triangle in triangles(story)))),
        "materials": Expected(None, len(materials(building))),
        "sections": Expected(len(building.sections), len(sections(building))),
        "thicknesses": Expected(None, len(thicknesses)),
        "supports": Expected(None, len(building.supports)),
        "releases": Expected(None, total(releases)),
        "offsets": Expected(None, total(lambda story: sum(1 for beam in story.beams if beam.offsets))),
        "nodalLoads": load_counts(loads, (NODE_MOMENTS, NODE_FORCES, WALL_FORCE)),
        "beamLoads": load_counts(loads, ON_BEAMS),
        "pressureLoads": load_counts(loads, (22,)),
        "otherLoads": Expected(0, 0),
    }


def notes(building):
    """The notes that a sound building has, each as code, file (0 structure, 1 loads) and line."""
    present = set(building.nodes())
    used = {node.number for *_, nodes in elements(building) for node in nodes}
    found = [("node-unused", 0, story.line) for story in building.stories
             if any(node.number not in used for node in story.nodes)]
    unused = [node for node in building.supports if node.number not in used]
    if unused:  # the first one stands for the supports, which have no line of their own
        found.append(("node-unused", 0, min(unused, key=lambda node: node.number).line))
    for story in building.stories:
        found += [("flat-triangle", 0, slab.line) for slab in story.slabs for triangle in slab.triangles()
                  if present.issuperset(triangle) and is_flat(*triangle)]
    for key, loads in building.loads.items():
        found += [("zero-load", 1, load.line) for load in loads if is_nothing(load)]
        if not loads and any(building.loads.values()):
            found.append(("story-without-load", 1, building.count_lines[key]))
    return collections.Counter(found)


def resultants(building):
    """By story and case: how many loads, and the sums of their forces, each with that of their sizes."""
    rows = {}
    for key, loads in building.loads.items():
        for is_dead, case in CASES.items():
            forces = [force(load) for load in loads if (load.case == 0) == is_dead]
            sums = [(math.fsum(axis), math.fsum(map(abs, axis))) for axis in zip(*forces)] or [(0, 0)] * 3
            rows[key, case] = (len(forces), sums)
    return rows
