#include "picture/ColumnBytes.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

using namespace std::string_literals;

using CIntegers = std::vector<std::int32_t>;
using CReals = std::vector<double>;
using CTexts = std::vector<std::string>;

/// The bytes of a column that is called "c", behind its name.
template <class Values>
std::string Column(const Values& values)
{
    CColumnBytes columns;
    const std::size_t start = columns.Bytes().size();
    columns.Add("c", values);
    EXPECT_EQ(columns.Bytes().substr(start, 2), "\1c");
    return columns.Bytes().substr(start + 2);
}

TEST(ColumnBytes, BeginWithAMarkAndAVersion)
{
    EXPECT_EQ(CColumnBytes().Bytes(), "SATV\1\0\0\0"s);
}

TEST(ColumnBytes, OfIntegersAreAsNarrowAsTheyCanBe)
{
    EXPECT_EQ(Column(CIntegers{}), "\3\0\0\0\0"s);
    EXPECT_EQ(Column(CIntegers{-2, -2}), "\x0A\2\0\0\0\xFE\xFF\xFF\xFF"s);
    EXPECT_EQ(Column(CIntegers{-128, 127}), "\1\2\0\0\0\x80\x7F"s);
    EXPECT_EQ(Column(CIntegers{-129, 32767}), "\2\2\0\0\0\x7F\xFF\xFF\x7F"s);
    EXPECT_EQ(Column(CIntegers{0x01020304, -1}), "\3\2\0\0\0\4\3\2\1\xFF\xFF\xFF\xFF"s);
}

TEST(ColumnBytes, OfIntegersThatCountUpAreDifferences)
{
    EXPECT_EQ(Column(CIntegers{100, 200, 300}), "\4\3\0\0\0\x64\x64\x64"s);
    EXPECT_EQ(Column(CIntegers{1, 1000, 70000, 69000}), "\3\4\0\0\0\1\0\0\0\xE8\3\0\0\x70\x11\1\0\x88\x0D\1\0"s);
    EXPECT_EQ(Column(CIntegers{1000, 31000, 61000}), "\5\3\0\0\0\xE8\3\x30\x75\x30\x75"s);
}

TEST(ColumnBytes, OfIntegersHoldTheLimits)
{
    constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(Column(CIntegers{kMost, kLeast}), "\3\2\0\0\0\xFF\xFF\xFF\x7F\0\0\0\x80"s);
}

TEST(ColumnBytes, OfRealsAreIndexesWhereThatIsShorter)
{
    const std::string one = "\0\0\0\0\0\0\xF0\x3F"s;
    const std::string two = "\0\0\0\0\0\0\0\x40"s;
    EXPECT_EQ(Column(CReals{}), "\6\0\0\0\0"s);
    EXPECT_EQ(Column(CReals{1.0}), "\x0B\1\0\0\0"s + one);
    EXPECT_EQ(Column(CReals{1.0, 1.0}), "\x0B\2\0\0\0"s + one);
    EXPECT_EQ(Column(CReals{1.0, 2.0}), "\6\2\0\0\0"s + one + two);
    EXPECT_EQ(Column(CReals{1.0, 2.0, 1.0, 1.0}), "\7\4\0\0\0\2\0\0\0"s + one + two + "\0\1\0\0"s);
}

TEST(ColumnBytes, OfRealsKeepTheSignOfZeroAndWhatIsNoNumber)
{
    const std::string zero(8, '\0');
    const std::string minusZero = "\0\0\0\0\0\0\0\x80"s;
    const std::string infinity = "\0\0\0\0\0\0\xF0\x7F"s;
    EXPECT_EQ(Column(CReals{0.0, -0.0}), "\6\2\0\0\0"s + zero + minusZero);
    EXPECT_EQ(Column(CReals{std::numeric_limits<double>::infinity()}), "\x0B\1\0\0\0"s + infinity);
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Column(CReals{kNan, -kNan}), "\x0B\2\0\0\0\0\0\0\0\0\0\xF8\x7F"s);
}

/// 257 values need an index of two bytes; 65537 of them have none.
TEST(ColumnBytes, OfRealsCountTheirDistinctValues)
{
    const auto cycle = [](std::size_t distinct, std::size_t count) {
        CReals values;
        for (std::size_t i = 0; i < count; ++i) {
            values.push_back(static_cast<double>(i % distinct));
        }
        return Column(values);
    };
    constexpr std::size_t kHead = 1 + 4;  // form, count
    EXPECT_EQ(cycle(256, 1024)[0], '\7');
    EXPECT_EQ(cycle(256, 1024).size(), kHead + 4 + 256 * 8 + 1024);
    EXPECT_EQ(cycle(257, 1028)[0], '\x08');
    EXPECT_EQ(cycle(257, 1028).size(), kHead + 4 + 257 * 8 + 1028 * 2);
    EXPECT_EQ(cycle(65536, 262144)[0], '\x08');
    EXPECT_EQ(cycle(65537, 262148)[0], '\6');
    EXPECT_EQ(cycle(65537, 262148).size(), kHead + 262148 * 8);
}

TEST(ColumnBytes, OfTextsTellTheirLengthBeforehand)
{
    CColumnBytes columns;
    const std::size_t start = columns.Bytes().size();
    columns.Add("name", CTexts{"abc", "", "de"});
    EXPECT_EQ(CColumnBytes::BytesOfTexts("name", 3, 5), columns.Bytes().size() - start);
}

TEST(ColumnBytes, OfTextsAreBytesWhateverTheyMean)
{
    EXPECT_EQ(Column(CTexts{}), "\x09\0\0\0\0"s);
    EXPECT_EQ(Column(CTexts{"", "ab", "\0<\xFF"s}), "\x09\3\0\0\0\0\0\0\0\2\0\0\0\3\0\0\0ab\0<\xFF"s);
}

}  // namespace
}  // namespace satwecvt
