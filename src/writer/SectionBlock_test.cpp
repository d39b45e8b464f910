#include "writer/SectionBlock.h"

#include "text/WrittenText_test.h"
#include "writer/CompositeProperties.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

std::string LinesOf(const T_SATWE_SECT_D& section)
{
    return WrittenText([&](COutputFile& file) { WriteSectionLine(file, 4, section); });
}

T_SATWE_SECT_D Section(std::int32_t kind, const std::array<double, 10>& dims)
{
    return {ESectionKind{kind}, 0, 0, dims, 0, 0, 0};
}

// Every dimension has a value of its own, so that each place of a line tells which of them it holds. Four are negative:
// the absolute values show.
constexpr std::array<double, 10> kDims{10, 20, -3, 4, -5, 6, 71, 72, -73, -74};

TEST(SectionLine, EveryKindTakesItsDimensionsInItsOwnOrder)
{
    const struct {
        std::int32_t kind;
        const char* expected;
    } table[] = {
        {1, "  4, DBUSER, Sec4, CC, SB, 2, 20, 10, 0, 0, 0, 0\n"},
        {2, "  4, DBUSER, Sec4, CC, H, 2, 20, -3, 10, 4, -5, 6\n"},
        {3, "  4, DBUSER, Sec4, CC, SR, 2, 10, 0, 0, 0, 0, 0\n"},
        {4, "  4, DBUSER, Sec4, CC, SR, 2, 10, 0, 0, 0, 0, 0\n"},
        {5, "  4, DBUSER, Sec4, CC, C, 2, 20, 13, 10, 4, 15, 6\n"},
        {6, "  4, COMBINED, Sec4, CC, H2T, 2, 20, 10, 10, 10, 0, 6, 4, 4, 4\n"},
        {7, "  4, DBUSER, Sec4, CC, B, 2, 20, 10, 4, -3, 0, -5\n"},
        {8, "  4, DBUSER, Sec4, CC, P, 2, 10, -5, 0, 0, 0, 0\n"},
        {9, "  4, DBUSER, Sec4, CC, 2C, 2, 20, 13, 10, 4, 6, 0\n"},
        {10, "  4, COMBINED, Sec4, CC, H2T, 2, 20, 6, 10, 4, 0, 5, 6, 10, 4\n"},
        {11, "  4, DBUSER, Sec4, CC, SB, 2, 20, 10, 0, 0, 0, 0\n"},
        {12,
         "  4, SRC, Sec4, CC, EPC, 1, 6.91484, 3.0792, 0.3, 0.2\n"
         "      20, 0, 2, 10, -5, 0, 0, 0, 0\n"},
        {13,
         "  4, SRC, Sec4, CC, RHB, 1, 6.91484, 3.0792, 0.3, 0.2\n"
         "      20, 10, 2, 4, -5, -3, 6, 0, 0\n"},
        {14,
         "  4, SRC, Sec4, CC, RBC, 1, 6.91484, 3.0792, 0.3, 0.2\n"
         "      20, 10, 2, 4, -3, 6, -5, 0, 0\n"},
    };
    for (const auto& row : table) {
        EXPECT_EQ(row.expected, LinesOf(Section(row.kind, kDims))) << "kind " << row.kind;
    }
}

TEST(SectionLine, AGivenAreaIsDrawnAsASquare)
{
    EXPECT_EQ(
        "  4, VALUE, Sec4, CC, SB, BUILT, 20, 20, 0, 0, 0, 0\n"
        "    400, 0., 0., 11, 12, 13\n"
        "    0, 0, 0, 0, 0, 0, 0, 0, 0, 0\n",
        LinesOf(Section(0, {400, 11, 12, 13, 14})));
}

TEST(SectionLine, APipeIsGivenByItsOuterDiameterAndWallThickness)
{
    EXPECT_EQ("  4, DBUSER, Sec4, CC, P, 2, 300, 10, 0, 0, 0, 0\n", LinesOf(Section(8, {300, 280})));
}

