#include "SectionTable.h"
#include "StoryBlocks.h"

namespace satwecvt {

namespace {

ESection BraceSection(EFrameSystem system, std::int64_t turn)
{
    static constexpr ESection kSteel[] = {ESection::PipeBrace, ESection::DoubleChannel, ESection::TieRod};
    return system == EFrameSystem::Concrete ? ESection::ConcreteBrace : kSteel[turn % 3];
}

}  // namespace

void WriteBraces(CLineWriter& file, const CTower& tower, std::int64_t story)
{
    file.Text("C braces");
    std::int64_t key = 0;
    for (std::int64_t j = 1; j < tower.baysY; j += 3) {
        for (std::int64_t i = 0; i <= tower.baysX; i += 6) {
            for (std::int64_t side = 0; side < 2; ++side) {
                ++key;
                const std::int64_t bottom = tower.GridNode(story - 1, i, j + side);
                const std::int64_t top = tower.GridNode(story, i, j + 1 - side);
                const ESection section = BraceSection(tower.System(story), key + story);
                file.Row(key, bottom, top, section, (key + story) % 4 + 1, 0, 0);
            }
        }
    }
}

}  // namespace satwecvt
