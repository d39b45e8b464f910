// generate_tower: writes the structure file and the load file of a mixed tower of any size.
//
//   generate_tower --storeys 8 --bays-x 5 --bays-y 3 STRUCTURE LOAD      (the defaults; they give samples/tower)
//   generate_tower --storeys 40 --lines 1000000 STRUCTURE LOAD
//
// The tower stands on a grid of bays. Its lower third is a composite frame, its middle third concrete, its upper third
// steel; concrete cores run through all storeys. Everything is computed from indices, so a tower of a million lines
// needs no more memory than one of a thousand, and the same options give the same bytes. Lengths are in mm, forces in
// N. From three storeys up every kind of section, release and load occurs; the top storey holds the one leaning wall,
// whose shape no converter of the format can keep.

#include "LineWriter.h"
#include "Tower.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <iterator>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

// What the section numbers of the structure file stand for; the table kSections defines them.
enum Section : int {
    kConcreteBeam = 1,
    kConcreteColumn = 2,
    kRoundColumn = 3,
    kCrossColumn = 4,
    kSecondaryBeam = 5,
    kEdgeBeam = 6,
    kSteelBeam = 7,
    kChannel = 8,
    kBoxColumn = 9,
    kPipeBrace = 10,
    kDoubleChannel = 11,
    kCrossSteelColumn = 12,
    kTieRod = 13,
    kFilledPipe = 14,
    kEncasedBeam = 15,
    kEncasedBox = 16,
    kConcreteBrace = 17
};

struct SectionRow {
    int number;
    int kind;
    int param1;  // 5 marks steel, 6 concrete
    std::array<double, 6> dims;
};

constexpr std::array<SectionRow, 17> kSections = {{
    {kConcreteBeam, 1, 6, {300, 650, 0, 0, 0, 0}},
    {kConcreteColumn, 1, 6, {800, 800, 0, 0, 0, 0}},
    {kRoundColumn, 3, 6, {850, 0, 0, 0, 0, 0}},
    {kCrossColumn, 6, 6, {250, 900, 0, 250, 0, 325}},
    {kSecondaryBeam, 11, 6, {250, 450, 0, 0, 0, 0}},
    {kEdgeBeam, 0, 6, {160000, 3.1e9, 5.3e9, 1.2e9, 0, 0}},
    {kSteelBeam, 2, 5, {11, 500, 200, 18, 200, 18}},
    {kChannel, 5, 5, {9, 300, -80, 13.5, -80, 13.5}},
    {kBoxColumn, 7, 5, {400, 400, 20, 20, 20, 0}},
    {kPipeBrace, 8, 5, {245, 221, 0, 0, 0, 0}},
    {kDoubleChannel, 9, 5, {8.5, 200, 66.5, 11, 0, 10}},
    {kCrossSteelColumn, 10, 5, {12, 500, 0, 20, 0, 220}},
    {kTieRod, 4, 5, {60, 0, 0, 0, 0, 0}},
    {kFilledPipe, 12, 5, {800, 760, 0, 0, 0, 0}},
    {kEncasedBeam, 13, 6, {700, 700, 14, 400, 300, 22}},
    {kEncasedBox, 14, 6, {800, 800, 400, 400, 20, 20}},
    {kConcreteBrace, 1, 6, {400, 400, 0, 0, 0, 0}},
}};

constexpr std::array<std::string_view, 10> kStructureHead = {
    "C Tower sample, structure file. Lengths in mm. Lines that start with C are comments.",
    "c Header: storeys, sections, support nodes, two counts of no use here",
    "C Sections: number, kind, steel (5) or concrete (6), 0, six dimensions; then four more dimensions",
    "C Support nodes and storey nodes: key, node number, 0, x, y, z",
    "C Beams: key, node i, node j, section, release, 0, angle; a negative node: end offsets on the next line",
    "C Columns, braces: key, node i, node j, section, release, 0, angle; columns: a negative node: split node follows",
    "C Walls: key, nodes per row, further nodes, 0, 0, thickness, opening (4); then upper row, lower row",
    "C Slabs: key, corners, 0, thickness, corner nodes",
    "C Storeys: two lines of numbers; height, concrete grades of beams, columns, walls, slabs, steel grade; counts",
    "",
};

