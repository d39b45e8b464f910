#include "StoryBlocks.h"

namespace satwecvt {

namespace {

/// An opening in a wall, in mm; all 0 for a wall without one.
struct COpening {
    int left;
    int width;
    int height;
};

constexpr COpening kDoor = {1500, 1100, 2200};
constexpr COpening kNoOpening = {0, 0, 0};

/// A core wall along x, under the beams of the grid line j in the bay i.
struct CCoreXWall {
    std::int64_t key;
    std::int64_t i;
    std::int64_t j;
    COpening opening;
};

void WriteLowestCoreXWall(CLineWriter& file, const CTower& tower, const CCoreXWall& wall)
{
    const auto& [key, i, j, opening] = wall;
    file.Row(key, 2, 0, 0, 0, 400, opening.left, 0, opening.width, opening.height);
    file.Row(tower.GridNode(1, i, j), tower.GridNode(1, i + 1, j), tower.GridNode(0, i, j),
             tower.GridNode(0, i + 1, j));
}

/// Above the first story the rows have a middle node too. A wall with an opening takes a third line for its corners.
void WriteUpperCoreXWall(CLineWriter& file, const CTower& tower, std::int64_t story, const CCoreXWall& wall)
{
    const auto& [key, i, j, opening] = wall;
    const std::int64_t below = story - 1;
    const std::int64_t top[] = {tower.GridNode(story, i, j), tower.MiddleNode(story, i, j),
                                tower.GridNode(story, i + 1, j)};
    const std::int64_t low[] = {tower.GridNode(below, i, j), tower.MiddleNode(below, i, j),
                                tower.GridNode(below, i + 1, j)};
    const bool hasOpening = opening.width > 0;
    file.Row(key, 3, hasOpening ? 2 : 0, 0, 0, 300, opening.left, 0, opening.width, opening.height);
    file.Row(top[0], top[1], top[2], low[0], low[1], low[2]);
    if (hasOpening) {
        file.Row(top[0], top[2], low[0], low[2]);
    }
}

void WriteCoreXWall(CLineWriter& file, const CTower& tower, std::int64_t story, const CCoreXWall& wall)
{
    if (story == 1) {
        WriteLowestCoreXWall(file, tower, wall);
    } else {
        WriteUpperCoreXWall(file, tower, story, wall);
    }
}

/// A core wall along the grid line i, in the bay j.
void WriteCoreYWall(CLineWriter& file, const CTower& tower, std::int64_t story, std::int64_t key, std::int64_t i,
                    std::int64_t j)
{
    file.Row(key, 2, 0, 0, 0, story == 1 ? 400 : 300, 0, 0, 0, 0);
    file.Row(tower.GridNode(story, i, j), tower.GridNode(story, i, j + 1), tower.GridNode(story - 1, i, j),
             tower.GridNode(story - 1, i, j + 1));
}

/// A wall whose upper row stands in the first grid line and whose lower row stands in the second.
void WriteLeaningWall(CLineWriter& file, const CTower& tower, std::int64_t story, std::int64_t key)
{
    file.Row(key, 2, 0, 0, 0, 250, 0, 0, 0, 0);
    file.Row(tower.GridNode(story, 0, 0), tower.GridNode(story, 0, 1), tower.GridNode(story - 1, 1, 0),
             tower.GridNode(story - 1, 1, 1));
}

}  // namespace

void WriteWalls(CLineWriter& file, const CTower& tower, std::int64_t story)
{
    file.Text("C walls");
    std::int64_t key = 0;
    for (std::int64_t j = 2; j < tower.baysY; j += 6) {
        for (std::int64_t i = 3; i < tower.baysX; i += 9) {
            WriteCoreXWall(file, tower, story, {++key, i, j, kDoor});
            WriteCoreXWall(file, tower, story, {++key, i, j + 1, kNoOpening});
            WriteCoreYWall(file, tower, story, ++key, i, j);
            WriteCoreYWall(file, tower, story, ++key, i + 1, j);
        }
    }
    if (story == tower.stories) {
        WriteLeaningWall(file, tower, story, ++key);
    }
}

}  // namespace satwecvt
