"""A finding that a planted defect has to give, and how the defects choose their places."""

import dataclasses

LOSSES = {"ends-early", "wall-corner-missing", "wall-not-upright", "wall-opening", "plate-corner-missing",
          "plate-too-few-corners", "load-type", "load-story-missing", "load-beam-missing", "load-wall-missing",
          "load-on-lost-wall", "load-cut"}
NOTES = {"node-unused", "flat-triangle", "zero-load", "story-without-load"}
LOADED = {1: "beam", 2: "beam", 3: "beam", 4: "beam", 11: "node", 12: "node", 21: "wall", 22: "wall"}


class NoPlace(Exception):
    """The building has nothing that could be broken in this way."""


@dataclasses.dataclass
class Told:
    """The object is one of some: of two members that lie on each other a finding names either."""
    code: str
    objects: list  # (kind, record) each
    story: object = None  # a story, or the number of a block that has none
    severity: str = ""
    load: object = None  # the load whose line it is
    lost: float = 0.0  # of the vertical force of that load

    def __post_init__(self):
        self.severity = self.severity or ("loss" if self.code in LOSSES else "note" if self.code in NOTES else "doubt")

    def views(self):
        """In which ways it may be told, once everything has its line."""
        file, story = (1 if self.load else 0), getattr(self.story, "key", self.story)
        for kind, record in self.objects:
            line = self.load.line if self.load else record.line
            yield self.code, self.severity, file, line, kind, story, key_of(kind, record)


def key_of(kind, record):
    if kind == "story":
        return None
    return record.number if kind == "node" else record.key


def of_member(code, kind, record, story):
    return Told(code, [(kind, record)], story)


def of_load(code, load, story, **more):
    return Told(code, [(LOADED.get(load.kind, "load"), load.target)], story, load=load, **more)


def pick(chance, choices):
    choices = list(choices)
    if not choices:
        raise NoPlace
    return chance.choice(choices)


def of_all(building, *kinds):
    """Every record of some kinds, as "beams", with its story."""
    return [(story, record) for story in building.stories for kind in kinds for record in getattr(story, kind)]


def next_key(records):
    return 1 + max((record.key for record in records), default=0)


def next_number(building):
    return 1 + max(node.number for node in building.nodes())
