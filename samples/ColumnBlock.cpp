#include "SectionTable.h"
#include "StoryBlocks.h"

#include <cstddef>

namespace satwecvt {

namespace {

ESection ColumnSection(EFrameSystem system, std::int64_t i, std::int64_t j)
{
    static constexpr ESection kSectionsOfSystem[][3] = {
        {ESection::FilledPipe, ESection::EncasedBeam, ESection::EncasedBox},
        {ESection::ConcreteColumn, ESection::RoundColumn, ESection::CrossColumn},
        {ESection::BoxColumn, ESection::CrossSteelColumn, ESection::BoxColumn},
    };
    return kSectionsOfSystem[static_cast<std::size_t>(system)][(i + j) % 3];
}

/// Some steel columns are hinged at the bottom (2), at the top (3) or at both ends (4).
std::int64_t ColumnRelease(EFrameSystem system, std::int64_t i, std::int64_t j)
{
    static constexpr std::int64_t kReleases[] = {0, 2, 3, 4, 1};
    return system == EFrameSystem::Steel && i % 2 == 0 ? kReleases[(i / 2 + j) % 5] : 0;
}

void WriteColumn(CLineWriter& file, const CTower& tower, std::int64_t story, std::int64_t key, std::int64_t i,
                 std::int64_t j)
{
    const EFrameSystem system = tower.System(story);
    const std::int64_t bottom = tower.GridNode(story - 1, i, j);
    const std::int64_t top = tower.GridNode(story, i, j);
    const std::int64_t angle = (i + 2 * j) % 7 == 5 ? 90 : 0;
    const bool isSplit = tower.HasSplitColumn(i);
    file.Row(key, bottom, isSplit ? -top : top, ColumnSection(system, i, j), ColumnRelease(system, i, j), 0, angle);
    if (isSplit) {
        file.Row(key, tower.SplitNode(story, i, j));
    }
}

}  // namespace

void WriteColumns(CLineWriter& file, const CTower& tower, std::int64_t story)
{
    file.Text("C columns");
    std::int64_t key = 0;
    for (std::int64_t j = 0; j <= tower.baysY; ++j) {
        for (std::int64_t i = 0; i <= tower.baysX; ++i) {
            WriteColumn(file, tower, story, ++key, i, j);
        }
    }
}

}  // namespace satwecvt
