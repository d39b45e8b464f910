#include "StoryBlocks.h"

namespace satwecvt {

namespace {

void WriteMiddleNodes(CLineWriter& file, const CTower& tower, std::int64_t story, std::int64_t& key)
{
    for (std::int64_t j = 0; j <= tower.baysY; ++j) {
        for (std::int64_t i = 0; i < tower.baysX; i += 3) {
            file.Row(++key, tower.MiddleNode(story, i, j), 0, CSum{tower.X(i), 4200}, tower.Y(j), tower.Z(story));
        }
    }
}

void WriteCentreNodes(CLineWriter& file, const CTower& tower, std::int64_t story, std::int64_t& key)
{
    for (std::int64_t j = 0; j < tower.baysY; ++j) {
        for (std::int64_t i = 0; i < tower.baysX; ++i) {
            if (!tower.HasSecondaryBeam(i)) {
                const std::int64_t x = (tower.X(i) + tower.X(i + 1)) / 2;
                file.Row(++key, tower.CentreNode(story, i, j), 0, x, CSum{tower.Y(j), 3600}, tower.Z(story));
            }
        }
    }
}

void WriteSplitNodes(CLineWriter& file, const CTower& tower, std::int64_t story, std::int64_t& key)
{
    const CSum z = {tower.Z(story - 1), tower.Height(story) / 2};
    for (std::int64_t j = 0; j <= tower.baysY; ++j) {
        for (std::int64_t i = 2; i <= tower.baysX; i += 4) {
            file.Row(++key, tower.SplitNode(story, i, j), 0, tower.X(i), tower.Y(j), z);
        }
    }
}

}  // namespace

void WriteGridNodes(CLineWriter& file, const CTower& tower, std::int64_t level)
{
    std::int64_t key = 0;
    for (std::int64_t j = 0; j <= tower.baysY; ++j) {
        for (std::int64_t i = 0; i <= tower.baysX; ++i) {
            file.Row(++key, tower.GridNode(level, i, j), 0, tower.X(i), tower.Y(j), tower.Z(level));
        }
    }
}

void WriteNodes(CLineWriter& file, const CTower& tower, std::int64_t story)
{
    file.Text("C nodes");
    WriteGridNodes(file, tower, story);
    std::int64_t key = tower.GridNodes();
    WriteMiddleNodes(file, tower, story, key);
    WriteCentreNodes(file, tower, story, key);
    WriteSplitNodes(file, tower, story, key);
}

}  // namespace satwecvt
