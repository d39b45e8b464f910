#include "modelfile/ModelTexts_test.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace satwecvt {
namespace {

/// A model with these sections, whose lines begin in line 44.
std::string WithSections(const std::string& sections)
{
    return ModelTextOf({.elements = kBeamLine, .materials = kConcreteLine, .sections = sections});
}

CSection ReadSection(const std::string& lines)
{
    const CModelFile model = ReadModelFile(WithSections(lines));
    EXPECT_EQ(1U, model.sections.size());
    return model.sections.at(0);
}

using CValues = std::array<double, 9>;
using CFurther = std::array<double, 8>;
constexpr std::array<double, 4> kNotComposite{};

TEST(SectionBlock, AUsersSectionHasSixValues)
{
    const struct {
        const char* line;
        const char* shape;
        CValues values;
    } kLines[] = {
        {"  4, DBUSER, Sec4, CC, SB, 2, 600, 300, 0, 0, 0, 0\n", "SB", {600, 300}},
        {"  4, DBUSER, Sec4, CC, H, 2, 400, 200, 8, 13, 201, 14\n", "H", {400, 200, 8, 13, 201, 14}},
        {"  4, DBUSER, Sec4, CC, SR, 2, 450.5, 0, 0, 0, 0, 0\n", "SR", {450.5}},
        {"  4, DBUSER, Sec4, CC, C, 2, 300, 90, 8, 12, 91, 13\n", "C", {300, 90, 8, 12, 91, 13}},
        {"  4, DBUSER, Sec4, CC, B, 2, 500, 400, 10, 20, 0, 21\n", "B", {500, 400, 10, 20, 0, 21}},
        {"  4, DBUSER, Sec4, CC, P, 2, 219, 8.5, 0, 0, 0, 0\n", "P", {219, 8.5}},
        {"  4, DBUSER, Sec4, CC, 2C, 2, 300, 90, 8, 12, -30, 0\n", "2C", {300, 90, 8, 12, -30}},
    };
    for (const auto& expected : kLines) {
        const CSection section = ReadSection(expected.line);
        EXPECT_EQ(4, section.number);
        EXPECT_EQ(ESection::User, section.type);
        EXPECT_EQ(expected.shape, section.shape);
        EXPECT_EQ(expected.values, section.values) << expected.line;
        EXPECT_EQ(kNotComposite, section.composite);
        EXPECT_EQ(CFurther{}, section.further);
    }
}

TEST(SectionBlock, ACombinedSectionHasNineValues)
{
    const CSection section = ReadSection("  1, COMBINED, Sec1, CC, H2T, 2, 11, 12, 13, 14, 0, 21, 22, 23, 24\n");
    EXPECT_EQ(1, section.number);
    EXPECT_EQ(ESection::Combined, section.type);
    EXPECT_EQ("H2T", section.shape);
    EXPECT_EQ((CValues{11, 12, 13, 14, 0, 21, 22, 23, 24}), section.values);
    EXPECT_EQ(CFurther{}, section.further);
}

TEST(SectionBlock, ASectionByValuesHasThreeLines)
{
    const CSection section = ReadSection(
        "  2, VALUE, Sec2, CC, SB, BUILT, 300, 301, 0, 0, 0, 0\n"
        "    90000, 0., 0., 1.1e+09, 6.75e+08, 6.76e+08\n"
        "    0, 0, 0, 0, 0, 0, 0, 0, 0, 0\n");
    EXPECT_EQ(2, section.number);
    EXPECT_EQ(ESection::Value, section.type);
    EXPECT_EQ("SB", section.shape);
    EXPECT_EQ((CValues{300, 301}), section.values);
    EXPECT_EQ((CFurther{90000, 0, 0, 1.1e9, 6.75e8, 6.76e8}), section.further);
    EXPECT_EQ(kNotComposite, section.composite);
}

TEST(SectionBlock, ACompositeSectionHasItsPropertiesAndASecondLine)
{
    const struct {
        const char* shape;
        const char* secondLine;
        CFurther further;
    } kLines[] = {
        {"EPC", "      450, 0, 2, 500, 25, 0, 0, 0, 0\n", {450, 0, 500, 25}},
        {"RHB", "      800, 700, 2, 400, 200, 12, 16, 0, 0\n", {800, 700, 400, 200, 12, 16}},
        {"RBC", "      650, 600, 2, 310, 300, 18, 14, 0, 0\n", {650, 600, 310, 300, 18, 14}},
    };
    for (const auto& expected : kLines) {
        const CSection section = ReadSection(std::string("  3, SRC, Sec3, CC, ") + expected.shape +
                                             ", 1, 6.91484, 3.0792, 0.3, 0.2\n" + expected.secondLine);
        EXPECT_EQ(3, section.number);
        EXPECT_EQ(ESection::Composite, section.type);
        EXPECT_EQ(expected.shape, section.shape);
        EXPECT_EQ(CValues{}, section.values);
        EXPECT_EQ((std::array<double, 4>{6.91484, 3.0792, 0.3, 0.2}), section.composite);
        EXPECT_EQ(expected.further, section.further) << expected.shape;
    }
}

TEST(SectionBlock, AFirstLineOfAnotherFormIsRefused)
{
    for (const std::string line : {"  1, DBUSER, Sec1, CC, SB, 2, 600, 300, 0, 0, 0",
                                   "  1, DBUSER, Sec1, CC, SB, 2, 600, 300, 0, 0, 0, 0, 0",
                                   "  1, DBUSER, Sec1, CC, SB, 2, 600, 300, 0, 0, 0, ",
                                   "  1, DBUSER, Sec1, CC, SB, 2, 600, 300, 1, 0, 0, 0",
                                   "  1, DBUSER, Sec1, CC, SB, 2, 600, 300, 0, 0, 0, -0",
                                   "  1, DBUSER, Sec1, CC, SB, 2, 600, 300, 0, 0, 0, 0.",
                                   "  1, DBUSER, Sec1, CC, SB, 1, 600, 300, 0, 0, 0, 0",
                                   "  1, DBUSER, Sec2, CC, SB, 2, 600, 300, 0, 0, 0, 0",
                                   "  1, DBUSER, Sec, CC, SB, 2, 600, 300, 0, 0, 0, 0",
                                   "  1, DBUSER, Sec1, LT, SB, 2, 600, 300, 0, 0, 0, 0",
                                   "  1, DBUSER, Sec1, CC, XY, 2, 600, 300, 0, 0, 0, 0",
                                   "  1, DBUSER, Sec1, CC, EPC, 2, 600, 300, 0, 0, 0, 0",
                                   "  1, DBUSER, Sec1, CC, B, 2, 500, 400, 10, 20, 1, 21",
                                   "  1, COMBINED, Sec1, CC, H2T, 2, 1, 2, 3, 4, 5, 1, 2, 3, 4",
                                   "  1, COMBINED, Sec1, CC, H2T, 2, 1, 2, 3, 4, 0, 1, 2",
                                   "  1, TAPERED, Sec1, CC, SB, 2, 600, 300, 0, 0, 0, 0",
                                   "  1, DBUSER, Sec1, CC, SB",
                                   "  1, DBUSER",
                                   "  1",
                                   "  1, VALUE, Sec1, CC, SB, 2, 300, 300, 0, 0, 0, 0",
                                   "  1, VALUE, Sec1, CC, SB, BUILT, 300, 300, 0, 0, 0",
                                   "  1, SRC, Sec1, CC, EPC, 1, 6.9, 3.0, 0.3",
                                   "  1, SRC, Sec1, CC, EPC, 2, 6.9, 3.0, 0.3, 0.2",
                                   "  x, DBUSER, Secx, CC, SB, 2, 600, 300, 0, 0, 0, 0"}) {
        EXPECT_EQ("line 44: no section is '" + line + "'", ComplaintAbout(WithSections(line + "\n")));
    }
}

TEST(SectionBlock, AFurtherLineOfAnotherFormIsRefused)
{
    const std::string value = "  1, VALUE, Sec1, CC, SB, BUILT, 300, 300, 0, 0, 0, 0\n";
    const std::string composite = "  1, SRC, Sec1, CC, EPC, 1, 6.9, 3.0, 0.3, 0.2\n";
    const struct {
        std::string firstLines;
        std::string line;
        int number;
    } kLines[] = {
        {value, "", 45},
        {value, "    1, 0., 0., 2, 3", 45},
        {value, "    1, 0, 0, 2, 3, 4", 45},
        {value, "      1, 0., 0., 2, 3, 4", 45},
        {value + "    1, 0., 0., 2, 3, 4\n", "", 46},
        {value + "    1, 0., 0., 2, 3, 4\n", "    0, 0, 0, 0, 0, 0, 0, 0, 0", 46},
        {composite, "", 45},
        {composite, "      450, 0, 1, 500, 25, 0, 0, 0, 0", 45},
        {composite, "      450, 7, 2, 500, 25, 0, 0, 0, 0", 45},
        {composite, "      450, 0, 2, 500, 25, 0, 0, 0", 45},
        {composite, "    450, 0, 2, 500, 25, 0, 0, 0, 0", 45},
    };
    for (const auto& bad : kLines) {
        EXPECT_EQ("line " + std::to_string(bad.number) + ": no section is '" + bad.line + "'",
                  ComplaintAbout(WithSections(bad.firstLines + bad.line + "\n")));
    }
}

TEST(SectionBlock, TheHeaderCanStandAloneAndSectionsCanBePassedOver)
{
    const std::string withoutSections = WithSections(kSectionLine);
    std::string text = withoutSections;
    text.erase(text.find(kSectionLine), kSectionLine.size());
    EXPECT_TRUE(ReadModelFile(text).sections.empty());

    const CModelFile model =
        ReadModelFile(WithSections("  3, DBUSER, Sec3, CC, SB, 2, 600, 300, 0, 0, 0, 0\n"
                                   "  7, DBUSER, Sec7, CC, SB, 2, 600, 300, 0, 0, 0, 0\n"));
    ASSERT_EQ(2U, model.sections.size());
    EXPECT_EQ(3, model.sections[0].number);
    EXPECT_EQ(7, model.sections[1].number);
}

TEST(SectionBlock, IsThereWhereAndOnlyWhereThereAreFrameElements)
{
    EXPECT_EQ("line 24: '*CONSTRAINT    ; Supports' stands where '*SECTION    ; Section' should",
              ComplaintAbout(ModelTextOf({.elements = kBeamLine, .materials = kConcreteLine})));
    EXPECT_EQ("line 8: '*SECTION    ; Section' stands where '*CONSTRAINT    ; Supports' should",
              ComplaintAbout(ModelTextOf({.sections = kSectionLine})));
}

}  // namespace
}  // namespace satwecvt