TEST(SectionLine, ChannelWidthsMayHaveAnySign)
{
    EXPECT_EQ("  4, DBUSER, Sec4, CC, C, 2, 20, 13, 10, 4, 15, 6\n", LinesOf(Section(5, {10, 20, 3, 4, 5, 6})));
    EXPECT_EQ("  4, DBUSER, Sec4, CC, 2C, 2, 20, 13, 10, 4, 6, 0\n", LinesOf(Section(9, {10, 20, 3, 4, 5, 6})));
}

TEST(SectionLine, UnknownKindsHaveNoLine)
{
    for (const std::int32_t kind : {-1, 15, 16, 99}) {
        EXPECT_EQ("", LinesOf(Section(kind, kDims))) << kind;
    }
}

TEST(SectionLine, TheStiffnessRatioFollowsTheConcreteGrade)
{
    const struct {
        std::int32_t grade;
        double elast;
    } table[] = {
        {15, 9.297707}, {20, 8.106406}, {25, 7.39146},  {30, 6.91484},  {35, 6.574538}, {40, 6.319212},
        {45, 6.120569}, {50, 5.961683}, {55, 5.831729}, {60, 5.723494}, {65, 5.6318},   {70, 5.553309},
        {75, 5.485142}, {80, 5.425621}, {85, 6.91484},  {0, 6.91484},   {-15, 6.91484}, {22, 6.91484},
    };
    for (const auto& row : table) {
        const CCompositeProperties properties = GetCompositeProperties(row.grade);
        EXPECT_EQ(row.elast, properties.elast) << row.grade;
        EXPECT_EQ(3.0792, properties.den);
        EXPECT_EQ(0.3, properties.pois);
        EXPECT_EQ(0.2, properties.poic);
    }
}

TEST(SectionLine, ACompositeTakesTheConcreteGradeOfItsElement)
{
    const auto firstLine = [](std::int32_t concreteGrade) {
        T_SATWE_SECT_D section = Section(13, kDims);
        section.concreteGrade = concreteGrade;
        const std::string text = LinesOf(section);
        return text.substr(0, text.find('\n'));
    };
    EXPECT_EQ("  4, SRC, Sec4, CC, RHB, 1, 6.91484, 3.0792, 0.3, 0.2", firstLine(30));
    EXPECT_EQ("  4, SRC, Sec4, CC, RHB, 1, 6.91484, 3.0792, 0.3, 0.2", firstLine(85));
    EXPECT_EQ("  4, SRC, Sec4, CC, RHB, 1, 6.31921, 3.0792, 0.3, 0.2", firstLine(40));
}

std::string BlockOf(const CConversionTables& tables)
{
    CWrittenCounts counts;
    return WrittenText([&](COutputFile& file) { WriteSections(file, tables, counts); });
}

TEST(SectionBlock, WithoutSectionsThereIsNoBlock)
{
    const CSatweModel model;
    const CConversionTables tables(model);
    EXPECT_EQ("", BlockOf(tables));
}

TEST(SectionBlock, SectionsThatAreNotWrittenKeepTheirNumbers)
{
    CSatweModel model;
    CConversionTables tables(model);
    model.inputSections.Insert(1, Section(15, kDims));
    model.inputSections.Insert(2, Section(3, kDims));
    model.inputSections.SortByKey();
    for (const std::int32_t number : {1, 2, 1}) {
        tables.FindOrAddSection(number, 30, 3);
    }
    const std::string text = BlockOf(tables);
    const std::string lines =
        "; [DIM1], [DIM2] : D1, D2, D3, D4, D5, D6\n"
        "  2, DBUSER, Sec2, CC, SR, 2, 10, 0, 0, 0, 0, 0\n"
        "\n";
    EXPECT_EQ(0U, text.find("*SECTION    ; Section\n"));
    EXPECT_EQ(text.size() - lines.size(), text.find(lines));
}

}  // namespace
}  // namespace satwecvt
