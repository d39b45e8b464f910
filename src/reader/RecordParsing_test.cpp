// The column of every field: each line holds the numbers 1, 2, 3, ... or has its columns named beside it.

#include "reader/RecordParsing.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>

namespace satwecvt {
namespace {

CLineNumbers Line(std::vector<double> values)
{
    CLineNumbers numbers;
    numbers.Values() = std::move(values);
    return numbers;
}

/// The line 1, 2, 3, ... `count`.
CLineNumbers Counting(std::size_t count)
{
    std::vector<double> values(count);
    std::iota(values.begin(), values.end(), 1.0);
    return Line(values);
}

/// A record's parsing fails for a line with one number too few, and takes one with just enough and with more.
template <class Parse>
void ExpectRequired(std::size_t count, Parse parse)
{
    EXPECT_THROW(parse(Counting(0)), CInvalidArgument);
    EXPECT_THROW(parse(Counting(count - 1)), CInvalidArgument);
    EXPECT_NO_THROW(parse(Counting(count)));
    EXPECT_NO_THROW(parse(Counting(count + 5)));
}

TEST(LineNumbers, NumbersCountFrom1)
{
    const CLineNumbers numbers = Line({10.5, -20.5});
    EXPECT_EQ(2U, numbers.Count());
    EXPECT_EQ(10.5, numbers.Real(1));
    EXPECT_EQ(-20.5, numbers.Real(2));
}

TEST(LineNumbers, IntegersAreTruncatedAndSaturated)
{
    const CLineNumbers numbers = Line({2.9, -2.9, 1e10, std::numeric_limits<double>::quiet_NaN()});
    EXPECT_EQ(2, numbers.Integer(1));
    EXPECT_EQ(-2, numbers.Integer(2));
    EXPECT_EQ(2147483647, numbers.Integer(3));
    EXPECT_EQ(0, numbers.Integer(4));
}

TEST(LineNumbers, ANumberThatMayBeMissingIs0)
{
    const CLineNumbers numbers = Line({2.9});
    EXPECT_EQ(2.9, numbers.RealOr0(1));
    EXPECT_EQ(2, numbers.IntegerOr0(1));
    EXPECT_EQ(0.0, numbers.RealOr0(2));
    EXPECT_EQ(0, numbers.IntegerOr0(2));
}

TEST(RecordParsing, ASectionTakesTwoLines)
{
    T_SATWE_SECT_D section = ParseSectionLineA(Counting(10));
    ParseSectionLineB(Line({11, 12, 13, 14}), section);
    EXPECT_EQ((T_SATWE_SECT_D{ESectionKind::H, 3, 4, {5, 6, 7, 8, 9, 10, 11, 12, 13, 14}, 0, 0, 0, 1}), section);
    EXPECT_EQ(1, section.number);
    ExpectRequired(10, [](const CLineNumbers& line) { ParseSectionLineA(line); });
    ExpectRequired(4, [&](const CLineNumbers& line) { ParseSectionLineB(line, section); });
}

TEST(RecordParsing, ANodeTakesSixNumbers)
{
    const T_SATWE_STND_D node = ParseNode(Counting(6));
    EXPECT_EQ(2, node.number);
    EXPECT_EQ(4.0, node.x);
    EXPECT_EQ(5.0, node.y);
    EXPECT_EQ(6.0, node.z);
    ExpectRequired(6, ParseNode);
}

TEST(RecordParsing, ANegativeEndNodeBringsAnExtraLine)
{
    EXPECT_FALSE(HasExtraLine(Line({-1, 2, 3, -4}), "a beam"));
    EXPECT_FALSE(HasExtraLine(Line({1, 0, 0}), "a beam"));
    EXPECT_FALSE(HasExtraLine(Line({1, -0.5, -0.5}), "a beam"));  // truncated to 0
    EXPECT_TRUE(HasExtraLine(Line({1, -2, 3}), "a beam"));
    EXPECT_TRUE(HasExtraLine(Line({1, 2, -3}), "a beam"));
    EXPECT_THROW(HasExtraLine(Counting(2), "a beam"), CInvalidArgument);
}

TEST(RecordParsing, ABeamTakesSevenNumbers)
{
    const T_SATWE_STBM_D beam = ParseBeam(Line({1, -2, 3, 4, 5, 6, 7.5}));
    EXPECT_EQ(-2, beam.nodeI);
    EXPECT_EQ(3, beam.nodeJ);
    EXPECT_EQ(4, beam.c3);
    EXPECT_EQ(5, beam.c4);
    EXPECT_EQ(7.5, beam.d6);
    ExpectRequired(7, ParseBeam);
}

TEST(RecordParsing, TheExtraLineOfABeamHoldsSixOffsets)
{
    EXPECT_EQ((std::array<double, 6>{1, 2, 3, 4, 5, 6}), ParseBeamExtra(Counting(7)));
    ExpectRequired(6, ParseBeamExtra);
}

TEST(RecordParsing, AColumnTakesSevenNumbers)
{
    const T_SATWE_STCL_D column = ParseColumn(Line({1, 2, -3, 4, 5, 6, 7.5}));
    EXPECT_EQ(2, column.nodeI);
    EXPECT_EQ(-3, column.nodeJ);
    EXPECT_EQ(4, column.c3);
    EXPECT_EQ(5, column.c4);
    EXPECT_EQ(7.5, column.d6);
    EXPECT_EQ(0, column.hasExtra);
    ExpectRequired(7, ParseColumn);
}

TEST(RecordParsing, TheSecondNumberOfAColumnsExtraLineIsItsNode)
{
    T_SATWE_STCL_D column;
    ParseColumnExtra(Line({1, 22.7}), column);
    EXPECT_NE(0, column.hasExtra);
    EXPECT_EQ(22, column.extraValue);
    ExpectRequired(2, [&](const CLineNumbers& line) { ParseColumnExtra(line, column); });
}

TEST(RecordParsing, ABraceTakesSevenNumbers)
{
    const T_SATWE_STBR_D brace = ParseBrace(Line({1, 2, 3, 4, 5, 6, 7.5}));
    EXPECT_EQ(2, brace.nodeI);
    EXPECT_EQ(3, brace.nodeJ);
    EXPECT_EQ(4, brace.c3);
    EXPECT_EQ(5, brace.c4);
    EXPECT_EQ(7.5, brace.d6);
    ExpectRequired(7, ParseBrace);
}

TEST(RecordParsing, AWallTakesTenNumbers)
{
    std::int32_t secondCount = 0;
    const T_SATWE_STWL_D wall = ParseWallLine1(Counting(10), secondCount);
    EXPECT_EQ(2, wall.firstCount);
    EXPECT_EQ(3, secondCount);
    EXPECT_EQ((std::array<double, 6>{5, 6, 7, 8, 9, 10}), wall.wallValues);
    ExpectRequired(10, [&](const CLineNumbers& line) { ParseWallLine1(line, secondCount); });
}

TEST(RecordParsing, AWallKeepsTheEndsOfItsTwoRows)
{
    T_SATWE_STWL_D wall;
    wall.firstCount = 3;
    ParseWallPoints(Line({11, 12, 13, 21, 22, 23, 31, 41}), 1, wall);
    EXPECT_EQ(11, wall.firstListA.first);
    EXPECT_EQ(13, wall.firstListA.last);
    EXPECT_EQ(21, wall.firstListB.first);
    EXPECT_EQ(23, wall.firstListB.last);
}

TEST(RecordParsing, AWallOfOneColumnOfPointsHasRowsOfOneNode)
{
    T_SATWE_STWL_D wall;
    wall.firstCount = 1;
    ParseWallPoints(Line({11, 21}), 0, wall);
    EXPECT_EQ(11, wall.firstListA.first);
    EXPECT_EQ(11, wall.firstListA.last);
    EXPECT_EQ(21, wall.firstListB.first);
    EXPECT_EQ(21, wall.firstListB.last);
}

TEST(RecordParsing, AWallWithANegativeCountIsTheInvalidArgumentFailure)
{
    T_SATWE_STWL_D wall;
    wall.firstCount = -1;
    EXPECT_THROW(ParseWallPoints(Counting(4), 3, wall), CInvalidArgument);
    wall.firstCount = 3;
    EXPECT_THROW(ParseWallPoints(Counting(4), -1, wall), CInvalidArgument);
}

TEST(RecordParsing, APlateTakesAsManyVerticesAsItAnnounces)
{
    std::vector<std::int32_t> vertices{7};
    const T_SATWE_STPL_D plate = ParsePlate(Line({1, 3, 0, 120.5, 11, 12.9, -13, 14}), vertices);
    EXPECT_EQ(3, plate.vertexCount);
    EXPECT_EQ(120.5, plate.thickness);
    EXPECT_EQ(1U, plate.firstVertex);
    EXPECT_EQ(3, plate.storedVertices);
    EXPECT_EQ((std::vector<std::int32_t>{7, 11, 12, -13}), vertices);
    ExpectRequired(4, [&](const CLineNumbers& line) { ParsePlate(line, vertices); });
}

TEST(RecordParsing, APlateWithFewerVerticesThanItAnnouncesKeepsThose)
{
    std::vector<std::int32_t> vertices;
    const T_SATWE_STPL_D plate = ParsePlate(Line({1, 4, 0, 120.5, 11, 12}), vertices);
    EXPECT_EQ(4, plate.vertexCount);
    EXPECT_EQ(2, plate.storedVertices);
    EXPECT_EQ((std::vector<std::int32_t>{11, 12}), vertices);
    EXPECT_EQ(0, ParsePlate(Line({1, -4, 0, 120.5, 11, 12}), vertices).storedVertices);
}

TEST(RecordParsing, ALoadTakesWhatThereIs)
{
    const T_SATWE_STLD_D load = ParseLoad(Line({1, 2, 3, 4, 5.5, 6.5, 7.5, 8.5, 9.5, 10.5}));
    EXPECT_EQ(2, load.memberId);
    EXPECT_EQ(ELoadType::BeamTriangle, load.loadType);
    EXPECT_EQ(1, load.loadCase);
    EXPECT_EQ((std::array<double, 4>{5.5, 6.5, 7.5, 0}), load.value);
    EXPECT_EQ((std::array<double, 4>{5.5, 6.5, 7.5, 8.5}),
              ParseLoad(Line({1, 2, 2, 0, 5.5, 6.5, 7.5, 8.5, 9.5})).value);

    const T_SATWE_STLD_D shortLoad = ParseLoad(Line({1, 2, 22, 0, 5.5}));
    EXPECT_EQ(ELoadType::WallLine, shortLoad.loadType);
    EXPECT_EQ((std::array<double, 4>{5.5, 0, 0, 0}), shortLoad.value);

    const T_SATWE_STLD_D emptyLoad = ParseLoad(Line({1}));
    EXPECT_EQ(0, emptyLoad.memberId);
    EXPECT_EQ(ELoadType{}, emptyLoad.loadType);
}

}  // namespace
}  // namespace satwecvt
