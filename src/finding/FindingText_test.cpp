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
    CFinding finding = MakeFinding(code, {});
    finding.object = object;
    finding.story = 8;
    finding.storyNo = 80;
    finding.key = 5;
    finding.values = values;
    finding.quote = code == EFinding::EndsEarly ? "" : "6O";
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
    {EFinding::ByteOrderMark,
     EObject::None,
     {},
     "byte-order-mark",
     "the file starts with a byte order mark (EF BB BF), which is read as a part of its first line"},
    {EFinding::Utf16,
     EObject::None,
     {},
     "utf-16",
     "the file is UTF-16 text, whose numbers cannot be read: save it as plain text"},
    {EFinding::NoLineEnd,
     EObject::None,
     {},
     "no-line-end",
     "the last line has no line end and lost its last character for it, \"6O\""},
    {EFinding::EndMark, EObject::None, {1}, "end-mark", "a byte 1A ends the file here: 1 byte behind it is not read"},
    {EFinding::NulByte, EObject::None, {1}, "nul-byte", "a NUL byte ends the text of this line"},
    {EFinding::NulByte, EObject::None, {3}, "nul-byte", "a NUL byte ends the text of this line, and of 2 other lines"},
    {EFinding::LongLine,
     EObject::None,
     {},
     "long-line",
     "the line has more than 499 characters and is read in pieces, each as a line"},
    {EFinding::RestNotRead, EObject::None, {1}, "rest-not-read", "1 data line behind the last story is not read"},
    {EFinding::RestNotRead, EObject::None, {20}, "rest-not-read", "20 data lines behind the last story are not read"},
    {EFinding::SameFile, EObject::None, {}, "same-file", "the structure file and the load file are one file"},
    {EFinding::FilesSwapped,
     EObject::None,
     {},
     "files-swapped",
     "this looks like a load file, and the load file like a structure file: are they swapped?"},
    {EFinding::NotANumber, EObject::None, {6}, "not-a-number", "\"6O\" is read as 6"},
    {EFinding::FusedNumbers,
     EObject::None,
     {12},
     "fused-numbers",
     "\"6O\" is read as 12: in a line with a comma, blanks do not separate numbers"},
    {EFinding::NumberOutOfRange,
     EObject::None,
     {2147483647},
     "number-out-of-range",
     "\"6O\" is read as 2147483647: it is no integer of 32 bits"},
    {EFinding::StoryKey,
     EObject::Story,
     {3},
     "story-key",
     "story 8: its key is not one of 1 to 3, so no block of the load file belongs to it"},
    {EFinding::NodeNumberTwice,
     EObject::Node,
     {77},
     "node-number-twice",
     "node 5 of story 8 has the number of a later node, in line 77: walls, slabs and loads mean that one"},
    {EFinding::NodeMissing,
     EObject::Column,
     {99},
     "node-missing",
     "column 5 of story 8 names node 99, which is not in the model"},
    {EFinding::NodeUnused, EObject::Story, {1}, "node-unused", "1 node of story 8 belongs to no element"},
    {EFinding::NodeUnused, EObject::Story, {2}, "node-unused", "2 nodes of story 8 belong to no element"},
    {EFinding::SectionNumberTwice,
     EObject::Section,
     {37},
     "section-number-twice",
     "section 5 of story 8 has the number of a later section, in line 37: members mean that one"},
    {EFinding::SectionMissing,
     EObject::Brace,
     {7},
     "section-missing",
     "brace 5 of story 8 names section 7, which is not defined"},
    {EFinding::GradeUnknown,
     EObject::Story,
     {7, 32, 0},
     "grade-unknown",
     "the steel grade 7 of 32 members of story 8 is unknown: Grade3 is taken"},
    {EFinding::GradeUnknown,
     EObject::Story,
     {17, 1, 1},
     "grade-unknown",
     "the concrete grade 17 of 1 composite member of story 8 has no stiffness ratio: that of C30 is taken"},
    {EFinding::ThicknessZero, EObject::Wall, {-2.5}, "thickness-zero", "wall 5 of story 8 has the thickness -2.5"},
    {EFinding::ZeroLength,
     EObject::Beam,
     {},
     "zero-length",
     "beam 5 of story 8 has no length: its ends are at one place"},
    {EFinding::ZeroLength,
     EObject::Wall,
     {},
     "zero-length",
     "wall 5 of story 8 has an edge without length: two of its corners are at one place"},
    {EFinding::SameNodes, EObject::Beam, {4}, "same-nodes", "beam 5 of story 8 has the same nodes as element 4"},
    {EFinding::NodesCoincide,
     EObject::Node,
     {4},
     "nodes-coincide",
     "node 5 of story 8 is at the place of node 4: what meets there is not joined"},
    {EFinding::NodeOnMember,
     EObject::Beam,
     {4},
     "node-on-member",
     "node 4 lies on beam 5 of story 8 and is not its end"},
    {EFinding::BeamsCross,
     EObject::Beam,
     {4},
     "beams-cross",
     "beam 5 of story 8 crosses element 4 without a common node"},
    {EFinding::MembersOverlap, EObject::Brace, {4}, "members-overlap", "brace 5 of story 8 and element 4 overlap"},
    {EFinding::NotSupported, EObject::Beam, {1}, "not-supported", "beam 5 of story 8 has no path to a support"},
    {EFinding::NotSupported,
     EObject::Beam,
     {3},
     "not-supported",
     "beam 5 of story 8 and 2 elements joined to it have no path to a support"},
    {EFinding::LookIncomplete,
     EObject::Story,
     {},
     "look-incomplete",
     "story 8: so many members lie close together that not every pair was looked at"},
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
    {EFinding::PlateTooFewCorners,
     EObject::Plate,
     {2},
     "plate-too-few-corners",
     "plate 5 of story 8 is left out: it has 2 corners"},
    {EFinding::PlateTooFewCorners,
     EObject::Plate,
     {1},
     "plate-too-few-corners",
     "plate 5 of story 8 is left out: it has 1 corner"},
    {EFinding::FlatTriangle,
     EObject::Plate,
     {1},
     "flat-triangle",
     "triangle 1 of plate 5 of story 8 is left out: it has no area"},
    {EFinding::LoadType,
     EObject::Load,
     {2147483647},
     "load-type",
     "a load of type 2147483647 on object 5 of story 8 is left out: the type is not converted"},
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
     "a load on beam 5 of story 8 is left out: node 99 is not in the model"},
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
    {EFinding::LoadMoved,
     EObject::Beam,
     {7000, 6000},
     "load-moved",
     "a load on beam 5 of story 8 is put on end j: it acts 7000 from end i, and the beam is 6000 long"},
    {EFinding::LoadBeyondEnd,
     EObject::Wall,
     {7000, 6000},
     "load-beyond-end",
     "a load on wall 5 of story 8 acts 7000 from its start, and the wall is 6000 long: one of its ends is loaded the "
     "other way"},
    {EFinding::LoadBeforeStart,
     EObject::Beam,
     {},
     "load-before-start",
     "a load on beam 5 of story 8 has a distance below 0, or ends before it starts"},
    {EFinding::TrapezoidAsTriangle,
     EObject::Beam,
     {12},
     "trapezoid-as-triangle",
     "a load on beam 5 of story 8 is written as a triangle: its sloping parts are longer than half of the beam, or "
     "nearly so; a force of 12 "
     "is missing"},
    {EFinding::TrapezoidAsTriangle,
     EObject::Beam,
     {std::numeric_limits<double>::quiet_NaN()},
     "trapezoid-as-triangle",
     "a load on beam 5 of story 8 is written as a triangle: its sloping parts are longer than half of the beam, or "
     "nearly so"},
    {EFinding::StoryWithoutLoad, EObject::Story, {}, "story-without-load", "block 8 has no load"},
    {EFinding::ZeroLoad,
     EObject::Beam,
     {},
     "zero-load",
     "a load on beam 5 of story 8 is left out: its intensity is 0, or nearly 0"},
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
    for (std::size_t code = 0; code < kFindingCodes; ++code) {
        EXPECT_TRUE(names.insert(CodeName(static_cast<EFinding>(code))).second) << code;
    }
    EXPECT_FALSE(names.contains(""));
}

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
    CFinding finding = Finding(EFinding::LoadNodeMissing, EObject::Node, {99});
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

TEST(MakeFinding, GivesTheSeverityOfTheCode)
{
    EXPECT_EQ(ESeverity::Loss, MakeFinding(EFinding::LoadType, {}).severity);
    EXPECT_EQ(ESeverity::Doubt, MakeFinding(EFinding::NotANumber, {}).severity);
    EXPECT_EQ(ESeverity::Note, MakeFinding(EFinding::ZeroLoad, {}).severity);
    EXPECT_EQ(7, MakeFinding(EFinding::ZeroLoad, {ESource::LoadFile, 7}).place.line);
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
