#include "SectionTable.h"
#include "StoryBlocks.h"

namespace satwecvt {

namespace {

ESection XBeamSection(const CTower& tower, std::int64_t story, std::int64_t j)
{
    if (tower.System(story) != EFrameSystem::Concrete) {
        return ESection::SteelBeam;
    }
    return j == 0 || j == tower.baysY ? ESection::EdgeBeam : ESection::ConcreteBeam;
}

/// Writes a beam of the grid line j. On lines with offset beams its axis lies 150 mm beside the grid line: its
/// ends in columns have offsets.
void WriteXBeam(CLineWriter& file, std::int64_t key, std::int64_t nodeI, std::int64_t nodeJ, ESection section,
                std::int64_t j)
{
    if (!CTower::HasOffsetBeams(j)) {
        file.Row(key, nodeI, nodeJ, section, 0, 0, 0);
        return;
    }
    file.Row(key, -nodeI, key % 2 == 0 ? -nodeJ : nodeJ, section, 1, 0, 0);
    file.Row(0, CProduct{-50, 3}, 0, 0, -150, 0);  // not 3*-50: the sign would be one more operator
}

void WriteXBeams(CLineWriter& file, const CTower& tower, std::int64_t story, std::int64_t& key)
{
    for (std::int64_t j = 0; j <= tower.baysY; ++j) {
        const ESection section = XBeamSection(tower, story, j);
        for (std::int64_t i = 0; i < tower.baysX; ++i) {
            const std::int64_t start = tower.GridNode(story, i, j);
            const std::int64_t end = tower.GridNode(story, i + 1, j);
            if (tower.HasSecondaryBeam(i)) {
                const std::int64_t middle = tower.MiddleNode(story, i, j);
                WriteXBeam(file, ++key, start, middle, section, j);
                WriteXBeam(file, ++key, middle, end, section, j);
            } else {
                WriteXBeam(file, ++key, start, end, section, j);
            }
        }
    }
}

void WriteYBeams(CLineWriter& file, const CTower& tower, std::int64_t story, std::int64_t& key)
{
    const EFrameSystem system = tower.System(story);
    const ESection section = system == EFrameSystem::Concrete ? ESection::ConcreteBeam : ESection::SteelBeam;
    for (std::int64_t j = 0; j < tower.baysY; ++j) {
        const bool isHinged = system == EFrameSystem::Steel && j % 3 == 1;
        for (std::int64_t i = 0; i <= tower.baysX; ++i) {
            const std::int64_t release = isHinged ? 2 + i % 2 : 0;
            file.Row(++key, tower.GridNode(story, i, j), tower.GridNode(story, i, j + 1), section, release, 0, 0);
        }
    }
}

void WriteSecondaryBeams(CLineWriter& file, const CTower& tower, std::int64_t story, std::int64_t& key)
{
    const bool isConcrete = tower.System(story) == EFrameSystem::Concrete;
    const ESection section = isConcrete ? ESection::SecondaryBeam : ESection::Channel;
    const int release = isConcrete ? 4 : 14;  // only the last digit counts: a hinge at both ends
    for (std::int64_t j = 0; j < tower.baysY; ++j) {
        for (std::int64_t i = 0; i < tower.baysX; i += 3) {
            if (!tower.IsCore(i, j)) {
                const std::int64_t end = tower.MiddleNode(story, i, j + 1);
                file.Row(++key, tower.MiddleNode(story, i, j), end, section, release, 0, 0);
            }
        }
    }
}

}  // namespace

void WriteBeams(CLineWriter& file, const CTower& tower, std::int64_t story)
{
    file.Text("C beams: along x, along y, secondary");
    std::int64_t key = 0;
    WriteXBeams(file, tower, story, key);
    WriteYBeams(file, tower, story, key);
    WriteSecondaryBeams(file, tower, story, key);
}

}  // namespace satwecvt
