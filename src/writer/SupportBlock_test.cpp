#include "writer/SupportBlock.h"

#include "finding/InvalidArgument.h"
#include "text/WrittenText_test.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace satwecvt {
namespace {

/// The block of model-level nodes with these keys and numbers, of which the header announces `count`.
std::string BlockOf(std::int32_t count, const std::vector<std::pair<std::int32_t, std::int32_t>>& nodes)
{
    CSatweModel model;
    model.nodeCount = count;
    for (const auto& [key, number] : nodes) {
        model.nodes.Insert(key, {number, 0, 0.0, 0.0, 0.0});
    }
    model.nodes.SortByKey();
    CWrittenCounts counts;
    return WrittenText([&](COutputFile& file) { WriteSupports(file, model, counts); });
}

const std::string kHeader =
    "*CONSTRAINT    ; Supports\n"
    "; NODE_LIST, CONST(Dx,Dy,Dz,Rx,Ry,Rz), GROUP\n";

TEST(SupportBlock, WithoutAnnouncedNodesThereIsNoBlock)
{
    EXPECT_EQ("", BlockOf(0, {}));
    EXPECT_EQ("", BlockOf(0, {{1, 10}}));
}

TEST(SupportBlock, NodesStandInTheOrderOfTheirKeys)
{
    EXPECT_EQ(kHeader +
                  "  40, 111111\n"
                  "  30, 111111\n"
                  "  10, 111111\n"
                  "  20, 111111\n"
                  "\n",
              BlockOf(4, {{5, 10}, {2, 30}, {9, 20}, {-1, 40}}));
}

TEST(SupportBlock, MissingKeysCountAs0AndRepeatTheLineBefore)
{
    EXPECT_EQ(kHeader +
                  "  10, 111111\n"  // key -1
                  "  10, 111111\n"  // two keys 0 that no node has
                  "  10, 111111\n"
                  "  20, 111111\n"  // key 5
                  "\n",
              BlockOf(4, {{5, 20}, {-1, 10}}));
}

TEST(SupportBlock, AMissingKeyWritesTheNodeOfKey0WhenThereIsOne)
{
    EXPECT_EQ(kHeader +
                  "  7, 111111\n"
                  "  7, 111111\n"
                  "  20, 111111\n"
                  "\n",
              BlockOf(3, {{0, 7}, {5, 20}}));
}

TEST(SupportBlock, MoreNodesThanAnnouncedAreTheInvalidArgumentFailure)
{
    EXPECT_THROW(BlockOf(1, {{1, 10}, {2, 20}}), CInvalidArgument);
    EXPECT_THROW(BlockOf(-1, {}), CInvalidArgument);
}

}  // namespace
}  // namespace satwecvt
