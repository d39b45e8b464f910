#include "writer/OffsetBlock.h"

#include "text/WrittenText_test.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

std::string BlockOf(const std::vector<T_SATWE_BEOF_D>& offsets)
{
    const CSatweModel model;
    CConversionTables tables(model);
    tables.offsets = offsets;
    CWrittenCounts counts;
    return WrittenText([&](COutputFile& file) { WriteOffsets(file, tables, counts); });
}

TEST(OffsetBlock, WithoutOffsetsThereIsNoBlock)
{
    EXPECT_EQ("", BlockOf({}));
}

TEST(OffsetBlock, OffsetsStandInTheirOrderWithSixSignificantDigits)
{
    constexpr std::array<double, 6> kFirst{0.25, 1e-7, -0.5, 1500, 0, -0.0};
    constexpr std::array<double, 6> kSecond{1, 2, 3, 4, 5, 6.7654321};
    EXPECT_EQ(
        "*OFFSET    ; Beam End Offsets\n"
        "; ELEM_LIST, TYPE, RGDXi, RGDYi, RGDZi, RGDXj, RGDYj, RGDZj, GROUP  ; TYPE=GLOBAL\n"
        "; ELEM_LIST, TYPE, RGDi, RGDj, GROUP                                ; TYPE=ELEMENT\n"
        "  9, GLOBAL, 0.25, 1e-07, -0.5, 1500, 0, -0,  \n"
        "  3, GLOBAL, 1, 2, 3, 4, 5, 6.76543,  \n"
        "\n",
        BlockOf({{9, &kFirst}, {3, &kSecond}}));
}

}  // namespace
}  // namespace satwecvt