constexpr std::array<std::string_view, 4> kLoadHead = {
    "C Tower sample, load file. Forces in N, lengths in mm. One block per storey: a count, then that many loads.",
    "C Load: running number, loaded beam, node or wall, type, case (0 dead, 1 live), values",
    "C Types: 1 force, 2 line load, 3 triangle, 4 trapezoid on beams; 11, 12 on nodes; 21 force, 22 line load on walls",
    "C Type 31, once in the first storey, has no counterpart in the model and falls away.",
};

// Lines of the files beside the records: what WriteStorey and WriteStoreyLoads write of their own.
constexpr Int kStoreyFrame = 12;    // four storey lines, a blank line, seven comments
constexpr Int kRepeatedGrades = 2;  // a comment and the line of grades again
constexpr Int kLoadFrame = 3;       // a blank line, a comment, the count

Int StructureLines(const CTower& tower)
{
    Int lines = std::ssize(kStructureHead) + 1 + 2 * std::ssize(kSections) + tower.GridNodes();
    for (Int storey = 1; storey <= tower.storeys; ++storey) {
        lines += kStoreyFrame + (tower.HasRepeatedGrades(storey) ? kRepeatedGrades : 0);
        lines += tower.Nodes() + tower.Beams() + tower.OffsetBeams() + tower.Columns() + tower.SplitColumns();
        lines += tower.Braces() + tower.WallLines(storey) + tower.Slabs() + tower.LongSlabs();
    }
    return lines;
}

Int LoadLines(const CTower& tower)
{
    Int lines = std::ssize(kLoadHead);
    for (Int storey = 1; storey <= tower.storeys; ++storey) {
        lines += kLoadFrame + tower.Loads(storey);
    }
    return lines;
}

template <std::size_t count>
void WriteTexts(CLineWriter& file, const std::array<std::string_view, count>& texts)
{
    for (std::string_view text : texts) {
        file.Text(text);
    }
}

void WriteSections(CLineWriter& file)
{
    for (const SectionRow& row : kSections) {
        const auto& d = row.dims;
        if (row.number == kConcreteBeam) {
            file.Row(row.number, row.kind, row.param1, 0, Product{2, 150}, Sum{600, 50}, d[2], d[3], d[4], d[5]);
        } else {
            file.Row(row.number, row.kind, row.param1, 0, d[0], d[1], d[2], d[3], d[4], d[5]);
        }
        file.Row(0, 0, 0, 0);
    }
}

void WriteGridNodes(CLineWriter& file, const CTower& tower, Int level)
{
    Int key = 0;
    for (Int j = 0; j <= tower.baysY; ++j) {
        for (Int i = 0; i <= tower.baysX; ++i) {
            file.Row(++key, tower.GridNode(level, i, j), 0, tower.X(i), tower.Y(j), tower.Z(level));
        }
    }
}

void WriteMiddleNodes(CLineWriter& file, const CTower& tower, Int storey, Int& key)
{
    for (Int j = 0; j <= tower.baysY; ++j) {
        for (Int i = 0; i < tower.baysX; i += 3) {
            file.Row(++key, tower.MiddleNode(storey, i, j), 0, Sum{tower.X(i), 4200}, tower.Y(j), tower.Z(storey));
        }
    }
}

void WriteCentreNodes(CLineWriter& file, const CTower& tower, Int storey, Int& key)
{
    for (Int j = 0; j < tower.baysY; ++j) {
        for (Int i = 0; i < tower.baysX; ++i) {
            if (!tower.HasSecondaryBeam(i)) {
                const Int x = (tower.X(i) + tower.X(i + 1)) / 2;
                file.Row(++key, tower.CentreNode(storey, i, j), 0, x, Sum{tower.Y(j), 3600}, tower.Z(storey));
            }
        }
    }
}

