#include "writer/MaterialBlock.h"

#include "text/WrittenText_test.h"

#include <gtest/gtest.h>

#include <vector>

namespace satwecvt {
namespace {

constexpr EMaterialType kConcrete = EMaterialType::Concrete;
constexpr EMaterialType kSteel = EMaterialType::Steel;
constexpr EMaterialType kComposite = EMaterialType::Composite;

/// The lines of the materials, without the block's comments.
std::string LinesOf(const std::vector<T_SATWE_MATL_D>& materials)
{
    const CSatweModel model;
    CConversionTables tables(model);
    for (const T_SATWE_MATL_D& material : materials) {
        tables.FindOrAddMaterial(material.type, material.grade, material.steelGrade);
    }
    CWrittenCounts counts;
    const std::string text = WrittenText([&](COutputFile& file) { WriteMaterials(file, tables, counts); });
    const std::size_t lastComment = text.rfind("\n;");
    return lastComment == std::string::npos ? text : text.substr(text.find('\n', lastComment + 1) + 1);
}

TEST(MaterialBlock, WithoutMaterialsThereIsNoBlock)
{
    EXPECT_EQ("", LinesOf({}));
}

TEST(MaterialBlock, BeginsWithItsComments)
{
    const CSatweModel model;
    CConversionTables tables(model);
    tables.FindOrAddMaterial(kConcrete, 25, 0);
    CWrittenCounts counts;
    EXPECT_EQ(
        "*MATERIAL    ; Material\n"
        "; iMAT, TYPE, MNAME, SPHEAT, HEATCO, [DATA1]               ; STEEL, CONC, USER\n"
        "; iMAT, TYPE, MNAME, SPHEAT, HEATCO, [DATA2], [DATA2]      ; SRC\n"
        "; [DATA1] : 1, DB, NAME\n"
        "; [DATA1] : 2, ELAST, POISN, THERMAL, DEN\n"
        "; [DATA1] : 3, Ex, Ey, Ez, Tx, Ty, Tz, Sxy, Sxz, Syz, Pxy, Pxz, Pyz, DEN  ; Orthotropic\n"
        "; [DATA2] : 1, DB, NAME or 2, ELAST, POISN, THERMAL, DEN\n"
        "  1, CONC, C25, 0, 0, 1, GB(RC), C25\n"
        "\n",
        WrittenText([&](COutputFile& file) { WriteMaterials(file, tables, counts); }));
    EXPECT_EQ(1, counts.materials);
}

TEST(MaterialBlock, ConcreteOfGrade0IsC30InBothPlaces)
{
    EXPECT_EQ("  1, CONC, C30, 0, 0, 1, GB(RC), C30\n\n", LinesOf({{kConcrete, 0, 0}}));
}

TEST(MaterialBlock, ConcreteIsNamedByItsGradeWhateverItIs)
{
    EXPECT_EQ(
        "  1, CONC, C30, 0, 0, 1, GB(RC), C30\n"
        "  2, CONC, C-5, 0, 0, 1, GB(RC), C-5\n"
        "\n",
        LinesOf({{kConcrete, 30, 0}, {kConcrete, -5, 0}}));
}

TEST(MaterialBlock, SteelIsNamedByItsGradeCode)
{
    EXPECT_EQ(
        "  1, STEEL, Grade3, 0, 0, 1, GB(S), Grade3\n"
        "  2, STEEL, 15MnV, 0, 0, 1, GB(S), 15MnV\n"
        "  3, STEEL, 16Mn, 0, 0, 1, GB(S), 16Mn\n"
        "\n",
        LinesOf({{kSteel, 3, 0}, {kSteel, 15, 0}, {kSteel, 16, 0}}));
}

TEST(MaterialBlock, AnUnknownSteelGradeIsGrade3)
{
    EXPECT_EQ(
        "  1, STEEL, Grade3, 0, 0, 1, GB(S), Grade3\n"
        "  2, STEEL, Grade3, 0, 0, 1, GB(S), Grade3\n"
        "\n",
        LinesOf({{kSteel, 5, 0}, {kSteel, 0, 0}}));
}

TEST(MaterialBlock, CompositesAreNamedInTheirOwnOrder)
{
    EXPECT_EQ(
        "  1, CONC, C25, 0, 0, 1, GB(RC), C25\n"
        "  2, STEEL, Grade3, 0, 0, 1, GB(S), Grade3\n"
        "  3, SRC, SRC1, 0, 0, 1, GB(S), 16Mn, 1, GB(RC), C40\n"
        "  4, CONC, C35, 0, 0, 1, GB(RC), C35\n"
        "  5, SRC, SRC2, 0, 0, 1, GB(S), Grade3, 1, GB(RC), C30\n"
        "\n",
        LinesOf({{kConcrete, 25, 0}, {kSteel, 3, 0}, {kComposite, 40, 16}, {kConcrete, 35, 0}, {kComposite, 0, 9}}));
}

TEST(MaterialBlock, AnUnknownTypeHasNoLineButANumber)
{
    EXPECT_EQ("  2, CONC, C25, 0, 0, 1, GB(RC), C25\n\n",
              LinesOf({{EMaterialType{3}, 25, 0}, {kConcrete, 25, 0}, {EMaterialType{-1}, 25, 0}}));
    EXPECT_EQ("\n", LinesOf({{EMaterialType{7}, 0, 0}}));
}

}  // namespace
}  // namespace satwecvt
