// The plan of the sample tower: where every node stands, what stands in which bay, and how much of it there is.
//
// Everything is computed from indices. A tower of a million lines needs no tables. Lengths are in mm.
#pragma once

#include <cstdint>

namespace satwecvt {

/// What the frame of a story is made of.
enum class EFrameSystem { Composite, Concrete, Steel };

/// Bays are counted by i along x and by j along y, from 0. Stories are counted from 1, levels from 0 at the supports.
/// The floor of a story, where its own nodes stand, is the level with the story's number.
///
/// The features of the tower repeat over the grid:
/// - Every third strip of bays (i % 3 == 0) has a secondary beam. The x beams of such a strip are halves that meet at a
///   middle node. The bays of the other strips have a node in their centre, around which the slab fans out.
/// - Every fourth column line (i % 4 == 2) has its columns split at mid-height.
/// - Braces cross in the bays beside every sixth grid line along y, in every third bay of it (i % 6 == 0, j % 3 == 1).
/// - A core takes one bay of every nine times six.
class CTower {
public:
    const std::int64_t stories;
    const std::int64_t baysX;
    const std::int64_t baysY;

    /// A tower has at least 1 story, 4 bays along x and 3 along y.
    CTower(std::int64_t storyCount, std::int64_t bayCountX, std::int64_t bayCountY)
        : stories(storyCount),
          baysX(bayCountX),
          baysY(bayCountY)
    {}

    /// Whether the bays of the strip have a secondary beam; the others have a centre node.
    static bool HasSecondaryBeam(std::int64_t i) { return i % 3 == 0; }
    /// Whether the slab has a void beside the centre node.
    static bool HasVoid(std::int64_t i) { return i % 3 == 1; }
    /// Whether the columns of the line are split at mid-height.
    static bool HasSplitColumn(std::int64_t i) { return i % 4 == 2; }
    /// Whether the beams along the grid line j have end offsets.
    static bool HasOffsetBeams(std::int64_t j) { return j % 6 == 0; }
    /// Whether the slabs around centre nodes take two lines of the file each.
    static bool HasLongSlabLines(std::int64_t j) { return j % 4 == 1; }
    /// Whether the bay is a core.
    static bool IsCore(std::int64_t i, std::int64_t j) { return i % 9 == 3 && j % 6 == 2; }
    /// Whether the story has its line of height and grades twice.
    static bool HasRepeatedGrades(std::int64_t story) { return story % 3 == 1; }

    /// The lower third of the stories is composite, the middle third concrete, the upper third steel.
    EFrameSystem System(std::int64_t story) const
    {
        if (3 * story <= stories) {
            return EFrameSystem::Composite;
        }
        return 3 * story <= 2 * stories ? EFrameSystem::Concrete : EFrameSystem::Steel;
    }

    /// Where the grid line i stands: bays of 8.4 m, 8.4 m, 6 m, and again.
    static std::int64_t X(std::int64_t i) { return 8400 * i - 2400 * (i / 3); }
    /// Where the grid line j stands.
    static std::int64_t Y(std::int64_t j) { return 7200 * j; }
    /// The height of a level above the supports.
    static std::int64_t Z(std::int64_t level) { return level == 0 ? 0 : 900 + 3600 * level; }
    /// The height of a story from floor to floor.
    static std::int64_t Height(std::int64_t story) { return story == 1 ? 4500 : 3600; }

    /// The number of the node where the grid lines i and j cross.
    std::int64_t GridNode(std::int64_t level, std::int64_t i, std::int64_t j) const
    {
        return FirstNode(level) + j * (baysX + 1) + i;
    }
    /// The number of the node between (i, j) and (i + 1, j), in a strip with secondary beams.
    std::int64_t MiddleNode(std::int64_t level, std::int64_t i, std::int64_t j) const
    {
        return FirstNode(level) + GridNodes() + j * Strips() + i / 3;
    }
    /// The number of the node in the centre of the bay, in a strip without secondary beams.
    std::int64_t CentreNode(std::int64_t level, std::int64_t i, std::int64_t j) const
    {
        return FirstNode(level) + GridNodes() + MiddleNodes() + j * (baysX - Strips()) + i - (i + 2) / 3;
    }
    /// The number of the node at mid-height of the split column under (i, j).
    std::int64_t SplitNode(std::int64_t level, std::int64_t i, std::int64_t j) const
    {
        return FirstNode(level) + GridNodes() + MiddleNodes() + CentreNodes() + j * SplitLines() + i / 4;
    }

    /// How many nodes of a level stand where grid lines cross. The supports are such nodes alone.
    std::int64_t GridNodes() const { return (baysX + 1) * (baysY + 1); }

    /// All nodes of a story.
    std::int64_t Nodes() const { return GridNodes() + MiddleNodes() + CentreNodes() + SplitNodes(); }
    /// All beams of a story: along x, along y, secondary.
    std::int64_t Beams() const
    {
        return XBeamsPerLine() * (baysY + 1) + (baysX + 1) * baysY + Strips() * baysY - Cores();
    }
    /// The beams of a story that have end offsets.
    std::int64_t OffsetBeams() const { return XBeamsPerLine() * (baysY / 6 + 1); }
    /// All columns of a story; a split column counts once.
    std::int64_t Columns() const { return GridNodes(); }
    /// The columns of a story that are split at mid-height.
    std::int64_t SplitColumns() const { return SplitNodes(); }
    /// The braces of a story.
    std::int64_t Braces() const { return 2 * (baysX / 6 + 1) * ((baysY + 1) / 3); }
    /// The cores, which run through all stories.
    std::int64_t Cores() const { return (baysX + 5) / 9 * ((baysY + 3) / 6); }
    /// The walls of a story: four for each core, and the leaning wall of the top story.
    std::int64_t Walls(std::int64_t story) const { return 4 * Cores() + (story == stories ? 1 : 0); }
    /// The lines that the walls take: two each, and a third for the wall of a core that has an opening, above story 1.
    std::int64_t WallLines(std::int64_t story) const { return 2 * Walls(story) + (story > 1 ? Cores() : 0); }
    /// All slabs of a story.
    std::int64_t Slabs() const
    {
        return 2 * (Strips() * baysY - Cores()) + (baysX - Strips()) * baysY + baysX / 3 * baysY;
    }
    /// The slabs of a story that take two lines of the file.
    std::int64_t LongSlabs() const { return (baysX - Strips()) * ((baysY + 2) / 4); }
    /// The loads of a story: on beams, nodes and walls, and two odd ones in story 1.
    std::int64_t Loads(std::int64_t story) const
    {
        const std::int64_t onBeams = Beams() - (Beams() + 1) / 8;
        const std::int64_t onNodes = (baysX / 5 + 1) * (baysY + 1) + baysX + 1;
        return onBeams + onNodes + 5 * Cores() + (story == 1 ? 2 : 0);
    }

private:
    std::int64_t FirstNode(std::int64_t level) const
    {
        return level == 0 ? 1 : GridNodes() + (level - 1) * Nodes() + 1;
    }
    std::int64_t Strips() const { return (baysX + 2) / 3; }  // those with secondary beams
    std::int64_t SplitLines() const { return (baysX + 2) / 4; }
    std::int64_t XBeamsPerLine() const { return baysX + Strips(); }
    std::int64_t MiddleNodes() const { return Strips() * (baysY + 1); }
    std::int64_t CentreNodes() const { return (baysX - Strips()) * baysY; }
    std::int64_t SplitNodes() const { return SplitLines() * (baysY + 1); }
};

}  // namespace satwecvt
