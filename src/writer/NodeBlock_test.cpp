#include "writer/NodeBlock.h"

#include "finding/InvalidArgument.h"
#include "text/WrittenText_test.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace satwecvt {
namespace {

using CNodes = std::vector<std::pair<std::int32_t, T_SATWE_STND_D>>;  // by key

CRecordTable<T_SATWE_STND_D> TableOf(const CNodes& nodes)
{
    CRecordTable<T_SATWE_STND_D> table;
    for (const auto& [key, node] : nodes) {
        table.Insert(key, node);
    }
    table.SortByKey();
    return table;
}

T_SATWE_STIF_D StoryOf(std::int32_t count, const CNodes& nodes)
{
    T_SATWE_STIF_D story;
    story.nodeCount = count;
    story.nodes = TableOf(nodes);
    return story;
}

class NodeBlock : public testing::Test {
protected:
    std::string Written()
    {
        return WrittenText([&](COutputFile& file) { WriteNodes(file, model, writtenNodes, counts); });
    }

    CSatweModel model;
    CWrittenNodes writtenNodes;
    CWrittenCounts counts;
};

constexpr const char* kHeader =
    "*NODE    ; Nodes\n"
    "; iNO, X, Y, Z\n";

TEST_F(NodeBlock, WithoutNodesThereIsNoBlock)
{
    model.storyCount = 1;
    model.stories.Insert(1, StoryOf(0, {}));
    EXPECT_EQ("", Written());
    EXPECT_EQ(nullptr, writtenNodes.Find(0));
}

TEST_F(NodeBlock, ModelNodesStandInTheOrderOfTheirSignedKeys)
{
    model.nodeCount = 4;
    model.nodes = TableOf({{5, {50, 0, 1, 0, 0}}, {2, {99, 0, 2, 0, 0}}, {9, {10, 0, 3, 0, 0}}, {-3, {7, 0, 4, 0, 0}}});
    EXPECT_EQ(std::string(kHeader) +
                  "  7, 4, 0, 0\n"
                  "  99, 2, 0, 0\n"
                  "  50, 1, 0, 0\n"
                  "  10, 3, 0, 0\n"
                  "\n",
              Written());
    EXPECT_EQ(4, counts.nodes);
}

TEST_F(NodeBlock, StoriesFollowInTheOrderOfTheirKeys)
{
    model.nodeCount = 1;
    model.nodes = TableOf({{8, {8, 0, 0, 0, 0}}});
    model.storyCount = 2;
    model.stories.Insert(4, StoryOf(1, {{1, {41, 0, 0, 0, 6}}}));
    model.stories.Insert(-2, StoryOf(2, {{2, {22, 0, 0, 0, 3}}, {1, {21, 0, 0, 0, 3}}}));
    model.stories.SortByKey();
    EXPECT_EQ(std::string(kHeader) +
                  "  8, 0, 0, 0\n"
                  "  21, 0, 0, 3\n"
                  "  22, 0, 0, 3\n"
                  "  41, 0, 0, 6\n"
                  "\n",
              Written());
}

TEST_F(NodeBlock, CoordinatesHaveSixSignificantDigits)
{
    model.nodeCount = 2;
    model.nodes = TableOf({{1, {1, 0, 1500.0, 0.25, -0.0}}, {2, {2, 0, 1234567.0, 1e-7, 12345.678}}});
    EXPECT_EQ(std::string(kHeader) +
                  "  1, 1500, 0.25, -0\n"
                  "  2, 1.23457e+06, 1e-07, 12345.7\n"
                  "\n",
              Written());
}

TEST_F(NodeBlock, ACountSmallerThanTheTableTakesTheSmallestKeys)
{
    model.storyCount = 1;
    model.stories.Insert(1, StoryOf(2, {{3, {30, 0, 0, 0, 0}}, {1, {10, 0, 0, 0, 0}}, {2, {20, 0, 0, 0, 0}}}));
    EXPECT_EQ(std::string(kHeader) +
                  "  10, 0, 0, 0\n"
                  "  20, 0, 0, 0\n"
                  "\n",
              Written());
    EXPECT_NE(nullptr, writtenNodes.Find(20));
    EXPECT_EQ(nullptr, writtenNodes.Find(30));
}

TEST_F(NodeBlock, AStoryCountSmallerThanTheTableTakesTheSmallestKeys)
{
    model.storyCount = 1;
    model.stories.Insert(1, StoryOf(1, {{1, {10, 0, 0, 0, 0}}}));
    model.stories.Insert(2, StoryOf(1, {{1, {20, 0, 0, 0, 0}}}));
    EXPECT_EQ(std::string(kHeader) + "  10, 0, 0, 0\n\n", Written());
}

TEST_F(NodeBlock, ACountThatPromisesMoreIsTheInvalidArgumentFailure)
{
    model.nodeCount = 2;
    model.nodes = TableOf({{1, {1, 0, 0, 0, 0}}});
    EXPECT_THROW(Written(), CInvalidArgument);
}

TEST_F(NodeBlock, AStoryCountThatPromisesMoreIsTheInvalidArgumentFailure)
{
    model.storyCount = 2;
    model.stories.Insert(1, StoryOf(1, {{1, {10, 0, 0, 0, 0}}}));
    EXPECT_THROW(Written(), CInvalidArgument);
}

TEST_F(NodeBlock, OfTwoNodesWithOneNumberBothAreWrittenAndTheLaterIsFound)
{
    model.nodeCount = 1;
    model.nodes = TableOf({{1, {7, 0, 1, 0, 0}}});
    model.storyCount = 1;
    model.stories.Insert(1, StoryOf(1, {{1, {7, 0, 2, 0, 0}}}));
    EXPECT_EQ(std::string(kHeader) +
                  "  7, 1, 0, 0\n"
                  "  7, 2, 0, 0\n"
                  "\n",
              Written());
    EXPECT_EQ(2.0, writtenNodes.Find(7)->x);
}

TEST_F(NodeBlock, NodesAreFoundByTheirNumberNotByTheirKey)
{
    model.nodeCount = 1;
    model.nodes = TableOf({{1, {-7, 0, 1, 2, 3}}});
    Written();
    ASSERT_NE(nullptr, writtenNodes.Find(-7));
    EXPECT_EQ(3.0, writtenNodes.Find(-7)->z);
    EXPECT_EQ(nullptr, writtenNodes.Find(1));
}

}  // namespace
}  // namespace satwecvt
