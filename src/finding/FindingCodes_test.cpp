#include "satwecvt/Finding.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace satwecvt {
namespace {

TEST(FindingText, NoTwoCodesShareAName)
{
    std::set<std::string_view> names;
    for (std::size_t code = 0; code < kFindingCodes; ++code) {
        EXPECT_TRUE(names.insert(CodeName(static_cast<EFinding>(code))).second) << code;
    }
    EXPECT_FALSE(names.contains(""));
}

TEST(MakeFinding, GivesTheSeverityOfTheCode)
{
    EXPECT_EQ(ESeverity::Loss, MakeFinding(EFinding::LoadType, {}).severity);
    EXPECT_EQ(ESeverity::Doubt, MakeFinding(EFinding::NotANumber, {}).severity);
    EXPECT_EQ(ESeverity::Note, MakeFinding(EFinding::ZeroLoad, {}).severity);
    EXPECT_EQ(7, MakeFinding(EFinding::ZeroLoad, {ESource::LoadFile, 7}).place.line);
}

TEST(SeverityName, IsOneWord)
{
    EXPECT_EQ("loss", SeverityName(ESeverity::Loss));
    EXPECT_EQ("doubt", SeverityName(ESeverity::Doubt));
    EXPECT_EQ("note", SeverityName(ESeverity::Note));
}

TEST(ObjectName, IsOneWord)
{
    EXPECT_EQ("", ObjectName(EObject::None));
    EXPECT_EQ("beam", ObjectName(EObject::Beam));
    EXPECT_EQ("column", ObjectName(EObject::Column));
    EXPECT_EQ("brace", ObjectName(EObject::Brace));
    EXPECT_EQ("wall", ObjectName(EObject::Wall));
    EXPECT_EQ("plate", ObjectName(EObject::Plate));
    EXPECT_EQ("node", ObjectName(EObject::Node));
    EXPECT_EQ("section", ObjectName(EObject::Section));
    EXPECT_EQ("story", ObjectName(EObject::Story));
    EXPECT_EQ("load", ObjectName(EObject::Load));
}

TEST(FindingList, KeepsWhatItHears)
{
    CFindingList list;
    list.Tell(MakeFinding(EFinding::WallOpening, {}));
    list.Tell(MakeFinding(EFinding::ZeroLoad, {}));
    ASSERT_EQ(2U, list.Findings().size());
    EXPECT_EQ(EFinding::WallOpening, list.Findings()[0].code);
    EXPECT_EQ(EFinding::ZeroLoad, list.Findings()[1].code);
}

}  // namespace
}  // namespace satwecvt
