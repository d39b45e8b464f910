// The plan of the sample tower: where every node stands, what stands in which bay, and how much of it there is.
//
// All is computed from indices, so that a tower of a million lines is written with no tables at all. Lengths are in mm.

#ifndef SATWECVT_SAMPLES_TOWER_H
#define SATWECVT_SAMPLES_TOWER_H

#include <cstdint>

using Int = std::int64_t;

enum class FrameSystem { Composite, Concrete, Steel };

// Where everything stands and how much of it there is. Bays are counted by i along x and j along y, levels from 0 at
// the supports; the nodes of a storey are those of its floor.
//
// Every third strip of bays (i % 3 == 0) has a secondary beam, so its x beams are halves that meet at a middle node;
// the bays of the other strips have a node in their centre, around which the slab fans out. Every fourth column line
// (i % 4 == 2) has its columns split at mid-height. Braces cross in the bays beside every sixth grid line along y, in
// every third bay of it (i % 6 == 0, j % 3 == 1). A core takes one bay of every nine times six.
class CTower {
public:
    const Int storeys;
    const Int baysX;
    const Int baysY;

    CTower(Int storeyCount, Int bayCountX, Int bayCountY) : storeys(storeyCount), baysX(bayCountX), baysY(bayCountY) {}

    static bool HasSecondaryBeam(Int i) { return i % 3 == 0; }

    static bool HasVoid(Int i)  // beside the centre node
    {
        return i % 3 == 1;
    }

    static bool HasSplitColumn(Int i) { return i % 4 == 2; }

    static bool HasOffsetBeams(Int j)  // along the grid line j
    {
        return j % 6 == 0;
    }

    static bool HasLongSlabLines(Int j)  // longer than one line of the file
    {
        return j % 4 == 1;
    }

    static bool IsCore(Int i, Int j) { return i % 9 == 3 && j % 6 == 2; }

    static bool HasRepeatedGrades(Int storey) { return storey % 3 == 1; }

    FrameSystem System(Int storey) const
    {
        if (3 * storey <= storeys) {
            return FrameSystem::Composite;
        }
        return 3 * storey <= 2 * storeys ? FrameSystem::Concrete : FrameSystem::Steel;
    }

    static Int X(Int i)
    {
        return 8400 * i - 2400 * (i / 3);  // 8.4 m, 8.4 m, 6 m, and again
    }

    static Int Y(Int j) { return 7200 * j; }

    static Int Height(Int storey) { return storey == 1 ? 4500 : 3600; }

    static Int Z(Int level) { return level == 0 ? 0 : 900 + 3600 * level; }

    Int GridNode(Int level, Int i, Int j) const { return FirstNode(level) + j * (baysX + 1) + i; }

    Int MiddleNode(Int level, Int i, Int j) const { return FirstNode(level) + GridNodes() + j * Strips() + i / 3; }

    Int CentreNode(Int level, Int i, Int j) const
    {
        return FirstNode(level) + GridNodes() + MiddleNodes() + j * (baysX - Strips()) + i - (i + 2) / 3;
    }

    Int SplitNode(Int level, Int i, Int j) const
    {
        return FirstNode(level) + GridNodes() + MiddleNodes() + CentreNodes() + j * SplitLines() + i / 4;
    }

    Int GridNodes() const { return (baysX + 1) * (baysY + 1); }

    Int Nodes() const { return GridNodes() + MiddleNodes() + CentreNodes() + SplitNodes(); }

    Int Beams() const { return XBeamsPerLine() * (baysY + 1) + (baysX + 1) * baysY + Strips() * baysY - Cores(); }

    Int OffsetBeams() const { return XBeamsPerLine() * (baysY / 6 + 1); }

    Int Columns() const { return GridNodes(); }

    Int SplitColumns() const { return SplitNodes(); }

    Int Braces() const { return 2 * (baysX / 6 + 1) * ((baysY + 1) / 3); }

    Int Cores() const { return (baysX + 5) / 9 * ((baysY + 3) / 6); }

    Int Walls(Int storey) const { return 4 * Cores() + (storey == storeys ? 1 : 0); }

    Int WallLines(Int storey) const { return 2 * Walls(storey) + (storey > 1 ? Cores() : 0); }

    Int Slabs() const { return 2 * (Strips() * baysY - Cores()) + (baysX - Strips()) * baysY + baysX / 3 * baysY; }

    Int LongSlabs() const { return (baysX - Strips()) * ((baysY + 2) / 4); }

    Int Loads(Int storey) const
    {
        const Int onBeams = Beams() - (Beams() + 1) / 8;
        const Int onNodes = (baysX / 5 + 1) * (baysY + 1) + baysX + 1;
        return onBeams + onNodes + 5 * Cores() + (storey == 1 ? 2 : 0);
    }

private:
    Int FirstNode(Int level) const { return level == 0 ? 1 : GridNodes() + (level - 1) * Nodes() + 1; }

    Int Strips() const { return (baysX + 2) / 3; }

    Int SplitLines() const { return (baysX + 2) / 4; }

    Int XBeamsPerLine() const { return baysX + Strips(); }

    Int MiddleNodes() const { return Strips() * (baysY + 1); }

    Int CentreNodes() const { return (baysX - Strips()) * baysY; }

    Int SplitNodes() const { return SplitLines() * (baysY + 1); }
};

#endif
