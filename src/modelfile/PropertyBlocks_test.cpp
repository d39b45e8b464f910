#include "modelfile/ModelTexts_test.h"

#include <gtest/gtest.h>

#include <string>

namespace satwecvt {
namespace {

TEST(MaterialBlock, EveryTypeIsRead)
{
    const CModelFile model =
        ReadModelFile(ModelTextOf({.materials = "  1, CONC, C30, 0, 0, 1, GB(RC), C30\n"
                                                "  2, STEEL, 16Mn, 0, 0, 1, GB(S), 16Mn\n"
                                                "  3, SRC, SRC1, 0, 0, 1, GB(S), Grade3, 1, GB(RC), C60\n"}));
    ASSERT_EQ(3U, model.materials.size());
    const CMaterial& concrete = model.materials[0];
    EXPECT_EQ(1, concrete.number);
    EXPECT_EQ(EMaterial::Concrete, concrete.type);
    EXPECT_EQ("C30", concrete.name);
    EXPECT_EQ("C30", concrete.concrete);
    EXPECT_EQ("", concrete.steel);
    const CMaterial& steel = model.materials[1];
    EXPECT_EQ(2, steel.number);
    EXPECT_EQ(EMaterial::Steel, steel.type);
    EXPECT_EQ("16Mn", steel.name);
    EXPECT_EQ("", steel.concrete);
    EXPECT_EQ("16Mn", steel.steel);
    const CMaterial& composite = model.materials[2];
    EXPECT_EQ(3, composite.number);
    EXPECT_EQ(EMaterial::Composite, composite.type);
    EXPECT_EQ("SRC1", composite.name);
    EXPECT_EQ("C60", composite.concrete);
    EXPECT_EQ("Grade3", composite.steel);
}

TEST(MaterialBlock, AConcreteIsNamedByAnyGrade)
{
    const CModelFile model =
        ReadModelFile(ModelTextOf({.materials = "  1, CONC, C-2147483648, 0, 0, 1, GB(RC), C-2147483648\n"
                                                "  2, STEEL, 15MnV, 0, 0, 1, GB(S), 15MnV\n"}));
    ASSERT_EQ(2U, model.materials.size());
    EXPECT_EQ("C-2147483648", model.materials[0].concrete);
    EXPECT_EQ("15MnV", model.materials[1].steel);
}

TEST(MaterialBlock, ALineOfAnotherFormIsRefused)
{
    for (const std::string line :
         {"  1, CONC, C30, 0, 0, 1, GB(RC), C35", "  1, CONC, C30, 0, 0, 1, GB(S), C30",
          "  1, CONC, C30, 0, 0, 1, GB(RC)", "  1, CONC, C30, 0, 0, 1, GB(RC), C30, ",
          "  1, CONC, C, 0, 0, 1, GB(RC), C", "  1, CONC, 30, 0, 0, 1, GB(RC), 30",
          "  1, CONC, C3x, 0, 0, 1, GB(RC), C3x", "  1, CONC, C4294967297, 0, 0, 1, GB(RC), C4294967297",
          "  1, STEEL, 16Mn, 0, 0, 1, GB(S), 15MnV", "  1, STEEL, Q345, 0, 0, 1, GB(S), Q345",
          "  1, STEEL, 16Mn, 0, 0, 1, GB(RC), 16Mn", "  1, STEEL, 16Mn, 0, 0, 1, GB(S), 16Mn,",
          "  1, SRC, SRC, 0, 0, 1, GB(S), 16Mn, 1, GB(RC), C60", "  1, SRC, SRC1, 0, 0, 1, GB(S), 16Mn, 2, GB(RC), C60",
          "  1, SRC, SRC1, 0, 0, 1, GB(S), 16Mn", "  1, SRC, SRC1, 0, 0, 1, GB(S), 17Mn, 1, GB(RC), C60",
          "  1, USER, C30, 0, 0, 1, GB(RC), C30", "  one, CONC, C30, 0, 0, 1, GB(RC), C30", "1"}) {
        EXPECT_EQ("line 15: no material is '" + line + "'", ComplaintAbout(ModelTextOf({.materials = line + "\n"})));
    }
}

TEST(MaterialBlock, IsMissingWhereThereAreElements)
{
    for (const std::string elements : {"  1, BEAM, 1, 1, 1, 2, 0\n", "  1, PLATE, 1, 1, 1, 2, 3, 0, 1\n"}) {
        EXPECT_EQ("line 15: '*CONSTRAINT    ; Supports' stands where '*MATERIAL    ; Material' should",
                  ComplaintAbout(ModelTextOf({.elements = elements})));
    }
}

TEST(ThicknessBlock, ThicknessesAreReadInTheOrderOfTheFile)
{
    const CModelFile model = ReadModelFile(ModelTextOf({.thicknesses = "  2, VALUE, YES, 120.5, 0\n"
                                                                       "  1, VALUE, YES, -0.25, 0\n"}));
    ASSERT_EQ(2U, model.thicknesses.size());
    EXPECT_EQ(2, model.thicknesses[0].number);
    EXPECT_EQ(120.5, model.thicknesses[0].value);
    EXPECT_EQ(1, model.thicknesses[1].number);
    EXPECT_EQ(-0.25, model.thicknesses[1].value);
}

TEST(ThicknessBlock, ALineOfAnotherFormIsRefused)
{
    for (const std::string line : {"  1, VALUE, YES, 120", "  1, VALUE, YES, 120, 0, 0", "  1, VALUE, NO, 120, 0",
                                   "  1, VALUE, YES, 120, 5", "  1, VALUE, YES, 12o, 0", "  x, VALUE, YES, 120, 0"}) {
        EXPECT_EQ("line 19: no thickness is '" + line + "'", ComplaintAbout(ModelTextOf({.thicknesses = line + "\n"})));
    }
}

TEST(ThicknessBlock, IsMissingWhereThereAreWallsOrPlates)
{
    EXPECT_EQ(
        "line 24: '*CONSTRAINT    ; Supports' stands where '*THICKNESS    ; Thickness' should",
        ComplaintAbout(ModelTextOf({.elements = "  1, PLATE, 1, 1, 1, 2, 3, 0, 1\n", .materials = kConcreteLine})));
    EXPECT_EQ(
        "", ComplaintAbout(ModelTextOf({.elements = kBeamLine, .materials = kConcreteLine, .sections = kSectionLine})));
}

}  // namespace
}  // namespace satwecvt
