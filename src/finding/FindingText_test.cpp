#include "satwecvt/ConversionReport.h"
#include "satwecvt/Finding.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>

namespace satwecvt {
namespace {

CFinding Finding(EFinding code, EObject object, std::array<double, 4> values = {})
{
    CFinding finding;
    finding.code = code;
    finding.object = object;
    finding.story = 8;
    finding.storyNo = 80;
    finding.key = 5;
    finding.values = values;
    return finding;
}

struct CSentence {
    EFinding code;
    EObject object;
    std::array<double, 4> values;
    const char* name;
    const char* text;
};

const CSentence kSentences[] = {
    {EFinding::EndsEarly,
     EObject::None,
     {2, 8, 90, 361},
     "ends-early",
     "the file ends in block 2 of 8: 90 loads read, 361 announced in the blocks that were read"},
    {EFinding::WallCornerMissing,
     EObject::Wall,
     {1234567},
     "wall-corner-missing",
     "wall 5 of story 8 is left out: its corner node 1234567 is not in the model"},
    {EFinding::WallNotUpright,
     EObject::Wall,
     {120, 0},
     "wall-not-upright",
     "wall 5 of story 8 is left out: its ends do not stand upright, 120 apart in x"},
    {EFinding::WallNotUpright,
     EObject::Wall,
     {0, 0.25},
     "wall-not-upright",
     "wall 5 of story 8 is left out: its ends do not stand upright, 0.25 apart in y"},
    {EFinding::WallNotUpright,
     EObject::Wall,
     {120, 30},
     "wall-not-upright",
     "wall 5 of story 8 is left out: its ends do not stand upright, 120 apart in x and 30 in y"},
    {EFinding::WallOpening, EObject::Wall, {}, "wall-opening", "wall 5 of story 8 is written without its opening"},
    {EFinding::PlateCornerMissing,
     EObject::Plate,
     {999, 2, 3},
     "plate-corner-missing",
     "2 of the 3 triangles of plate 5 of story 8 are left out: node 999 is not in the model"},
    {EFinding::FlatTriangle,
     EObject::Plate,
     {1},
     "flat-triangle",
     "triangle 1 of plate 5 of story 8 is left out: it has no area"},
    {EFinding::LoadType,
     EObject::Load,
     {2147483647},
     "load-type",
     "a load of type 2147483647 on object 5 of story 8 is left out: its type is not converted"},
    {EFinding::LoadStoryMissing,
     EObject::Beam,
     {},
     "load-story-missing",
     "a load on beam 5 of story 8 is left out: there is no such story"},
    {EFinding::LoadBeamMissing,
     EObject::Beam,
     {},
     "load-beam-missing",
     "a load on beam 5 of story 8 is left out: the story has no such beam"},
    {EFinding::LoadWallMissing,
     EObject::Wall,
     {},
     "load-wall-missing",
     "a load on wall 5 of story 8 is left out: the story has no such wall"},
    {EFinding::LoadNodeMissing,
     EObject::Beam,
     {99},
     "load-node-missing",
     "a load on beam 5 of story 8 is left out: its node 99 is not in the model"},
    {EFinding::LoadOnLostWall,
     EObject::Wall,
     {},
     "load-on-lost-wall",
     "a line load on wall 5 of story 8 names an element that is not in the model: the wall was left out"},
    {EFinding::LoadCut,
     EObject::Beam,
     {1200},
     "load-cut",
     "a load on beam 5 of story 8 reaches beyond end j and is cut there: a force of 1200 is missing"},
    {EFinding::LoadCut,
     EObject::Beam,
     {-0.5},
     "load-cut",
     "a load on beam 5 of story 8 reaches beyond end j and is cut there: a force of 0.5 is added"},
    {EFinding::ZeroLoad, EObject::Beam, {}, "zero-load", "a load on beam 5 of story 8 is left out: its intensity is 0"},
};

TEST(FindingText, EveryCodeHasItsNameAndItsSentence)
{
    for (const CSentence& sentence : kSentences) {
        EXPECT_EQ(sentence.name, CodeName(sentence.code));
        EXPECT_EQ(sentence.text, FindingText(Finding(sentence.code, sentence.object, sentence.values)));
    }
}

TEST(FindingText, NoTwoCodesShareAName)
{
    std::set<std::string_view> names;
    for (int code = 0; code <= static_cast<int>(EFinding::ZeroLoad); ++code) {
        EXPECT_TRUE(names.insert(CodeName(static_cast<EFinding>(code))).second) << code;
    }
    EXPECT_FALSE(names.contains(""));
}

TEST(FindingText, ARefusedReadIsToldWithItsCause)
{
    CFinding finding = Finding(EFinding::EndsEarly, EObject::None, {1, 3, 0, 7});
    finding.quote = "Input/output error";
    EXPECT_EQ(
        "the system refuses to read on (Input/output error) in block 1 of 3: 0 loads read, 7 announced in the "
        "blocks that were read",
        FindingText(finding));
}

TEST(FindingText, NumbersThatAreNoneHaveAWord)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ("wall 5 of story 8 is left out: its ends do not stand upright, inf apart in x",
              FindingText(Finding(EFinding::WallNotUpright, EObject::Wall, {infinity, 0})));
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
    list.Tell(Finding(EFinding::WallOpening, EObject::Wall));
    list.Tell(Finding(EFinding::ZeroLoad, EObject::Beam));
    ASSERT_EQ(2U, list.Findings().size());
    EXPECT_EQ(EFinding::WallOpening, list.Findings()[0].code);
    EXPECT_EQ(EFinding::ZeroLoad, list.Findings()[1].code);
}

}  // namespace
}  // namespace satwecvt