void WriteSplitNodes(CLineWriter& file, const CTower& tower, Int storey, Int& key)
{
    for (Int j = 0; j <= tower.baysY; ++j) {
        for (Int i = 2; i <= tower.baysX; i += 4) {
            const Sum z = {tower.Z(storey - 1), tower.Height(storey) / 2};
            file.Row(++key, tower.SplitNode(storey, i, j), 0, tower.X(i), tower.Y(j), z);
        }
    }
}

void WriteNodes(CLineWriter& file, const CTower& tower, Int storey)
{
    file.Text("C nodes");
    WriteGridNodes(file, tower, storey);
    Int key = tower.GridNodes();
    WriteMiddleNodes(file, tower, storey, key);
    WriteCentreNodes(file, tower, storey, key);
    WriteSplitNodes(file, tower, storey, key);
}

int MainBeamSection(const CTower& tower, Int storey, Int j)
{
    if (tower.System(storey) != FrameSystem::Concrete) {
        return kSteelBeam;
    }
    return j == 0 || j == tower.baysY ? kEdgeBeam : kConcreteBeam;
}

// A beam of the grid line j. On offset lines its axis lies 150 mm beside the line: the ends in columns say so.
void WriteXBeam(CLineWriter& file, Int key, Int nodeI, Int nodeJ, int section, Int j)
{
    if (!CTower::HasOffsetBeams(j)) {
        file.Row(key, nodeI, nodeJ, section, 0, 0, 0);
        return;
    }
    file.Row(key, -nodeI, key % 2 == 0 ? -nodeJ : nodeJ, section, 1, 0, 0);
    file.Row(0, Product{-50, 3}, 0, 0, -150, 0);  // a sign inside (3*-50) would be one more operator
}

void WriteXBeams(CLineWriter& file, const CTower& tower, Int storey, Int& key)
{
    for (Int j = 0; j <= tower.baysY; ++j) {
        const int section = MainBeamSection(tower, storey, j);
        for (Int i = 0; i < tower.baysX; ++i) {
            const Int start = tower.GridNode(storey, i, j);
            const Int end = tower.GridNode(storey, i + 1, j);
            if (tower.HasSecondaryBeam(i)) {
                const Int middle = tower.MiddleNode(storey, i, j);
                WriteXBeam(file, ++key, start, middle, section, j);
                WriteXBeam(file, ++key, middle, end, section, j);
            } else {
                WriteXBeam(file, ++key, start, end, section, j);
            }
        }
    }
}

void WriteYBeams(CLineWriter& file, const CTower& tower, Int storey, Int& key)
{
    const bool steel = tower.System(storey) == FrameSystem::Steel;
    const int section = tower.System(storey) == FrameSystem::Concrete ? kConcreteBeam : kSteelBeam;
    for (Int j = 0; j < tower.baysY; ++j) {
        const bool hinged = steel && j % 3 == 1;
        for (Int i = 0; i <= tower.baysX; ++i) {
            const Int release = hinged ? 2 + i % 2 : 0;
            file.Row(++key, tower.GridNode(storey, i, j), tower.GridNode(storey, i, j + 1), section, release, 0, 0);
        }
    }
}

void WriteSecondaryBeams(CLineWriter& file, const CTower& tower, Int storey, Int& key)
{
    const bool concrete = tower.System(storey) == FrameSystem::Concrete;
    const int section = concrete ? kSecondaryBeam : kChannel;
    const int release = concrete ? 4 : 14;  // the last digit counts: a hinge at both ends
    for (Int j = 0; j < tower.baysY; ++j) {
        for (Int i = 0; i < tower.baysX; i += 3) {
            if (!tower.IsCore(i, j)) {
                const Int end = tower.MiddleNode(storey, i, j + 1);
                file.Row(++key, tower.MiddleNode(storey, i, j), end, section, release, 0, 0);
            }
        }
    }
}

void WriteBeams(CLineWriter& file, const CTower& tower, Int storey)
{
    file.Text("C beams: along x, along y, secondary");
    Int key = 0;
    WriteXBeams(file, tower, storey, key);
    WriteYBeams(file, tower, storey, key);
    WriteSecondaryBeams(file, tower, storey, key);
}

