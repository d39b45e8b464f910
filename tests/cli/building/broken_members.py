"""Defects of frame elements and of what they name. Each takes a source of chance and a building, breaks it at one place
and returns what has to be told: the finding that the function is named after, and what cannot but come with it."""

import copy

from building.expected import frames_of, is_nothing, material
from building.looking import distance_to, gap, unsupported
from building.records import Frame, Node
from building.told import NoPlace, Told, key_of, next_key, next_number, of_all, of_load, of_member, pick

KINDS = {"beams": "beam", "columns": "column", "braces": "brace"}


def pick_frame(chance, building, *kinds):
    """A frame element that is one piece, as (story, kind, frame)."""
    places = [(story, KINDS[kind], frame) for kind in kinds for story, frame in of_all(building, kind)
              if not frame.split]
    return pick(chance, places)


def add(records, record):
    record.key = next_key(records)
    records.append(record)
    return record


def add_node(building, story, x, y, z):
    node = add(story.nodes, Node(x, y, z))
    node.number = next_number(building)
    return node


def section_missing(chance, building):
    story, kind, frame = pick_frame(chance, building, "beams", "columns", "braces")
    frame.section = copy.copy(frame.section)
    frame.section.key = next_key(building.sections)
    return [of_member("section-missing", kind, frame, story)]


def section_number_twice(chance, building):
    """Another section in front of it; the same one once more is no defect."""
    section = pick(chance, building.sections)
    twin, other = copy.copy(section), copy.copy(section)
    other.dimensions = (section.dimensions[0] + 1, *section.dimensions[1:])
    building.sections[:0] = [other]
    building.sections.append(twin)
    return [of_member("section-number-twice", "section", other, None)]


def section_kind(chance, building):
    used = {frame.section for _, frame in of_all(building, "beams", "columns", "braces")}
    section = pick(chance, sorted(used, key=lambda section: section.key))
    section.kind = chance.choice([16, 20, -1])
    return [of_member("section-kind", "section", section, None)]


def stories_with(building, number, *types):
    """Where a material of one of the types has one of the grades of concrete, by its place; None for any."""
    for story in building.stories:
        for kind, frame, _ in frames_of(story):
            own = 1 if kind == "column" else 0
            if number in (None, own) and material(kind, frame.section, 0, 0)[0] in types:
                yield story
                break


def grade_unknown_of_steel(chance, building):
    story = pick(chance, stories_with(building, None, 1, 2))
    story.steel = chance.choice([1, 17, 345])
    return [of_member("grade-unknown", "story", story, story)]


def grade_unknown_of_concrete(chance, building):
    number = chance.randint(0, 1)
    story = pick(chance, stories_with(building, number, 2))
    grades = list(story.grades)
    grades[number] = chance.choice([22, 85, 3])
    story.grades = tuple(grades)
    return [of_member("grade-unknown", "story", story, story)]


def zero_length(chance, building):
    story, _, frame = pick_frame(chance, building, "beams")
    beam = add(story.beams, Frame(frame.node_i, frame.node_i, frame.section))
    return [of_member("zero-length", "beam", beam, story)]


def same_nodes(chance, building):
    story, kind, frame = pick_frame(chance, building, "beams", "columns", "braces")
    ends = [frame.node_i, frame.node_j]
    chance.shuffle(ends)
    twin = add(getattr(story, kind + "s"), Frame(*ends, frame.section))
    return [Told("same-nodes", [(kind, frame), (kind, twin)], story)]


def members_overlap(chance, building):
    story, kind, frame = pick_frame(chance, building, "beams", "columns")
    brace = add(story.braces, Frame(frame.node_j, frame.node_i, frame.section))
    return [Told("members-overlap", [(kind, frame), ("brace", brace)], story)]


def members_overlap_over_a_node(chance, building):
    """A beam over two others, which end at a node inside of it."""
    story, _, beam = pick_frame(chance, building, "beams")
    node = beam.node_j
    others = [other for other in story.beams if node is other.node_i and other.node_j is not beam.node_i]
    following = pick(chance, others)
    over = add(story.beams, Frame(beam.node_i, following.node_j, beam.section))
    inside = [other for other in building.nodes() if is_inside(building, over, other)]
    if inside != [node]:
        raise NoPlace
    return [Told("members-overlap", [("beam", over), ("beam", beam), ("beam", following)], story),
            *([of_member("node-on-member", "beam", over, story)] if node in story.nodes + building.supports else [])]


