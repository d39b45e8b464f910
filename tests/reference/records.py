"""The model between reading and writing: plain records, and the three find-or-add numberings."""


class Node:
    def __init__(self):
        self.number = 0
        self.flag = 0
        self.x = 0.0
        self.y = 0.0
        self.z = 0.0

    def point(self):
        return [self.x, self.y, self.z]


class Member:
    """A beam, a column or a brace; each kind uses the fields that its lines fill."""

    def __init__(self):
        self.seq = 0
        self.nodeI = 0
        self.nodeJ = 0
        self.c3 = 0
        self.c4 = 0
        self.c5 = 0
        self.d5 = 0.0
        self.d6 = 0.0
        self.hasExtra = 0
        self.extra = [0.0] * 6
        self.extraValue = 0


class Wall:
    def __init__(self):
        self.seq = 0
        self.firstCount = 0
        self.secondCount = 0
        self.wallCode = 0
        self.wallValues = [0.0] * 6
        self.firstListA = []
        self.firstListB = []
        self.secondListA = []
        self.secondListB = []


class Plate:
    def __init__(self):
        self.seq = 0
        self.vertexCount = 0
        self.thickness = 0.0
        self.vertices = []


class Story:
    def __init__(self):
        self.storyNo = 0
        self.storyKind = 0
        self.storyList = []
        self.storyValues = [0.0] * 5
        self.storyExtra = 0
        self.nodeCount = 0
        self.beamCount = 0
        self.columnCount = 0
        self.braceCount = 0
        self.wallCount = 0
        self.plateCount = 0
        self.nodes = {}
        self.beams = {}
        self.columns = {}
        self.braces = {}
        self.walls = {}
        self.plates = {}


class Load:
    def __init__(self):
        self.storyId = 0
        self.memberId = 0
        self.loadType = 0
        self.loadCase = 0
        self.value = [0.0] * 6


class Section:
    def __init__(self):
        self.kind = 0
        self.param1 = 0
        self.param2 = 0
        self.dims = [0.0] * 10
        self.concreteGrade = 0
        self.steelGrade = 0

    def copy(self):
        other = Section()
        other.kind = self.kind
        other.param1 = self.param1
        other.param2 = self.param2
        other.dims = list(self.dims)
        other.concreteGrade = self.concreteGrade
        other.steelGrade = self.steelGrade
        return other

    def equals(self, other):
        """Exact equality; a NaN among the dimensions equals nothing, -0.0 equals 0.0."""
        if self.kind != other.kind or self.param1 != other.param1 or self.param2 != other.param2:
            return False
        for index in range(10):
            if not self.dims[index] == other.dims[index]:
                return False
        return self.concreteGrade == other.concreteGrade and self.steelGrade == other.steelGrade


class Material:
    def __init__(self, kind, grade, steelGrade):
        self.type = kind
        self.grade = grade
        self.steelGrade = steelGrade


class Model:
    def __init__(self):
        self.storyCount = 0
        self.sectionCount = 0
        self.nodeCount = 0
        self.headerCount4 = 0
        self.headerCount5 = 0
        self.inputSections = {}
        self.nodes = {}
        self.stories = {}
        self.thicknesses = []
        self.releases = []  # (element, code)
        self.offsets = []  # (element, six doubles)
        self.loads = {}
        self.materials = []
        self.sections = []

    def find_or_add_thickness(self, value):
        for index in range(len(self.thicknesses)):
            if self.thicknesses[index] == value:
                return index + 1
        self.thicknesses.append(value)
        return len(self.thicknesses)

    def find_or_add_material(self, kind, grade, steelGrade):
        for index in range(len(self.materials)):
            material = self.materials[index]
            if material.type == kind and material.grade == grade and material.steelGrade == steelGrade:
                return index + 1
        self.materials.append(Material(kind, grade, steelGrade))
        return len(self.materials)

    def find_or_add_section(self, sectionNumber, concreteGrade, steelGrade):
        if sectionNumber in self.inputSections:
            section = self.inputSections[sectionNumber].copy()
        else:
            section = Section()
        if section.kind in (12, 13, 14, 15):
            section.concreteGrade = concreteGrade
            section.steelGrade = steelGrade
        for index in range(len(self.sections)):
            if self.sections[index].equals(section):
                return index + 1
        self.sections.append(section)
        return len(self.sections)
