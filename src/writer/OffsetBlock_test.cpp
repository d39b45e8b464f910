#include "writer/OffsetBlock.h"

#include "writer/WrittenText_test.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

std::string BlockOf(const CSatweModel& model)
{
    CWrittenCounts counts;
    return WrittenText([&](COutputFile& file) { WriteOffsets(file, model, counts); });
}

TEST(OffsetBlock, WithoutOffsetsThereIsNoBlock)
{
    EXPECT_EQ("", BlockOf(CSatweModel()));
}

TEST(OffsetBlock, OffsetsStandInTheirOrderWithSixSignificantDigits)
{
    CSatweModel model;
    model.offsets = {{9, {0.25, 1e-7, -0.5, 1500, 0, -0.0}}, {3, {1, 2, 3, 4, 5, 6.7654321}}};
    EXPECT_EQ(
        "*OFFSET    ; Beam End Offsets\n"
        "; ELEM_LIST, TYPE, RGDXi, RGDYi, RGDZi, RGDXj, RGDYj, RGDZj, GROUP  ; TYPE=GLOBAL\n"
        "; ELEM_LIST, TYPE, RGDi, RGDj, GROUP                                ; TYPE=ELEMENT\n"
        "  9, GLOBAL, 0.25, 1e-07, -0.5, 1500, 0, -0,  \n"
        "  3, GLOBAL, 1, 2, 3, 4, 5, 6.76543,  \n"
        "\n",
        BlockOf(model));
}

}  // namespace
}  // namespace satwecvt
