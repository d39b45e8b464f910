#include "model/ConversionTables.h"

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
    T_SATWE_SECT_D section{ESectionKind{kind}, 6, 1, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 0, 0, 7};
    model.inputSections.Insert(1, section);
    section.line = 9;
    change(section);
    model.inputSections.Insert(2, section);
    return model;
}

TEST(ConversionTables, ThicknessesAreNumberedInTheOrderOfFirstUse)
{
    const CSatweModel model;
    CConversionTables tables(model);
    EXPECT_EQ(1, tables.FindOrAddThickness(200.0));
    EXPECT_EQ(2, tables.FindOrAddThickness(250.0));
    EXPECT_EQ(1, tables.FindOrAddThickness(200.0));
    EXPECT_EQ((std::vector<double>{200.0, 250.0}), tables.Thicknesses());
}

TEST(ConversionTables, ThicknessesAreComparedWithoutTolerance)
{
    const CSatweModel model;
    CConversionTables tables(model);
    EXPECT_EQ(1, tables.FindOrAddThickness(200.0));
    EXPECT_EQ(2, tables.FindOrAddThickness(200.0000001));
}

TEST(ConversionTables, AThicknessOfMinus0IsThatOf0)
{
    const CSatweModel model;
    CConversionTables tables(model);
    EXPECT_EQ(1, tables.FindOrAddThickness(0.0));
    EXPECT_EQ(1, tables.FindOrAddThickness(-0.0));
}

TEST(ConversionTables, AThicknessThatIsNoNumberIsNewEachTime)
{
    const CSatweModel model;
    CConversionTables tables(model);
    EXPECT_EQ(1, tables.FindOrAddThickness(kNan));
    EXPECT_EQ(2, tables.FindOrAddThickness(kNan));
}

TEST(ConversionTables, ThicknessNumbersAreThoseOfALinearSearch)
{
    constexpr std::array kValues{0.0, -0.0, 1.0, -1.0, 100.0, 100.00000000000001, kInfinity, -kInfinity, kNan, 5e-324};
    std::mt19937 random(7);
    const CSatweModel model;
    CConversionTables tables(model);
    std::vector<double> expected;
    for (int i = 0; i < 2000; ++i) {
        const double value = kValues[random() % kValues.size()];
        auto found = std::find(expected.begin(), expected.end(), value);
        if (found == expected.end()) {
            found = expected.insert(expected.end(), value);
        }
        EXPECT_EQ(found - expected.begin() + 1, tables.FindOrAddThickness(value));
    }
}

TEST(ConversionTables, ElementsWithTheSameConcreteGradeShareOneMaterial)
{
    const CSatweModel model;
    CConversionTables tables(model);
    EXPECT_EQ(1, tables.FindOrAddMaterial(EMaterialType::Concrete, 30, 0));
    EXPECT_EQ(2, tables.FindOrAddMaterial(EMaterialType::Concrete, 25, 0));
    EXPECT_EQ(1, tables.FindOrAddMaterial(EMaterialType::Concrete, 30, 0));
    EXPECT_EQ(2U, tables.Materials().size());
}

TEST(ConversionTables, SteelAndConcreteWithTheSameGradeNumberAreTwoMaterials)
{
    const CSatweModel model;
    CConversionTables tables(model);
    EXPECT_EQ(1, tables.FindOrAddMaterial(EMaterialType::Concrete, 15, 0));
    EXPECT_EQ(2, tables.FindOrAddMaterial(EMaterialType::Steel, 15, 0));
    EXPECT_EQ(3, tables.FindOrAddMaterial(EMaterialType::Composite, 15, 0));
    EXPECT_EQ(4, tables.FindOrAddMaterial(EMaterialType::Composite, 15, 16));
}

TEST(ConversionTables, CompositeElementsWithDifferentGradesHaveSectionsOfTheirOwn)
{
    for (const std::int32_t kind : {12, 13, 14, 15}) {
        const CSatweModel model = ModelWithTwoSections(kind, [](T_SATWE_SECT_D&) {});
        CConversionTables tables(model);
        EXPECT_EQ(1, tables.FindOrAddSection(1, 30, 3));
        EXPECT_EQ(2, tables.FindOrAddSection(1, 40, 3));
        EXPECT_EQ(3, tables.FindOrAddSection(1, 30, 16));
        EXPECT_EQ(1, tables.FindOrAddSection(1, 30, 3));
        EXPECT_EQ(40, tables.Sections()[1].concreteGrade);
        EXPECT_EQ(16, tables.Sections()[2].steelGrade);
    }
}