def is_inside(building, beam, node):
    return node not in (beam.node_i, beam.node_j) and distance_to(beam, node) < 1e-9 * building.extent()


def nodes_coincide(chance, building):
    """A beam ends on a node of its own, where others meet or as good as there. It must not hang in the air for that."""
    story, _, beam = pick_frame(chance, building, "beams")
    old = beam.node_i
    if old not in story.nodes:
        raise NoPlace
    above = chance.choice([0, 3e-7]) * building.extent()
    beam.node_i = add_node(building, story, old.x, old.y, old.z + above)
    if unsupported(building) or not any(old in (frame.node_i, frame.node_j) for frame in story.frames()):
        raise NoPlace
    return [Told("nodes-coincide", [("node", old), ("node", beam.node_i)], story)]


def node_on_member(chance, building):
    """A beam goes on over the node that ended it, where another one ends still."""
    story, _, beam = pick_frame(chance, building, "beams")
    node = beam.node_j
    others = [frame for frame in story.beams if node in (frame.node_i, frame.node_j) and frame is not beam]
    following = pick(chance, others)
    beam.node_j = following.node_j if following.node_i is node else following.node_i
    story.beams.remove(following)
    loads = building.loads[story.key]
    loads[:] = [load for load in loads if load.target is not following]
    if node not in story.nodes or len(others) < 2 or not is_inside(building, beam, node) or unsupported(building):
        raise NoPlace
    return [of_member("node-on-member", "beam", beam, story)]


def beams_cross(chance, building):
    """Both diagonals of a slab, where no other beam is in their way."""
    story, slab = pick(chance, [(story, slab) for story, slab in of_all(building, "slabs") if len(slab.corners) == 4])
    section = story.beams[0].section
    first, second = (Frame(*ends, section) for ends in (slab.corners[::2], slab.corners[1::2]))
    ends = set(slab.corners)
    if len({node.z for node in ends}) > 1 or gap(first, second) != 0.0:
        raise NoPlace
    for diagonal in (first, second):
        own = {diagonal.node_i, diagonal.node_j}
        if any(gap(diagonal, beam) < 1e-3 and not own & {beam.node_i, beam.node_j} for beam in story.beams):
            raise NoPlace
        if any(distance_to(diagonal, node) < 1e-3 * diagonal.length() for node in building.nodes() if node not in own):
            raise NoPlace
    add(story.beams, first), add(story.beams, second)
    return [Told("beams-cross", [("beam", first), ("beam", second)], story)]


def not_supported(chance, building):
    """A canopy of two beams that nothing holds. The look at what hangs together finds it by itself."""
    story, node = pick(chance, of_all(building, "nodes"))
    step = 0.037 * story.beams[0].length()
    ends = [add_node(building, story, node.x + step * i, node.y + step * i * i, node.z + 9 * step) for i in (1, 2, 3)]
    for start, end in zip(ends, ends[1:]):
        add(story.beams, Frame(start, end, story.beams[0].section))
    return []


def node_missing(chance, building):
    """A node is removed that neither walls nor slabs have as a corner."""
    panels = {node for _, panel in of_all(building, "walls") for node in panel.corners() + panel.upper + panel.lower}
    panels |= {node for _, slab in of_all(building, "slabs") for node in slab.corners}
    story, node = pick(chance, [(story, node) for story, node in of_all(building, "nodes") if node not in panels])
    story.nodes.remove(node)
    told = []
    for owner in building.stories:
        lost = {frame for frame in owner.frames() if node in (frame.node_i, frame.node_j, frame.split)}
        loads = building.loads[owner.key]
        loads[:] = [load for load in loads if load.target not in lost or not is_nothing(load)]
        told += [of_member("node-missing", kind, frame, owner) for kind, frame, _ in frames_of(owner) if frame in lost]
        for load in loads:
            severity = "loss" if load.target in lost else "doubt"
            if load.target in lost or load.target is node:
                told.append(of_load("load-node-missing", load, owner, severity=severity))
    return told


def node_number_twice(chance, building):
    story, node = pick(chance, of_all(building, "nodes"))
    twin = add(story.nodes, Node(node.x, node.y, node.z, node.number))
    assert key_of("node", twin) == key_of("node", node)
    return [Told("node-number-twice", [("node", node), ("node", twin)], story)]


def node_unused(chance, building):
    """A note, which a sound building may have as well."""
    story, node = pick(chance, of_all(building, "nodes"))
    add_node(building, story, node.x, node.y, node.z + 0.1 * story.beams[0].length())
    return []
