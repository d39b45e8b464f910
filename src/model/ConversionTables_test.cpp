#include "model/SatweModel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>

namespace satwecvt {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// A model with two input sections: number 1 as given, number 2 changed in one field.
template <class Change>
CSatweModel ModelWithTwoSections(std::int32_t kind, Change change)
{
    CSatweModel model;
    T_SATWE_SECT_D section{kind, 6, 1, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 0, 0};
    model.inputSections.Insert(1, section);
    change(section);
    model.inputSections.Insert(2, section);
    return model;
}

TEST(SatweModel, ThicknessesAreNumberedInTheOrderOfFirstUse)
{
    CSatweModel model;
    EXPECT_EQ(1, model.FindOrAddThickness(200.0));
    EXPECT_EQ(2, model.FindOrAddThickness(250.0));
    EXPECT_EQ(1, model.FindOrAddThickness(200.0));
    EXPECT_EQ((std::vector<double>{200.0, 250.0}), model.Thicknesses());
}

TEST(SatweModel, ThicknessesAreComparedWithoutTolerance)
{
    CSatweModel model;
    EXPECT_EQ(1, model.FindOrAddThickness(200.0));
    EXPECT_EQ(2, model.FindOrAddThickness(200.0000001));
}

TEST(SatweModel, AThicknessOfMinus0IsThatOf0)
{
    CSatweModel model;
    EXPECT_EQ(1, model.FindOrAddThickness(0.0));
    EXPECT_EQ(1, model.FindOrAddThickness(-0.0));
}

TEST(SatweModel, AThicknessThatIsNoNumberIsNewEachTime)
{
    CSatweModel model;
    EXPECT_EQ(1, model.FindOrAddThickness(kNan));
    EXPECT_EQ(2, model.FindOrAddThickness(kNan));
}

TEST(SatweModel, ThicknessNumbersAreThoseOfALinearSearch)
{
    constexpr std::array kValues{0.0, -0.0, 1.0, -1.0, 100.0, 100.00000000000001, kInfinity, -kInfinity, kNan, 5e-324};
    std::mt19937 random(7);
    CSatweModel model;
    std::vector<double> expected;
    for (int i = 0; i < 2000; ++i) {
        const double value = kValues[random() % kValues.size()];
        auto found = std::find(expected.begin(), expected.end(), value);
        if (found == expected.end()) {
            found = expected.insert(expected.end(), value);
        }
        EXPECT_EQ(found - expected.begin() + 1, model.FindOrAddThickness(value));
    }
}

TEST(SatweModel, ElementsWithTheSameConcreteGradeShareOneMaterial)
{
    CSatweModel model;
    EXPECT_EQ(1, model.FindOrAddMaterial(T_SATWE_MATL_D::kConcrete, 30, 0));
    EXPECT_EQ(2, model.FindOrAddMaterial(T_SATWE_MATL_D::kConcrete, 25, 0));
    EXPECT_EQ(1, model.FindOrAddMaterial(T_SATWE_MATL_D::kConcrete, 30, 0));
    EXPECT_EQ(2U, model.Materials().size());
}

TEST(SatweModel, SteelAndConcreteWithTheSameGradeNumberAreTwoMaterials)
{
    CSatweModel model;
    EXPECT_EQ(1, model.FindOrAddMaterial(T_SATWE_MATL_D::kConcrete, 15, 0));
    EXPECT_EQ(2, model.FindOrAddMaterial(T_SATWE_MATL_D::kSteel, 15, 0));
    EXPECT_EQ(3, model.FindOrAddMaterial(T_SATWE_MATL_D::kComposite, 15, 0));
    EXPECT_EQ(4, model.FindOrAddMaterial(T_SATWE_MATL_D::kComposite, 15, 16));
}

TEST(SatweModel, CompositeElementsWithDifferentGradesHaveSectionsOfTheirOwn)
{
    for (const std::int32_t kind : {12, 13, 14, 15}) {
        CSatweModel model = ModelWithTwoSections(kind, [](T_SATWE_SECT_D&) {});
        EXPECT_EQ(1, model.FindOrAddSection(1, 30, 3));
        EXPECT_EQ(2, model.FindOrAddSection(1, 40, 3));
        EXPECT_EQ(3, model.FindOrAddSection(1, 30, 16));
        EXPECT_EQ(1, model.FindOrAddSection(1, 30, 3));
        EXPECT_EQ(40, model.Sections()[1].concreteGrade);
        EXPECT_EQ(16, model.Sections()[2].steelGrade);
    }
}

TEST(SatweModel, OtherElementsShareASectionWhateverTheirGrades)
{
    for (const std::int32_t kind : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 16, 99}) {
        CSatweModel model = ModelWithTwoSections(kind, [](T_SATWE_SECT_D&) {});
        EXPECT_EQ(1, model.FindOrAddSection(1, 30, 3));
        EXPECT_EQ(1, model.FindOrAddSection(1, 40, 16));
        EXPECT_EQ(0, model.Sections()[0].concreteGrade);
        EXPECT_EQ(0, model.Sections()[0].steelGrade);
    }
}