int ColumnSection(FrameSystem system, Int i, Int j)
{
    static constexpr int kComposite[] = {kFilledPipe, kEncasedBeam, kEncasedBox};
    static constexpr int kConcrete[] = {kConcreteColumn, kRoundColumn, kCrossColumn};
    static constexpr int kSteel[] = {kBoxColumn, kCrossSteelColumn, kBoxColumn};
    const auto place = static_cast<std::size_t>((i + j) % 3);
    switch (system) {
    case FrameSystem::Composite:
        return kComposite[place];
    case FrameSystem::Concrete:
        return kConcrete[place];
    case FrameSystem::Steel:
        break;
    }
    return kSteel[place];
}

// Steel columns are hinged at the bottom (2), at the top (3) or at both ends (4) here and there.
Int ColumnRelease(FrameSystem system, Int i, Int j)
{
    static constexpr Int kReleases[] = {0, 2, 3, 4, 1};
    return system == FrameSystem::Steel && i % 2 == 0 ? kReleases[(i / 2 + j) % 5] : 0;
}

void WriteColumns(CLineWriter& file, const CTower& tower, Int storey)
{
    file.Text("C columns");
    const FrameSystem system = tower.System(storey);
    Int key = 0;
    for (Int j = 0; j <= tower.baysY; ++j) {
        for (Int i = 0; i <= tower.baysX; ++i) {
            const Int bottom = tower.GridNode(storey - 1, i, j);
            const Int top = tower.GridNode(storey, i, j);
            const Int release = ColumnRelease(system, i, j);
            const Int angle = (i + 2 * j) % 7 == 5 ? 90 : 0;
            const bool split = tower.HasSplitColumn(i);
            file.Row(++key, bottom, split ? -top : top, ColumnSection(system, i, j), release, 0, angle);
            if (split) {
                file.Row(key, tower.SplitNode(storey, i, j));
            }
        }
    }
}

// Crossed diagonals in the braced bays.
void WriteBraces(CLineWriter& file, const CTower& tower, Int storey)
{
    static constexpr int kSteel[] = {kPipeBrace, kDoubleChannel, kTieRod};
    file.Text("C braces");
    const bool concrete = tower.System(storey) == FrameSystem::Concrete;
    Int key = 0;
    for (Int j = 1; j < tower.baysY; j += 3) {
        for (Int i = 0; i <= tower.baysX; i += 6) {
            for (Int side = 0; side < 2; ++side) {
                ++key;
                const Int bottom = tower.GridNode(storey - 1, i, j + side);
                const Int top = tower.GridNode(storey, i, j + 1 - side);
                const int section = concrete ? int{kConcreteBrace} : kSteel[(key + storey) % 3];
                file.Row(key, bottom, top, section, (key + storey) % 4 + 1, 0, 0);
            }
        }
    }
}

// A core wall along x, under the beams of line j. Above the ground storey its rows have a middle node too.
void WriteCoreXWall(CLineWriter& file, const CTower& tower, Int storey, Int key, Int i, Int j, bool opening)
{
    const Int top[] = {tower.GridNode(storey, i, j), tower.MiddleNode(storey, i, j), tower.GridNode(storey, i + 1, j)};
    const Int below = storey - 1;
    const Int low[] = {tower.GridNode(below, i, j), tower.MiddleNode(below, i, j), tower.GridNode(below, i + 1, j)};
    const int width = opening ? 1100 : 0;
    const int height = opening ? 2200 : 0;
    const int left = opening ? 1500 : 0;
    if (storey == 1) {
        file.Row(key, 2, 0, 0, 0, 400, left, 0, width, height);
        file.Row(top[0], top[2], low[0], low[2]);
    } else if (opening) {
        file.Row(key, 3, 2, 0, 0, 300, left, 0, width, height);
        file.Row(top[0], top[1], top[2], low[0], low[1], low[2]);
        file.Row(top[0], top[2], low[0], low[2]);
    } else {
        file.Row(key, 3, 0, 0, 0, 300, 0, 0, 0, 0);
        file.Row(top[0], top[1], top[2], low[0], low[1], low[2]);
    }
}

