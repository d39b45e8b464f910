// Records are written in the order of their keys, whatever their order in the file.

#include "support/CheckedConversion.h"
#include "support/SmallBuilding.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

using Lines = std::vector<std::string>;

/// One story whose records can be put into any order of their keys.
struct CBuilding {
    Lines sections = {"1 1 6 0 300 600 0 0 0 0\n0 0 0 0\n", "2 2 5 0 8 400 200 13 200 13\n0 0 0 0\n",
                      "3 12 5 0 800 760 0 0 0 0\n0 0 0 0\n"};
    Lines supports = {"1 101 0 0 0 0\n", "2 102 0 6000 0 0\n", "3 103 0 6000 5000 0\n", "4 104 0 0 5000 0\n"};
    Lines nodes = {"1 111 0 0 0 3600\n", "2 112 0 6000 0 3600\n", "3 113 0 6000 5000 3600\n", "7 114 0 0 5000 3600\n"};
    Lines beams = {"-3 111 112 1 0 0 0\n", "2 -112 113 2 0 0 15\n0 100 0 0 100 0\n", "30 113 114 3 0 0 0\n"};
    Lines columns = {"1 101 111 1 0 0 0\n", "2 -102 112 2 0 0 0\n0 103\n", "3 103 113 3 0 0 0\n"};
    Lines braces = {"1 101 112 2 0 0 0\n", "2 102 113 3 0 0 0\n", "3 103 114 1 0 0 0\n"};
    Lines walls = {"1 2 0 0 0 200 0 0 0 0\n111 112 101 102\n", "2 2 0 0 0 250 0 0 0 0\n112 113\n 102 103\n",
                   "9 2 0 0 0 200 0 0 0 0\n113 114 103 104\n"};
    Lines plates = {"1 4 0 120 111 112 113 114\n", "2 3 0 150 111 112 113\n", "3 4 0 100 111 112\n 113 114\n"};

    std::vector<Lines*> Members() { return {&beams, &columns, &braces, &walls, &plates}; }

    std::string Text() const
    {
        return "1 3 4 0 0\n" + JoinLines(sections) + JoinLines(supports) +
               "1 1 0\n1\n3600 30 40 35 25 16\n4 3 3 3 3 3\n" + JoinLines(nodes) + JoinLines(beams) +
               JoinLines(columns) + JoinLines(braces) + JoinLines(walls) + JoinLines(plates);
    }
};

std::string ModelOf(const CBuilding& building)
{
    CMemoryFiles system;
    system.files = {{"structure.sat", building.Text()}, {"load.sat", "1\n1 1 12 0 1 2 3\n"}};
    CScriptedInterface screen;
    const CConversionResult conversion = ConvertMemoryFiles(screen, system);
    EXPECT_EQ(0, conversion.result) << FailureReason(conversion);
    return conversion.model.value_or("");
}

/// The element lines without their numbers, which follow the order of the file.
Lines ElementsWithoutNumbers(const std::string& model)
{
    Lines lines;
    for (const std::string& line : SplitLines(model)) {
        if (line.find(", BEAM, ") != std::string::npos || line.find(", WALL, ") != std::string::npos ||
            line.find(", PLATE, ") != std::string::npos) {
            lines.push_back(line.substr(line.find(',')));
        }
    }
    return lines;
}

std::string NodeBlock(const std::string& model)
{
    return model.substr(0, model.find("*ELEMENT"));
}

TEST(RecordOrder, OfSectionsAndNodesChangesNoByte)
{
    const std::string expected = ModelOf(CBuilding());
    CBuilding shuffled;
    for (int turn = 0; turn < 24; ++turn) {
        std::next_permutation(shuffled.sections.begin(), shuffled.sections.end());
        std::next_permutation(shuffled.supports.begin(), shuffled.supports.end());
        std::next_permutation(shuffled.nodes.rbegin(), shuffled.nodes.rend());
        EXPECT_EQ("", FirstDifference(expected, ModelOf(shuffled)));
    }
}

TEST(RecordOrder, OfMembersChangesTheirNumbersAlone)
{
    const std::string expected = ModelOf(CBuilding());
    EXPECT_EQ(18U, ElementsWithoutNumbers(expected).size());
    CBuilding shuffled;
    for (int turn = 0; turn < 6; ++turn) {
        for (Lines* const members : shuffled.Members()) {
            std::next_permutation(members->begin(), members->end());
            const std::string model = ModelOf(shuffled);
            EXPECT_EQ(ElementsWithoutNumbers(expected), ElementsWithoutNumbers(model));
            EXPECT_EQ(NodeBlock(expected), NodeBlock(model));
        }
    }
}

}  // namespace
}  // namespace satwecvt