TEST(ConversionTables, OtherElementsShareASectionWhateverTheirGrades)
{
    for (const std::int32_t kind : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 16, 99}) {
        const CSatweModel model = ModelWithTwoSections(kind, [](T_SATWE_SECT_D&) {});
        CConversionTables tables(model);
        EXPECT_EQ(1, tables.FindOrAddSection(1, 30, 3));
        EXPECT_EQ(1, tables.FindOrAddSection(1, 40, 16));
        EXPECT_EQ(0, tables.Sections()[0].concreteGrade);
        EXPECT_EQ(0, tables.Sections()[0].steelGrade);
    }
}

TEST(ConversionTables, EqualInputSectionsShareANumber)
{
    const CSatweModel model = ModelWithTwoSections(2, [](T_SATWE_SECT_D&) {});
    CConversionTables tables(model);
    EXPECT_EQ(1, tables.FindOrAddSection(2, 0, 0));
    EXPECT_EQ(1, tables.FindOrAddSection(1, 0, 0));
}

TEST(ConversionTables, InputSectionsThatDifferInAnyFieldDoNotShareANumber)
{
    const auto expectTwo = [](auto change) {
        const CSatweModel model = ModelWithTwoSections(2, change);
        CConversionTables tables(model);
        EXPECT_EQ(1, tables.FindOrAddSection(1, 0, 0));
        EXPECT_EQ(2, tables.FindOrAddSection(2, 0, 0));
    };
    expectTwo([](T_SATWE_SECT_D& section) { section.kind = ESectionKind::Box; });
    expectTwo([](T_SATWE_SECT_D& section) { section.param1 = 5; });
    expectTwo([](T_SATWE_SECT_D& section) { section.param2 = 2; });
    for (std::size_t i = 0; i < 10; ++i) {
        expectTwo([i](T_SATWE_SECT_D& section) { section.dims[i] = std::nextafter(section.dims[i], 0.0); });
    }
}

TEST(ConversionTables, SectionsThatAreNeverWrittenAreNumberedAllTheSame)
{
    const CSatweModel model =
        ModelWithTwoSections(15, [](T_SATWE_SECT_D& section) { section.kind = ESectionKind{77}; });
    CConversionTables tables(model);
    EXPECT_EQ(1, tables.FindOrAddSection(1, 30, 3));
    EXPECT_EQ(2, tables.FindOrAddSection(2, 30, 3));
    EXPECT_EQ(1, tables.FindOrAddSection(1, 30, 3));
    EXPECT_EQ(2, tables.FindOrAddSection(2, 30, 3));
}

TEST(ConversionTables, AnUnknownSectionNumberStandsForAnAllZeroSection)
{
    const CSatweModel model = ModelWithTwoSections(2, [](T_SATWE_SECT_D&) {});
    CConversionTables tables(model);
    EXPECT_EQ(T_SATWE_SECT_D{}, model.InputSection(3));
    EXPECT_EQ(1, tables.FindOrAddSection(3, 30, 3));
    EXPECT_EQ(1, tables.FindOrAddSection(-4, 40, 16));
    EXPECT_EQ(T_SATWE_SECT_D{}, tables.Sections()[0]);
}

TEST(ConversionTables, StartsEmpty)
{
    const CSatweModel model;
    const CConversionTables tables(model);
    EXPECT_EQ(0, model.storyCount);
    EXPECT_EQ(0, model.sectionCount);
    EXPECT_EQ(0, model.nodeCount);
    EXPECT_EQ(0U, model.stories.Count() + model.nodes.Count() + model.inputSections.Count());
    EXPECT_EQ(0U, model.loads.Count());
    EXPECT_TRUE(tables.releases.empty() && tables.offsets.empty());
    EXPECT_TRUE(tables.Materials().empty() && tables.Sections().empty() && tables.Thicknesses().empty());
}

}  // namespace
}  // namespace satwecvt