void WriteCoreYWall(CLineWriter& file, const CTower& tower, Int storey, Int key, Int i, Int j)
{
    file.Row(key, 2, 0, 0, 0, storey == 1 ? 400 : 300, 0, 0, 0, 0);
    file.Row(tower.GridNode(storey, i, j), tower.GridNode(storey, i, j + 1), tower.GridNode(storey - 1, i, j),
             tower.GridNode(storey - 1, i, j + 1));
}

// Its upper row stands in the first grid line, its lower row in the second.
void WriteLeaningWall(CLineWriter& file, const CTower& tower, Int storey, Int key)
{
    file.Row(key, 2, 0, 0, 0, 250, 0, 0, 0, 0);
    file.Row(tower.GridNode(storey, 0, 0), tower.GridNode(storey, 0, 1), tower.GridNode(storey - 1, 1, 0),
             tower.GridNode(storey - 1, 1, 1));
}

void WriteWalls(CLineWriter& file, const CTower& tower, Int storey)
{
    file.Text("C walls");
    Int key = 0;
    for (Int j = 2; j < tower.baysY; j += 6) {
        for (Int i = 3; i < tower.baysX; i += 9) {
            WriteCoreXWall(file, tower, storey, ++key, i, j, true);
            WriteCoreXWall(file, tower, storey, ++key, i, j + 1, false);
            WriteCoreYWall(file, tower, storey, ++key, i, j);
            WriteCoreYWall(file, tower, storey, ++key, i + 1, j);
        }
    }
    if (storey == tower.storeys) {
        WriteLeaningWall(file, tower, storey, ++key);
    }
}

void WriteHalfBaySlabs(CLineWriter& file, const CTower& tower, Int storey, Int i, Int j, Int& key)
{
    const Int middle = tower.MiddleNode(storey, i, j);
    const Int middleBeyond = tower.MiddleNode(storey, i, j + 1);
    file.Row(++key, 4, 0, 120, tower.GridNode(storey, i, j), middle, middleBeyond, tower.GridNode(storey, i, j + 1));
    file.Row(++key, 4, 0, 120, middle, tower.GridNode(storey, i + 1, j), tower.GridNode(storey, i + 1, j + 1),
             middleBeyond);
}

// Five corners, the centre node first, so that the triangles fan out around it; the remaining triangle of the bay is a
// void or a thinner slab. A slab may be spread over two lines. The line end is no separator: a number at the very start
// of the second line would fuse with the last one of the first. So the second line either starts with a blank, or says
// the last corner again.
void WriteFanSlabs(CLineWriter& file, const CTower& tower, Int storey, Int i, Int j, Int& key)
{
    const Int centre = tower.CentreNode(storey, i, j);
    const Int a = tower.GridNode(storey, i, j);
    const Int b = tower.GridNode(storey, i + 1, j);
    const Int c = tower.GridNode(storey, i + 1, j + 1);
    const Int d = tower.GridNode(storey, i, j + 1);
    if (!tower.HasLongSlabLines(j)) {
        file.Row(++key, 5, 0, Quotient{300, 2}, centre, a, b, c, d);
    } else if (tower.HasVoid(i)) {
        file.PlainRow(++key, 5, 0, 150, centre, a, b);
        file.IndentedRow(c, d);
    } else {
        file.PlainRow(++key, 5, 0, 150, centre, a, b);
        file.PlainRow(b, c, d);
    }
    if (!tower.HasVoid(i)) {
        file.Row(++key, 3, 0, 100, centre, d, a);
    }
}

void WriteSlabs(CLineWriter& file, const CTower& tower, Int storey)
{
    file.Text("C slabs");
    Int key = 0;
    for (Int j = 0; j < tower.baysY; ++j) {
        for (Int i = 0; i < tower.baysX; ++i) {
            if (!tower.HasSecondaryBeam(i)) {
                WriteFanSlabs(file, tower, storey, i, j, key);
            } else if (!tower.IsCore(i, j)) {
                WriteHalfBaySlabs(file, tower, storey, i, j, key);
            }
        }
    }
}

