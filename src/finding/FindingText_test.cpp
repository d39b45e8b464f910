// Sentences that depend on more than their code.

#include "finding/FindingOfStory_test.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace satwecvt {
namespace {

TEST(FindingText, OfASectionNeedsNoStory)
{
    CFinding finding = MakeFinding(EFinding::SectionKind, {});
    finding.object = EObject::Section;
    finding.key = 3;
    finding.values = {15, 12};
    EXPECT_EQ("section 3 is of kind 15, which has no lines in the model: 12 members without a section",
              FindingText(finding));
}

TEST(FindingText, OfNodesAtTheModelLevelNamesNoStory)
{
    CFinding finding = MakeFinding(EFinding::NodeUnused, {});
    finding.object = EObject::Story;
    finding.values = {2};
    EXPECT_EQ("2 nodes of the model level belong to no element", FindingText(finding));
}

TEST(FindingText, OfALoadOnAMissingNodeTellsWhetherItIsWritten)
{
    CFinding finding = FindingOfStory(EFinding::LoadNodeMissing, EObject::Node, {99});
    finding.severity = ESeverity::Doubt;
    EXPECT_EQ("a load names node 99, which is not in the model", FindingText(finding));
}

TEST(FindingText, AnEmptyFieldIsNamed)
{
    EXPECT_EQ("an empty field is read as 0", FindingText(MakeFinding(EFinding::NotANumber, {})));
}

TEST(FindingText, AQuoteIsPrintableAndShort)
{
    CFinding finding = MakeFinding(EFinding::NotANumber, {});
    finding.quote = "1\x1B[31m\n\xE6";
    EXPECT_EQ("\"1\\x1B[31m\\x0A\\xE6\" is read as 0", FindingText(finding));
    finding.quote = std::string(61, '7');
    EXPECT_EQ("\"" + std::string(60, '7') + "...\" is read as 0", FindingText(finding));
}

TEST(FindingText, TheRestOfALoadFileIsBehindItsLastBlock)
{
    CFinding finding = MakeFinding(EFinding::RestNotRead, {ESource::LoadFile, 12});
    finding.values = {2};
    EXPECT_EQ("2 data lines behind the last block are not read", FindingText(finding));
}

TEST(FindingText, ARefusedReadIsToldWithItsCause)
{
    CFinding finding = FindingOfStory(EFinding::EndsEarly, EObject::None, {1, 3, 0, 7});
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
              FindingText(FindingOfStory(EFinding::WallNotUpright, EObject::Wall, {infinity, 0})));
}

}  // namespace
}  // namespace satwecvt
