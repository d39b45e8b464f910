#include "LineWriter.h"
#include "SectionTable.h"
#include "StoryBlocks.h"
#include "TowerFiles.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace satwecvt {

namespace {

constexpr std::array<std::string_view, 10> kHead = {
    "C Tower sample, structure file. Lengths in mm. Lines that start with C are comments.",
    "c Header: stories, sections, support nodes, two counts of no use here",
    "C Sections: number, kind, steel (5) or concrete (6), 0, six dimensions; then four more dimensions",
    "C Support nodes and story nodes: key, node number, 0, x, y, z",
    "C Beams: key, node i, node j, section, release, 0, angle; a negative node: end offsets on the next line",
    "C Columns, braces: key, node i, node j, section, release, 0, angle; columns: a negative node: split node follows",
    "C Walls: key, nodes per row, further nodes, 0, 0, thickness, opening (4); then upper row, lower row",
    "C Slabs: key, corners, 0, thickness, corner nodes",
    "C Stories: two lines of numbers; height, concrete grades of beams, columns, walls, slabs, steel grade; counts",
    "",
};

// Lines of a story beside its nodes and members.
constexpr std::int64_t kStoryFrame = 12;     // four story lines, a blank line, seven comments
constexpr std::int64_t kRepeatedGrades = 2;  // a comment and the line of grades again

void WriteSections(CLineWriter& file)
{
    for (const CSectionRow& row : kSections) {
        const auto& dims = row.dims;
        if (row.number == ESection::ConcreteBeam) {
            file.Row(row.number, row.kind, row.param1, 0, CProduct{2, 150}, CSum{600, 50}, dims[2], dims[3], dims[4],
                     dims[5]);
        } else {
            file.Row(row.number, row.kind, row.param1, 0, dims[0], dims[1], dims[2], dims[3], dims[4], dims[5]);
        }
        file.Row(0, 0, 0, 0);
    }
}

/// The line of height and grades may stand several times, with comments in between and in any case of letters.
void WriteGrades(CLineWriter& file, const CTower& tower, std::int64_t story)
{
    static constexpr std::string_view kGrades[] = {" 35 60 50 30 16", " 30 50 50 30 3", " 30 40 40 30 15"};
    const auto system = static_cast<std::size_t>(tower.System(story));
    const std::string line = std::to_string(tower.Height(story)) + std::string(kGrades[system]);
    file.Text(line + " TEXT=HEIGHT,GRADES");
    if (tower.HasRepeatedGrades(story)) {
        file.Text("c the same again");
        file.Text(line + " text=height,grades");
    }
}

void WriteStory(CLineWriter& file, const CTower& tower, std::int64_t story)
{
    static constexpr std::string_view kNames[] = {"composite", "concrete", "steel"};
    const auto system = static_cast<std::size_t>(tower.System(story));
    file.Text("");
    file.Text("C ---- story " + std::to_string(story) + ": " + std::string(kNames[system]) + " frame ----");
    file.Row(story, story, 0);
    file.Row(story);
    WriteGrades(file, tower, story);
    file.Row(tower.Nodes(), tower.Beams(), tower.Columns(), tower.Braces(), tower.Walls(story), tower.Slabs());
    WriteNodes(file, tower, story);
    WriteBeams(file, tower, story);
    WriteColumns(file, tower, story);
    WriteBraces(file, tower, story);
    WriteWalls(file, tower, story);
    WriteSlabs(file, tower, story);
}

}  // namespace

std::int64_t StructureLines(const CTower& tower)
{
    std::int64_t lines = std::ssize(kHead) + 1 + 2 * std::ssize(kSections) + tower.GridNodes();
    for (std::int64_t story = 1; story <= tower.stories; ++story) {
        lines += kStoryFrame + (tower.HasRepeatedGrades(story) ? kRepeatedGrades : 0);
        lines += tower.Nodes() + tower.Beams() + tower.OffsetBeams() + tower.Columns() + tower.SplitColumns();
        lines += tower.Braces() + tower.WallLines(story) + tower.Slabs() + tower.LongSlabs();
    }
    return lines;
}

void WriteStructureFile(const std::string& path, const CTower& tower)
{
    CLineWriter file(path);
    file.Texts(kHead);
    file.Row(tower.stories, std::ssize(kSections), tower.GridNodes(), 0, 0);
    WriteSections(file);
    WriteGridNodes(file, tower, 0);
    for (std::int64_t story = 1; story <= tower.stories; ++story) {
        WriteStory(file, tower, story);
    }
    file.Close(StructureLines(tower));
}

}  // namespace satwecvt
