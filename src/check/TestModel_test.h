// Small buildings for tests, record by record. Lines tell records apart: a story begins at its thousand, its nodes
// stand in the lines behind, beams from 100 on, columns from 200, braces 300, walls 400, plates 500; supports in lines
// 1, 2, ...
#pragma once

#include "model/SatweModel.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace satwecvt {

class CTestModel {
public:
    CTestModel() { Section(1, ESectionKind::Rectangle, kConcreteMark); }

    CTestModel& Section(std::int32_t number, ESectionKind kind, std::int32_t mark)
    {
        T_SATWE_SECT_D section;
        section.number = number;
        section.kind = kind;
        section.param1 = mark;
        section.line = 900 + number;
        model.inputSections.Insert(number, section);
        return *this;
    }

    CTestModel& Support(std::int32_t number, double x, double y, double z)
    {
        const std::int32_t key = ++model.nodeCount;
        model.nodes.Insert(key, {number, key, x, y, z});
        return *this;
    }

    /// What is added from now on belongs to this story. Its number is the key and 10.
    CTestModel& Story(std::int32_t key)
    {
        EndStory();
        story.key = key;
        story.storyNo = key + 10;
        story.line = 1000 * ++model.storyCount;
        return *this;
    }

    CTestModel& Grades(double beams, double columns, std::int32_t steel)
    {
        story.storyValues = {0, beams, columns, 30, 30};
        story.storyExtra = steel;
        return *this;
    }

    CTestModel& Node(std::int32_t number, double x, double y, double z)
    {
        const std::int32_t key = ++story.nodeCount;
        story.nodes.Insert(key, {number, story.line + key, x, y, z});
        return *this;
    }

    CTestModel& Beam(std::int32_t i, std::int32_t j, std::int32_t section = 1)
    {
        const std::int32_t key = ++story.beamCount;
        story.beams.Insert(key, {TakeSeq(1), i, j, section, 0, story.line + 100 + key, 0});
        return *this;
    }

    CTestModel& Column(std::int32_t i, std::int32_t j, std::int32_t section = 1)
    {
        const std::int32_t key = ++story.columnCount;
        story.columns.Insert(key, {TakeSeq(1), i, j, section, 0, 0, 0, story.line + 200 + key, 0});
        return *this;
    }

    CTestModel& SplitColumn(std::int32_t i, std::int32_t split, std::int32_t j)
    {
        const std::int32_t key = ++story.columnCount;
        story.columns.Insert(key, {TakeSeq(2), i, -j, 1, 0, 1, split, story.line + 200 + key, 0});
        return *this;
    }

    CTestModel& Brace(std::int32_t i, std::int32_t j, std::int32_t section = 1)
    {
        const std::int32_t key = ++story.braceCount;
        story.braces.Insert(key, {TakeSeq(1), i, j, section, 0, story.line + 300 + key, 0});
        return *this;
    }

    CTestModel& Wall(CNodeRow upper, CNodeRow lower, double thickness = 200)
    {
        const std::int32_t key = ++story.wallCount;
        const std::int32_t line = story.line + 400 + key;
        story.walls.Insert(key, {TakeSeq(1), 2, {0, thickness, 0, 0, 0, 0}, upper, lower, line});
        return *this;
    }

    CTestModel& Plate(const std::vector<std::int32_t>& outline, double thickness = 100)
    {
        const std::int32_t key = ++story.plateCount;
        const auto corners = static_cast<std::int32_t>(outline.size());
        const auto first = static_cast<std::uint32_t>(story.plateVertices.size());
        story.plateVertices.insert(story.plateVertices.end(), outline.begin(), outline.end());
        const std::int32_t line = story.line + 500 + key;
        story.plates.Insert(key, {TakeSeq(corners - 2), corners, thickness, first, corners, line});
        return *this;
    }

    /// The finished model.
    const CSatweModel& Model()
    {
        EndStory();
        model.inputSections.SortByKey();
        model.nodes.SortByKey();
        model.stories.SortByKey();
        return model;
    }

private:
    std::int32_t TakeSeq(std::int32_t count) { return std::exchange(seq, seq + count); }

    void EndStory()
    {
        if (story.line != 0) {
            const std::int32_t key = story.key;
            model.stories.Insert(key, std::exchange(story, {}));
        }
    }

    CSatweModel model;
    T_SATWE_STIF_D story;
    std::int32_t seq = 1;
};

/// One story of four columns, 8 by 6 in the plan and 3 high, with beams 1 to 4 around and columns of the element
/// numbers 5 to 8. Its supports have the numbers 1 to 4, its nodes 5 to 8 above them.
inline CTestModel Portal()
{
    CTestModel portal;
    portal.Support(1, 0, 0, 0).Support(2, 8, 0, 0).Support(3, 8, 6, 0).Support(4, 0, 6, 0);
    portal.Story(1).Node(5, 0, 0, 3).Node(6, 8, 0, 3).Node(7, 8, 6, 3).Node(8, 0, 6, 3);
    portal.Beam(5, 6).Beam(6, 7).Beam(7, 8).Beam(8, 5);
    portal.Column(1, 5).Column(2, 6).Column(3, 7).Column(4, 8);
    return portal;
}

}  // namespace satwecvt
