#include "LineWriter.h"
#include "TowerFiles.h"

#include <array>
#include <iterator>
#include <string_view>

namespace satwecvt {

namespace {

constexpr std::array<std::string_view, 4> kHead = {
    "C Tower sample, load file. Forces in N, lengths in mm. One block per story: a count, then that many loads.",
    "C Load: running number, loaded beam, node or wall, type, case (0 dead, 1 live), values",
    "C Types: 1 force, 2 line load, 3 triangle, 4 trapezoid on beams; 11, 12 on nodes; 21 force, 22 line load on walls",
    "C Type 31, once in the first story, has no counterpart in the model and falls away.",
};

constexpr std::int64_t kStoryFrame = 3;  // lines beside the loads: a blank line, a comment, the count

/// Writes one of seven load patterns. The shortest beam is 4200 mm long, and all distances are within it.
void WriteBeamLoad(CLineWriter& file, std::int64_t number, std::int64_t beam)
{
    switch (beam % 8) {
    case 0:
        file.Row(number, beam, 1, 0, CSum{20000, 500 * (beam % 17)}, 1800);
        break;
    case 1:
        file.Row(number, beam, 2, 0, CQuotient{25, 2}, 9.5, 0, 4200);
        break;
    case 2:
        file.Row(number, beam, 4, 0, 18 + beam % 5, 1800, 0, 0, 0, 0);
        break;
    case 3:
        file.Row(number, beam, 4, 1, CProduct{2, 5}, 2100);
        break;
    case 4:
        file.Row(number, beam, 3, 1, 12.25, 600, 1500);
        break;
    case 5:
        file.Row(number, beam, 2, 1, 8, 8, CSum{300, 300}, 3600);
        break;
    default:
        file.Row(number, beam, 1, 1, 15000 + 250 * (beam % 13), CProduct{7, 300}, 0, 0, 0, 0);
        break;
    }
}

void WriteBeamLoads(CLineWriter& file, const CTower& tower, std::int64_t& number)
{
    for (std::int64_t beam = 1; beam <= tower.Beams(); ++beam) {
        if (beam % 8 != 7) {
            WriteBeamLoad(file, ++number, beam);
        }
    }
}

/// Fixtures hang on every fifth column line. The wind blows on the face at y = 0.
void WriteNodeLoads(CLineWriter& file, const CTower& tower, std::int64_t story, std::int64_t& number)
{
    for (std::int64_t j = 0; j <= tower.baysY; ++j) {
        for (std::int64_t i = 0; i <= tower.baysX; i += 5) {
            file.Row(++number, tower.GridNode(story, i, j), 11, 0, 32000, CSum{4000000, 500000}, -1.2e6);
        }
    }
    for (std::int64_t i = 0; i <= tower.baysX; ++i) {
        file.Row(++number, tower.GridNode(story, i, 0), 12, 1, 0, 0, 18500 + 120 * story);
    }
}

void WriteWallLoads(CLineWriter& file, const CTower& tower, std::int64_t& number)
{
    const std::int64_t coreWalls = 4 * tower.Cores();
    for (std::int64_t wall = 1; wall <= coreWalls; ++wall) {
        file.Row(++number, wall, 22, wall % 2, 14.5);
        if (wall % 4 == 1) {
            file.Row(++number, wall, 21, 1, 48000, CQuotient{6300, 2});
        }
    }
}

/// Writes two loads that a conversion leaves out: a trapezoid without height, with a message, and a load of type 31.
void WriteOddLoads(CLineWriter& file, std::int64_t& number)
{
    file.Row(++number, 3, 4, 0, 0, 1800);
    file.Row(++number, 1, 31, 1, 5, 0);
}

void WriteStoryLoads(CLineWriter& file, const CTower& tower, std::int64_t story)
{
    file.Text("");
    file.Text("C ---- story " + std::to_string(story) + " ----");
    file.Row(tower.Loads(story));
    std::int64_t number = 0;
    WriteBeamLoads(file, tower, number);
    WriteNodeLoads(file, tower, story, number);
    WriteWallLoads(file, tower, number);
    if (story == 1) {
        WriteOddLoads(file, number);
    }
}

}  // namespace

std::int64_t LoadLines(const CTower& tower)
{
    std::int64_t lines = std::ssize(kHead);
    for (std::int64_t story = 1; story <= tower.stories; ++story) {
        lines += kStoryFrame + tower.Loads(story);
    }
    return lines;
}

void WriteLoadFile(const std::string& path, const CTower& tower)
{
    CLineWriter file(path);
    file.Texts(kHead);
    for (std::int64_t story = 1; story <= tower.stories; ++story) {
        WriteStoryLoads(file, tower, story);
    }
    file.Close(LoadLines(tower));
}

}  // namespace satwecvt
