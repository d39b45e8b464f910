// What whole conversions tell of the lines of their files: a byte order mark, numbers that are none, what is not read.
// Each is shown with its line, and beside it the nearest input that is innocent.

#include "satwecvt/ConvertSatwe.h"
#include "support/FindingLines.h"
#include "support/SmallBuilding.h"

#include <gtest/gtest.h>

#include <string>

namespace satwecvt {
namespace {

using namespace std::string_literals;

const std::string kLoads = "1\n1 8 1 0 5 1\n";

/// The building with another line in place of one of its lines, counted from 1.
std::string WithLine(std::size_t number, const std::string& line)
{
    std::vector<std::string> lines = SplitLines(BuildingWithBeam());
    lines.at(number - 1) = line + "\n";
    return JoinLines(lines);
}

void ExpectOfLoadFile(const CLines& expected, const std::string& load)
{
    const CAnswer answer = Convert(BuildingWithBeam(), load);
    ExpectWritten(answer);
    EXPECT_EQ(expected, LinesOf(answer)) << testing::PrintToString(load);
}

void ExpectOfStructureFile(const CLines& expected, const std::string& structure)
{
    const CAnswer answer = Convert(structure, kLoads);
    ExpectWritten(answer);
    EXPECT_EQ(expected, LinesOf(answer)) << testing::PrintToString(structure);
}

TEST(LineFindings, AByteOrderMarkTakesTheFirstNumberAway)
{
    ExpectOfLoadFile(
        {"load.sat:1: doubt: the file starts with a byte order mark (EF BB BF), which is read as a part of its first "
         "line [byte-order-mark]",
         "load.sat:1: doubt: \"\\xEF\\xBB\\xBF1\" is read as 0 [not-a-number]",
         "load.sat:2: doubt: 1 data line behind the last block is not read [rest-not-read]"},
        "\xEF\xBB\xBF" + kLoads);
}

TEST(LineFindings, AByteOrderMarkMakesACommentADataLine)
{
    ExpectOfLoadFile(
        {"load.sat:1: doubt: the file starts with a byte order mark (EF BB BF), which is read as a part of its first "
         "line [byte-order-mark]",
         "load.sat:1: doubt: \"\\xEF\\xBB\\xBF"
         "C\" is read as 0 [not-a-number]",
         "load.sat:2: doubt: 2 data lines behind the last block are not read [rest-not-read]"},
        "\xEF\xBB\xBF"
        "C loads\n" +
            kLoads);
}

TEST(LineFindings, Utf16IsNamed)
{
    ExpectOfLoadFile({"load.sat:1: doubt: the file is UTF-16 text, whose numbers cannot be read: save it as plain text "
                      "[utf-16]",
                      "load.sat:1: doubt: \"\\xFF\\xFE\" is read as 0 [not-a-number]",
                      "load.sat:1: doubt: a NUL byte ends the text of this line [nul-byte]"},
                     "\xFF\xFE"
                     "1\0\n\0"s);
}

TEST(LineFindings, ALastLineWithoutALineEndLosesItsLastCharacter)
{
    ExpectOfLoadFile({"load.sat:2: doubt: the last line has no line end and lost its last character for it, \"2\" "
                      "[no-line-end]"},
                     "1\n1 8 1 0 5 12");
    for (const char* innocent : {"1 8 1 0 5 1 ", "1 8 1 0 5 1\r", "1,8,1,0,5,1", "1 8 1 0 5 1 N=3"}) {
        ExpectOfLoadFile({}, "1\n"s + innocent);
    }
}

TEST(LineFindings, ALastLineOfOneCharacterIsLostWhole)
{
    const std::string twoStories =
        Replaced(BuildingWithBeam(), "1 1 5 0 0\n", "2 1 5 0 0\n") + "2 9 0\n0\n3 30 30 30 30 3\n0 0 0 0 0 0\n";
    const std::string endsEarly =
        "loss: the file ends in block 2 of 2: 1 load read, 1 announced in the blocks that were "
        "read [ends-early]";
    EXPECT_EQ((CLines{"load.sat:3: doubt: the last line has no line end and lost its last character for it, \"0\" "
                      "[no-line-end]",
                      "load.sat:3: " + endsEarly}),
              LinesOf(Convert(twoStories, kLoads + "0")));
    for (const char* innocent : {"C", " ", "\r", "C 0"}) {
        EXPECT_EQ(CLines{"load.sat:3: " + endsEarly}, LinesOf(Convert(twoStories, kLoads + innocent))) << innocent;
    }
}

TEST(LineFindings, WhatStandsBehindAnEndMarkIsNotRead)
{
    ExpectOfLoadFile({"load.sat:3: doubt: a byte 1A ends the file here: 5 bytes behind it are not read [end-mark]"},
                     kLoads +
                         "\x1A"
                         "1 2\r\n");
    ExpectOfLoadFile({"load.sat:3: doubt: a byte 1A ends the file here: 70004 bytes behind it are not read [end-mark]"},
                     kLoads + "\x1A\n 1" + std::string(70001, ' '));
    ExpectOfLoadFile({"load.sat:2: loss: the file ends in block 1 of 1: 0 loads read, 1 announced in the blocks that "
                      "were read [ends-early]",
                      "load.sat:2: doubt: a byte 1A ends the file here: 5 bytes behind it are not read [end-mark]"},
                     "1\nC \x1A"
                     "8 1 0");
    ExpectOfLoadFile({}, kLoads + "\x1A");
    ExpectOfLoadFile({}, kLoads + "\x1A \t\r\n" + std::string(70000, '\n'));
}

TEST(LineFindings, ANulEndsTheTextOfItsLineAndIsToldOnceAFile)
{
    ExpectOfLoadFile({"load.sat:3: doubt: a NUL byte ends the text of this line, and of 1 other line [nul-byte]"},
                     "1\nC\nC \0 \0\n1 8 1 0 5 1 \0 2\n"s);
    ExpectOfLoadFile({"load.sat:4: doubt: 1 data line behind the last block is not read [rest-not-read]"},
                     kLoads + "C\0\n1 2\0\n"s);
}

TEST(LineFindings, ALongLineIsReadInPieces)
{
    const std::string blanks(600, ' ');
    ExpectOfLoadFile({"load.sat:2: doubt: the line has more than 499 characters and is read in pieces, each as a line "
                      "[long-line]",
                      "load.sat:2: doubt: 1 data line behind the last block is not read [rest-not-read]"},
                     "1\n1 8 1 0 5 1" + blanks + "7\n");
    ExpectOfLoadFile({"load.sat:2: doubt: the line has more than 499 characters and is read in pieces, each as a line "
                      "[long-line]"},
                     "1\n1 8 1 0 5 1" + blanks + "\n");
    ExpectOfLoadFile({"load.sat:1: doubt: the line has more than 499 characters and is read in pieces, each as a line "
                      "[long-line]"},
                     "C" + blanks + "1\n1 8 1 0 5 1\n");
    ExpectOfLoadFile({}, "C" + blanks + "\n" + kLoads);
    ExpectOfLoadFile({}, "1\n1 8 1 0 5 1" + std::string(487, ' ') + "\n");  // 499 with the newline
}

TEST(LineFindings, ALongCommentWhoseRestIsReadIsALongLine)
{
    ExpectOfLoadFile({"load.sat:1: doubt: the line has more than 499 characters and is read in pieces, each as a line "
                      "[long-line]",
                      "load.sat:1: doubt: \"" + std::string(60, 'X') + "...\" is read as 0 [not-a-number]",
                      "load.sat:2: doubt: 2 data lines behind the last block are not read [rest-not-read]"},
                     "C" + std::string(600, 'x') + "\n" + kLoads);
}

TEST(LineFindings, DataLinesBehindTheLastStoryAreCounted)
{
    ExpectOfStructureFile({"structure.sat:15: doubt: 2 data lines behind the last story are not read [rest-not-read]"},
                          BuildingWithBeam() + "C end\n1 2\n\n3\n");
    ExpectOfStructureFile({"structure.sat:14: doubt: 1 data line behind the last story is not read [rest-not-read]"},
                          BuildingWithBeam() + "1" + std::string(600, ' ') + "2\n");
    ExpectOfStructureFile({}, BuildingWithBeam() + "C end\n \t\n\n");
}

TEST(LineFindings, ATextThatIsNoNumberIsToldWithItsValue)
{
    ExpectOfStructureFile({"structure.sat:5: doubt: \"4O\" is read as 4 [not-a-number]"}, WithLine(5, "2 2 0 4o 0 0"));
    ExpectOfStructureFile({"structure.sat:5: doubt: \"4D0\" is read as 4 [not-a-number]"},
                          WithLine(5, "2 2 0 4D0 0 0"));
    ExpectOfStructureFile({"structure.sat:10: doubt: \"3*-2\" is read as -2 [not-a-number]"}, WithLine(10, "3*-2"));
    ExpectOfStructureFile({"structure.sat:10: doubt: \"2*\" is read as 2 [not-a-number]"}, WithLine(10, "2*"));
    ExpectOfStructureFile({"structure.sat:10: doubt: an empty field is read as 0 [not-a-number]"},
                          WithLine(10, "1,,2"));
    ExpectOfStructureFile({"structure.sat:10: doubt: \"ONE\" is read as 0 [not-a-number]"},
                          WithLine(10, "one two 3"));  // the first of the line
}

TEST(LineFindings, EveryDressingOfANumberThatTheFormatAllowsIsInnocent)
{
    for (const char* line :
         {"2 2 0 2*2 0 0", "2 2 0 1+3 0 0", "2 2 0 +4 0 -0", "2 2 0 4. 0 0", "2 2 0 .4e1 0 0", "2 2 0 0x4 0 0",
          "2\t2 0\t4 0 0\t", "2,2,0,4,0,0", " 2 , 2 ,0, 4,0 ,0 ", "2 2 0 4 0 0 X=a b", "2,2,0,4,0,0 N=3",
          "2 2 0 4 0 0 7 8 9", "2 2 0 4.00000000000000000000 0 0", "2 2 0 4 0 0\r"}) {
        ExpectOfStructureFile({}, WithLine(5, line));
    }
}

TEST(LineFindings, ASlabOverSeveralLinesIsInnocentUnlessItsNumbersFuse)
{
    ExpectOfStructureFile({}, Building("1 0 0 0 1", "8 3 4 1 0 0 0\n8 4 0 100 1\n 2 4\n 3\n"));
    ExpectOfStructureFile({}, Building("1 0 0 0 1", "8 3 4 1 0 0 0\n8 4 0 100 1 2\n2 4 3\n"));
    ExpectOfStructureFile({}, Building("1 0 0 0 1", "8 3 4 1 0 0 0\n8 4 0 100 1 2\n2\n2 4\n4 3\n"));
    ExpectOfStructureFile({}, Building("1 0 0 0 1", "8 3 4 1 0 0 0\n8 4 0 100 1 0.2e1\n0.2e1 4 3\n"));
    ExpectOfStructureFile({"structure.sat:14: doubt: \"2\\x0A4\" is read as 2 [not-a-number]"},
                          Building("1 0 0 0 1", "8 3 4 1 0 0 0\n8 4 0 100 1 2\n4 3 5\n"));
    ExpectOfStructureFile({"structure.sat:14: doubt: \"1+1\\x0A1+1\" is read as 3 [not-a-number]"},
                          Building("1 0 0 0 1", "8 3 4 1 0 0 0\n8 4 0 100 1 1+1\n1+1 4 3\n"));
}

TEST(LineFindings, BlanksDoNotSeparateNumbersInALineWithAComma)
{
    ExpectOfStructureFile({"structure.sat:10: doubt: \"1 \\x09"
                           "2\" is read as 12: in a line with a comma, blanks do not separate numbers "
                           "[fused-numbers]"},
                          WithLine(10, "0, 1 \t2 , 3"));
    for (const char* line : {"1, 2, 3", "1 ,2\t,\t3", "- 1, 2", "1 + 2, 3", "1 . 5, 2"}) {
        ExpectOfStructureFile({}, WithLine(10, line));
    }
}

TEST(LineFindings, ANumberOutOfRangeIsToldWhereItIsUsed)
{
    ExpectOfLoadFile({"load.sat:2: doubt: \"1E999\" is read as inf: it is not a finite number [number-out-of-range]"},
                     "1\n1 8 1 1 1e999 1\n");
    ExpectOfLoadFile({"load.sat:2: doubt: \"NAN\" is read as nan: it is not a finite number [number-out-of-range]"},
                     "1\n1 8 1 1 nan 1\n");
    ExpectOfStructureFile(
        {"structure.sat:13: doubt: \"1/0\" is read as inf: it is not a finite number [number-out-of-range]"},
        WithLine(13, "8 3 4 1 0 0 1/0"));
    ExpectOfStructureFile({"structure.sat:13: doubt: \"3000000000\" is read as 2147483647: it is no integer of 32 bits "
                           "[number-out-of-range]"},
                          WithLine(13, "8 3 4 1 3000000000 0 0"));
    for (const char* line : {"8 3 4 1 0 9e99 0", "8 3 4 1 0 inf 0 3000000000", "8 3 4 1 2147483647.9 0 -0"}) {
        ExpectOfStructureFile({}, WithLine(13, line));
    }
}

TEST(LineFindings, ANumberOutOfRangeIsToldInItsLineWhereverItIsUsed)
{
    const std::string inLine = " is read as 2147483647: it is no integer of 32 bits [number-out-of-range]";
    ExpectOfStructureFile({"structure.sat:11: doubt: \"INF\"" + inLine}, WithLine(11, "3 30 inf 30 30 3"));
    ExpectOfStructureFile({"structure.sat:11: doubt: \"1E12\"" + inLine}, WithLine(11, "3 1e12 30 30 30 3"));
    ExpectOfStructureFile({"structure.sat:11: doubt: \"1E12\"" + inLine}, WithLine(11, "3 30 30 30 30 1e12\nC"));
    ExpectOfStructureFile({}, WithLine(11, "inf 30 30 30 30 3"));  // nothing reads it

    const std::string wall = "8 3 4 1 0 0 0\n7 2 0 0 0 200 0 0 0 0\n";
    const std::string wallLost =
        "structure.sat:14: loss: wall 7 of story 1 is left out: its corner node 2147483647 is not in the model "
        "[wall-corner-missing] no=7 element=2";
    for (const char* points : {"99999999999 4\n1 2\n", "99999999999 4\n1,2\n", "99999999999, 4\n1 2\n"}) {
        ExpectOfStructureFile({"structure.sat:15: doubt: \"99999999999\"" + inLine, wallLost},
                              Building("1 0 0 1 0", wall + points));
    }
    ExpectOfStructureFile({"structure.sat:17: doubt: \"99999999999\"" + inLine, wallLost},
                          Building("1 0 0 1 0", wall + "3 4\nC\n1 99999999999\n"));
}

TEST(LineFindings, WhatIsWrongInASlabOverSeveralLinesIsToldInItsOwnLine)
{
    const std::string slab = "8 3 4 1 0 0 0\n6 4 0 100 1 2\n";
    const std::string slabLost =
        "structure.sat:14: loss: 1 of the 2 triangles of plate 6 of story 1 are left out: node 2147483647 is not in "
        "the "
        "model [plate-corner-missing] no=7 element=3";
    ExpectOfStructureFile({"structure.sat:15: doubt: \"4X\" is read as 4 [not-a-number]"},
                          Building("1 0 0 0 1", slab + "2 4x 3\n"));
    ExpectOfStructureFile({"structure.sat:16: doubt: \"4X\" is read as 4 [not-a-number]"},
                          Building("1 0 0 0 1", "8 3 4 1 0 0 0\n6, 4, 0, 100, 1, 2,\nC\n4x, 3\n"));
    ExpectOfStructureFile({"structure.sat:14: doubt: \"1X\" is read as 1 [not-a-number]",
                           "structure.sat:15: doubt: \"3X\" is read as 3 [not-a-number]"},
                          Building("1 0 0 0 1", "8 3 4 1 0 0 0\n6 4 0 100 1x 2\n2 4 3x\n"));
    ExpectOfStructureFile(
        {"structure.sat:15: doubt: \"99999999999\" is read as 2147483647: it is no integer of 32 bits "
         "[number-out-of-range]",
         slabLost},
        Building("1 0 0 0 1", slab + "2 4 99999999999\n"));
    const CAnswer answer = Convert(Building("1 0 0 0 1", "8 3 4 1 0 0 0\n6 99999999999 0 100 1 2 4 3\nC\n1\n"), kLoads);
    ExpectNotRead(answer);
    EXPECT_EQ(CLines{"structure.sat:14: doubt: \"99999999999\" is read as 2147483647: it is no integer of 32 bits "
                     "[number-out-of-range]"},
              LinesOf(answer));
}

TEST(LineFindings, OneFileForBothIsTold)
{
    CMemoryFiles files;
    files.files = {{"both.sat", BuildingWithBeam()}};
    CScriptedInterface screen;
    CFindingList findings;
    CConvertSatwe converter(screen, &findings, files);
    EXPECT_EQ(0, converter.Convert("both.sat", "both.sat"));
    EXPECT_EQ("load.sat:0: doubt: the structure file and the load file are one file [same-file]",
              Line(findings.Findings().front()));
}

TEST(LineFindings, SwappedFilesAreToldWhenTheReadingFails)
{
    const CAnswer answer = Convert(kLoads, BuildingWithBeam());
    ExpectNotRead(answer);
    EXPECT_EQ(CLines{"structure.sat:0: doubt: this looks like a load file, and the load file like a structure file: "
                     "are they swapped? [files-swapped]"},
              LinesOf(answer));
    for (const char* loads : {"0\n1\n1 8 1 0 5 1\n", "1\n1 8 1 0\n", "1\n1 8 99 0 5 1\n",
                              "\xEF\xBB\xBF"
                              "1\n1 8 1 0 5 1\n"}) {
        const CLines told = LinesOf(Convert(loads, BuildingWithBeam()));
        ASSERT_FALSE(told.empty()) << loads;
        EXPECT_TRUE(told.back().ends_with("[files-swapped]")) << loads;
    }
    EXPECT_EQ(CLines{}, LinesOf(Convert(kLoads, kLoads)));
    EXPECT_EQ(CLines{}, LinesOf(Convert("1 1 5\n1 2 3\n", BuildingWithBeam())));
    ExpectOfLoadFile({}, "0\n");
}

TEST(LineFindings, ABlockWithoutALoadIsANoteWhereOthersHaveSome)
{
    const std::string twoStories =
        Replaced(BuildingWithBeam(), "1 1 5 0 0\n", "2 1 5 0 0\n") + "2 9 0\n0\n3 30 30 30 30 3\n0 0 0 0 0 0\n";
    const CAnswer answer = Convert(twoStories, kLoads + "C\n0\n");
    ExpectWritten(answer);
    EXPECT_EQ(CLines{"load.sat:4: note: block 2 has no load [story-without-load] no=9"}, LinesOf(answer));
    EXPECT_EQ(CLines{}, LinesOf(Convert(twoStories, "0\n0\n")));
}

TEST(LineFindings, AFailureTellsTheTextOfItsLine)
{
    const CAnswer answer = Convert(WithLine(5, "2 2 0\t4 0  "), kLoads);
    ExpectNotRead(answer);
    ASSERT_TRUE(answer.conversion.report.failure);
    EXPECT_EQ("2 2 0\t4 0  ", answer.conversion.report.failure->text);
    EXPECT_EQ(5, answer.conversion.report.failure->place.line);
    EXPECT_EQ("", Convert("1 1 5\n", kLoads).conversion.report.failure->text) << "the file ends: no line is at fault";
}

}  // namespace
}  // namespace satwecvt