// The line of height and grades may stand several times, in any case of letters.
void WriteGrades(CLineWriter& file, const CTower& tower, Int storey)
{
    static constexpr std::string_view kGrades[] = {" 35 60 50 30 16", " 30 50 50 30 3", " 30 40 40 30 15"};
    const auto system = static_cast<std::size_t>(tower.System(storey));
    const std::string line = std::to_string(tower.Height(storey)) + std::string(kGrades[system]);
    file.Text(line + " TEXT=HEIGHT,GRADES");
    if (tower.HasRepeatedGrades(storey)) {
        file.Text("c the same again");
        file.Text(line + " text=height,grades");
    }
}

void WriteStorey(CLineWriter& file, const CTower& tower, Int storey)
{
    static constexpr std::string_view kNames[] = {"composite", "concrete", "steel"};
    const auto system = static_cast<std::size_t>(tower.System(storey));
    file.Text("");
    file.Text("C ---- storey " + std::to_string(storey) + ": " + std::string(kNames[system]) + " frame ----");
    file.Row(storey, storey, 0);
    file.Row(storey);
    WriteGrades(file, tower, storey);
    file.Row(tower.Nodes(), tower.Beams(), tower.Columns(), tower.Braces(), tower.Walls(storey), tower.Slabs());
    WriteNodes(file, tower, storey);
    WriteBeams(file, tower, storey);
    WriteColumns(file, tower, storey);
    WriteBraces(file, tower, storey);
    WriteWalls(file, tower, storey);
    WriteSlabs(file, tower, storey);
}

// The shortest beam is 4200 long: all distances keep within it.
void WriteBeamLoad(CLineWriter& file, Int number, Int beam)
{
    switch (beam % 8) {
    case 0:
        file.Row(number, beam, 1, 0, Sum{20000, 500 * (beam % 17)}, 1800);
        break;
    case 1:
        file.Row(number, beam, 2, 0, Quotient{25, 2}, 9.5, 0, 4200);
        break;
    case 2:
        file.Row(number, beam, 4, 0, 18 + beam % 5, 1800, 0, 0, 0, 0);
        break;
    case 3:
        file.Row(number, beam, 4, 1, Product{2, 5}, 2100);
        break;
    case 4:
        file.Row(number, beam, 3, 1, 12.25, 600, 1500);
        break;
    case 5:
        file.Row(number, beam, 2, 1, 8, 8, Sum{300, 300}, 3600);
        break;
    default:
        file.Row(number, beam, 1, 1, 15000 + 250 * (beam % 13), Product{7, 300}, 0, 0, 0, 0);
        break;
    }
}

void WriteBeamLoads(CLineWriter& file, const CTower& tower, Int& number)
{
    for (Int beam = 1; beam <= tower.Beams(); ++beam) {
        if (beam % 8 != 7) {
            WriteBeamLoad(file, ++number, beam);
        }
    }
}

// Fixtures hang on every fifth column line; the wind blows on the face at y = 0.
void WriteNodeLoads(CLineWriter& file, const CTower& tower, Int storey, Int& number)
{
    for (Int j = 0; j <= tower.baysY; ++j) {
        for (Int i = 0; i <= tower.baysX; i += 5) {
            file.Row(++number, tower.GridNode(storey, i, j), 11, 0, 32000, Sum{4000000, 500000}, -1.2e6);
        }
    }
    for (Int i = 0; i <= tower.baysX; ++i) {
        file.Row(++number, tower.GridNode(storey, i, 0), 12, 1, 0, 0, 18500 + 120 * storey);
    }
}

void WriteWallLoads(CLineWriter& file, const CTower& tower, Int& number)
{
    const Int coreWalls = 4 * tower.Cores();
    for (Int wall = 1; wall <= coreWalls; ++wall) {
        file.Row(++number, wall, 22, wall % 2, 14.5);
        if (wall % 4 == 1) {
            file.Row(++number, wall, 21, 1, 48000, Quotient{6300, 2});
        }
    }
}

// A trapezoid without height is worth a message; a load of type 31 falls away.
void WriteOddLoads(CLineWriter& file, Int& number)
{
    file.Row(++number, 3, 4, 0, 0, 1800);
    file.Row(++number, 1, 31, 1, 5, 0);
}