TEST(SatweModel, EqualInputSectionsShareANumber)
{
    CSatweModel model = ModelWithTwoSections(2, [](T_SATWE_SECT_D&) {});
    EXPECT_EQ(1, model.FindOrAddSection(2, 0, 0));
    EXPECT_EQ(1, model.FindOrAddSection(1, 0, 0));
}

TEST(SatweModel, InputSectionsThatDifferInAnyFieldDoNotShareANumber)
{
    const auto expectTwo = [](auto change) {
        CSatweModel model = ModelWithTwoSections(2, change);
        EXPECT_EQ(1, model.FindOrAddSection(1, 0, 0));
        EXPECT_EQ(2, model.FindOrAddSection(2, 0, 0));
    };
    expectTwo([](T_SATWE_SECT_D& section) { section.kind = 7; });
    expectTwo([](T_SATWE_SECT_D& section) { section.param1 = 5; });
    expectTwo([](T_SATWE_SECT_D& section) { section.param2 = 2; });
    for (std::size_t i = 0; i < 10; ++i) {
        expectTwo([i](T_SATWE_SECT_D& section) { section.dims[i] = std::nextafter(section.dims[i], 0.0); });
    }
}

TEST(SatweModel, SectionsThatAreNeverWrittenAreNumberedAllTheSame)
{
    CSatweModel model = ModelWithTwoSections(15, [](T_SATWE_SECT_D& section) { section.kind = 77; });
    EXPECT_EQ(1, model.FindOrAddSection(1, 30, 3));
    EXPECT_EQ(2, model.FindOrAddSection(2, 30, 3));
    EXPECT_EQ(1, model.FindOrAddSection(1, 30, 3));
    EXPECT_EQ(2, model.FindOrAddSection(2, 30, 3));
}

TEST(SatweModel, AnUnknownSectionNumberStandsForAnAllZeroSection)
{
    CSatweModel model = ModelWithTwoSections(2, [](T_SATWE_SECT_D&) {});
    EXPECT_EQ(T_SATWE_SECT_D{}, model.InputSection(3));
    EXPECT_EQ(1, model.FindOrAddSection(3, 30, 3));
    EXPECT_EQ(1, model.FindOrAddSection(-4, 40, 16));
    EXPECT_EQ(T_SATWE_SECT_D{}, model.Sections()[0]);
}

TEST(SatweModel, StartsEmpty)
{
    const CSatweModel model;
    EXPECT_EQ(0, model.storyCount);
    EXPECT_EQ(0, model.sectionCount);
    EXPECT_EQ(0, model.nodeCount);
    EXPECT_EQ(0U, model.stories.Count() + model.nodes.Count() + model.inputSections.Count());
    EXPECT_TRUE(model.loads.empty() && model.releases.empty() && model.offsets.empty());
    EXPECT_TRUE(model.Materials().empty() && model.Sections().empty() && model.Thicknesses().empty());
}

}  // namespace
}  // namespace satwecvt
