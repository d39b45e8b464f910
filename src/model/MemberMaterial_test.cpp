#include "model/MemberMaterial.h"

#include "model/SteelGrade.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

constexpr CMemberGrades kGrades{40, 16};
constexpr T_SATWE_MATL_D kConcrete{EMaterialType::Concrete, 40, 0};
constexpr T_SATWE_MATL_D kSteel{EMaterialType::Steel, 16, 0};
constexpr T_SATWE_MATL_D kComposite{EMaterialType::Composite, 40, 16};

TEST(MemberMaterial, FollowsFromTheSectionAndTheKindOfMember)
{
    struct CRow {
        std::int32_t kind;
        std::int32_t param1;
        T_SATWE_MATL_D ofBeam;
        T_SATWE_MATL_D ofBrace;
    };
    const CRow rows[] = {
        {1, 5, kSteel, kSteel},          {1, 6, kConcrete, kConcrete},    {1, 0, kConcrete, kSteel},
        {1, 7, kConcrete, kSteel},       {11, 5, kSteel, kSteel},         {12, 5, kComposite, kComposite},
        {14, 6, kComposite, kComposite}, {15, 0, kComposite, kComposite}, {16, 0, kConcrete, kSteel},
    };
    for (const CRow& row : rows) {
        T_SATWE_SECT_D section;
        section.kind = static_cast<ESectionKind>(row.kind);
        section.param1 = row.param1;
        EXPECT_EQ(row.ofBeam, BeamOrColumnMaterial(section, kGrades)) << row.kind << " " << row.param1;
        EXPECT_EQ(row.ofBrace, BraceMaterial(section, kGrades)) << row.kind << " " << row.param1;
    }
}

TEST(MemberMaterial, ThreeSteelGradesHaveNames)
{
    EXPECT_EQ("Grade3", SteelNameOf(3));
    EXPECT_EQ("15MnV", SteelNameOf(15));
    EXPECT_EQ("16Mn", SteelNameOf(16));
    EXPECT_EQ("", SteelNameOf(0));
    EXPECT_EQ("", SteelNameOf(4));
    EXPECT_EQ("", SteelNameOf(-3));
}

}  // namespace
}  // namespace satwecvt