void WriteStoreyLoads(CLineWriter& file, const CTower& tower, Int storey)
{
    file.Text("");
    file.Text("C ---- storey " + std::to_string(storey) + " ----");
    file.Row(tower.Loads(storey));
    Int number = 0;
    WriteBeamLoads(file, tower, number);
    WriteNodeLoads(file, tower, storey, number);
    WriteWallLoads(file, tower, number);
    if (storey == 1) {
        WriteOddLoads(file, number);
    }
}

// The number of lines is told before a line is written; a tower that turns out otherwise has a fault of ours in it.
void Finish(CLineWriter& file, Int expectedLines)
{
    file.Close();
    if (file.Lines() != expectedLines) {
        throw std::logic_error("wrote " + std::to_string(file.Lines()) + " lines instead of " +
                               std::to_string(expectedLines));
    }
}

void WriteStructure(const std::string& path, const CTower& tower)
{
    CLineWriter file(path);
    WriteTexts(file, kStructureHead);
    file.Row(tower.storeys, std::ssize(kSections), tower.GridNodes(), 0, 0);
    WriteSections(file);
    WriteGridNodes(file, tower, 0);
    for (Int storey = 1; storey <= tower.storeys; ++storey) {
        WriteStorey(file, tower, storey);
    }
    Finish(file, StructureLines(tower));
}

void WriteLoads(const std::string& path, const CTower& tower)
{
    CLineWriter file(path);
    WriteTexts(file, kLoadHead);
    for (Int storey = 1; storey <= tower.storeys; ++storey) {
        WriteStoreyLoads(file, tower, storey);
    }
    Finish(file, LoadLines(tower));
}

// The smallest plan of about three bays to two whose tower has that many lines.
CTower FitToLines(Int storeys, Int lines)
{
    Int baysX = 4;
    for (;; ++baysX) {
        const CTower tower(storeys, baysX, std::max<Int>(3, 2 * baysX / 3));
        if (StructureLines(tower) + LoadLines(tower) >= lines) {
            return tower;
        }
    }
}

int Generate(const CTower& tower, const std::string& structurePath, const std::string& loadPath)
{
    if (structurePath == loadPath) {
        throw std::runtime_error("the two files need two names");
    }
    const Int lines = StructureLines(tower) + LoadLines(tower);
    if (lines > std::numeric_limits<std::int32_t>::max()) {
        throw std::runtime_error("the tower is too large: its numbers would not fit into 32 bits");
    }
    WriteStructure(structurePath, tower);
    WriteLoads(loadPath, tower);
    std::printf("%lld storeys, %lld x %lld bays, %lld lines\n", static_cast<long long>(tower.storeys),
                static_cast<long long>(tower.baysX), static_cast<long long>(tower.baysY),
                static_cast<long long>(lines));
    return 0;
}

int Run(int argc, char** argv)
{
    Int storeys = 8;
    Int baysX = 5;
    Int baysY = 3;
    Int lines = 0;
    std::string structurePath;
    std::string loadPath;
    CLI::App app("Writes the structure and load file of a mixed tower", "generate_tower");
    app.add_option("--storeys", storeys, "number of storeys")->check(CLI::Range(1, 1000))->capture_default_str();
    auto* optionX = app.add_option("--bays-x", baysX, "bays along x");
    optionX->check(CLI::Range(4, 5000))->capture_default_str();
    auto* optionY = app.add_option("--bays-y", baysY, "bays along y");
    optionY->check(CLI::Range(3, 5000))->capture_default_str();
    app.add_option("--lines", lines, "choose the bays: the smallest tower with so many lines in both files together")
        ->check(CLI::Range(1, std::numeric_limits<std::int32_t>::max()))
        ->excludes(optionX)
        ->excludes(optionY);
    app.add_option("STRUCTURE", structurePath, "structure file to write")->required();
    app.add_option("LOAD", loadPath, "load file to write")->required();
    CLI11_PARSE(app, argc, argv);
    return Generate(lines > 0 ? FitToLines(storeys, lines) : CTower(storeys, baysX, baysY), structurePath, loadPath);
}

}  // namespace

int main(int argc, char** argv)
{
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "generate_tower: %s\n", error.what());
        return 1;
    }
}
