#include "StoryBlocks.h"

#include <array>

namespace satwecvt {

namespace {

/// The four grid nodes of a bay, in the order in which they go around it.
using CCorners = std::array<std::int64_t, 4>;

CCorners BayCorners(const CTower& tower, std::int64_t story, std::int64_t i, std::int64_t j)
{
    return {tower.GridNode(story, i, j), tower.GridNode(story, i + 1, j), tower.GridNode(story, i + 1, j + 1),
            tower.GridNode(story, i, j + 1)};
}

/// Writes the two slabs on the sides of a secondary beam.
void WriteHalfBaySlabs(CLineWriter& file, const CTower& tower, std::int64_t story, std::int64_t i, std::int64_t j,
                       std::int64_t& key)
{
    const CCorners corners = BayCorners(tower, story, i, j);
    const std::int64_t middle = tower.MiddleNode(story, i, j);
    const std::int64_t middleBeyond = tower.MiddleNode(story, i, j + 1);
    file.Row(++key, 4, 0, 120, corners[0], middle, middleBeyond, corners[3]);
    file.Row(++key, 4, 0, 120, middle, corners[1], corners[2], middleBeyond);
}

/// Spreads a slab of five corners over two lines. The line end does not separate numbers: one at the very start of the
/// second line would fuse with the last number of the first line. So the second line starts with a blank, or it starts
/// with a repeat of the last corner.
void WriteLongFan(CLineWriter& file, std::int64_t key, std::int64_t centre, const CCorners& corners, bool hasIndent)
{
    file.PlainRow(key, 5, 0, 150, centre, corners[0], corners[1]);
    if (hasIndent) {
        file.IndentedRow(corners[2], corners[3]);
    } else {
        file.PlainRow(corners[1], corners[2], corners[3]);
    }
}

/// Writes a slab of five corners with the centre node first, so that its triangles fan out around that node. The
/// remaining triangle of the bay is a void or a thinner slab.
void WriteFanSlabs(CLineWriter& file, const CTower& tower, std::int64_t story, std::int64_t i, std::int64_t j,
                   std::int64_t& key)
{
    const std::int64_t centre = tower.CentreNode(story, i, j);
    const CCorners corners = BayCorners(tower, story, i, j);
    if (tower.HasLongSlabLines(j)) {
        WriteLongFan(file, ++key, centre, corners, tower.HasVoid(i));
    } else {
        file.Row(++key, 5, 0, CQuotient{300, 2}, centre, corners[0], corners[1], corners[2], corners[3]);
    }
    if (!tower.HasVoid(i)) {
        file.Row(++key, 3, 0, 100, centre, corners[3], corners[0]);
    }
}

}  // namespace

void WriteSlabs(CLineWriter& file, const CTower& tower, std::int64_t story)
{
    file.Text("C slabs");
    std::int64_t key = 0;
    for (std::int64_t j = 0; j < tower.baysY; ++j) {
        for (std::int64_t i = 0; i < tower.baysX; ++i) {
            if (!tower.HasSecondaryBeam(i)) {
                WriteFanSlabs(file, tower, story, i, j, key);
            } else if (!tower.IsCore(i, j)) {
                WriteHalfBaySlabs(file, tower, story, i, j, key);
            }
        }
    }
}

}  // namespace satwecvt
