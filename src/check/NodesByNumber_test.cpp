#include "check/NodesByNumber.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

TEST(NodesByNumber, OfSeveralWithOneNumberTheLastIsFound)
{
    CModelFile model;
    model.nodes = {{7, 1, 0, 0}, {3, 2, 0, 0}, {7, 3, 0, 0}, {-7, 4, 0, 0}};
    const CNodesByNumber nodes(model);
    EXPECT_EQ(&model.nodes[2], nodes.Find(7));
    EXPECT_EQ(&model.nodes[1], nodes.Find(3));
    EXPECT_EQ(&model.nodes[3], nodes.Find(-7));
    EXPECT_EQ(nullptr, nodes.Find(4));
}

TEST(NodesByNumber, AModelWithoutNodesHasNone)
{
    EXPECT_EQ(nullptr, CNodesByNumber(CModelFile{}).Find(0));
}

}  // namespace
}  // namespace satwecvt
