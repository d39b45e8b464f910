#include "picture/SectionName.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

namespace satwecvt {
namespace {

std::string NameOf(const std::string& shape, std::array<double, 9> values, ESection type = ESection::User)
{
    return SectionName({3, type, shape, values, {}, {}});
}

TEST(SectionName, TellsTheDimensions)
{
    EXPECT_EQ(NameOf("SB", {600, 300}), "300x600");
    EXPECT_EQ(NameOf("SB", {0.6, 0.25}), "0.25x0.6");
    EXPECT_EQ(NameOf("SR", {60}), "D60");
    EXPECT_EQ(NameOf("H", {400, 200, 8, 13.5, 200, 13.5}), "H400x200x8x13.5");
    EXPECT_EQ(NameOf("C", {300, 89, 9, 13.5, 89, 13.5}), "C300x89x9x13.5");
    EXPECT_EQ(NameOf("2C", {200, 75, 8.5, 11, 10, 0}), "2C200x75x8.5x11");
    EXPECT_EQ(NameOf("B", {400, 300, 16, 20, 0, 20}), "B400x300x16x20");
    EXPECT_EQ(NameOf("P", {245, 12}), "P245x12");
}

TEST(SectionName, IsTheModelsWhereDimensionsSayLittle)
{
    EXPECT_EQ(NameOf("SB", {200, 200}, ESection::Value), "Sec3");
    EXPECT_EQ(NameOf("H2T", {400, 200}, ESection::Combined), "Sec3");
    EXPECT_EQ(NameOf("EPC", {}, ESection::Composite), "Sec3");
    EXPECT_EQ(NameOf("?", {1, 2}), "Sec3");
    EXPECT_EQ(NameOf("SB", {600, std::nan("")}), "Sec3");
}

}  // namespace
}  // namespace satwecvt
