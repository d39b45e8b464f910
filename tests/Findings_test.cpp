// What whole conversions tell of what they leave out: code, line and object, and nothing where nothing is lost.

#include "satwecvt/ConvertSatwe.h"
#include "support/CheckedConversion.h"
#include "support/FindingLines.h"
#include "support/SmallBuilding.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace satwecvt {
namespace {

/// Twice what is told under each load case.
CLines UnderBothCases(const std::string& line)
{
    return {line, line};
}

const std::string kBeam = BuildingWithBeam();
const std::string kWall = Building("0 0 0 1 0", "8 2 0 0 0 200 0 0 0 0\n3 4 1 2\n");         // 4 long
const std::string kLeaningWall = Building("0 0 0 1 0", "8 2 0 0 0 200 0 0 0 0\n3 5 1 2\n");  // by 2 in x

TEST(Findings, OfTheSmallBuildingAreExactlyThese)
{
    const std::string zero =
        "load.sat:14: note: a load on beam 1 of story 2 is left out: its intensity is 0, or nearly 0 [zero-load] no=2 "
        "element=15 "
        "case=0";
    const std::string type =
        "load.sat:15: loss: a load of type 31 on object 1 of story 2 is left out: the type is not converted "
        "[load-type] "
        "no=2 case=0";
    EXPECT_EQ(
        (CLines{
            "structure.sat:35: loss: wall 2 of story 1 is written without its opening [wall-opening] no=1 "
            "element=9",
            "structure.sat:39: note: triangle 3 of plate 2 of story 1 is left out: it has no area [flat-triangle] "
            "no=1 element=14",
            "structure.sat:53: loss: wall 1 of story 2 is left out: its ends do not stand upright, 6000 apart in "
            "x and 5000 in y [wall-not-upright] no=2 element=17",
            "structure.sat:55: loss: 1 of the 1 triangles of plate 1 of story 2 are left out: node 999 is not in "
            "the model [plate-corner-missing] no=2 element=18",
            zero,
            type,
            "load.sat:17: doubt: a load names node 999, which is not in the model [load-node-missing] no=2 case=1",
            zero,
            type,
            "load.sat:16: loss: a line load on wall 1 of story 2 names an element that is not in the model: the "
            "wall was left out [load-on-lost-wall] no=2 element=17 case=1",
        }),
        LinesOf(Convert(SmallStructure(), SmallLoads())));
}

TEST(Findings, OfAWholeBuildingThereAreNone)
{
    for (const std::string& structure : {kBeam, kWall}) {
        const CAnswer answer = Convert(structure, "1\n1 3 11 0 10 1 2\n");
        ExpectWritten(answer);
        EXPECT_EQ(CLines{}, LinesOf(answer));
    }
}

struct CMemberLoss {
    std::string structure;
    std::string line;
};

TEST(Findings, OfMembersNameTheirFirstLine)
{
    const CMemberLoss losses[] = {
        {kLeaningWall,
         "structure.sat:13: loss: wall 8 of story 1 is left out: its ends do not stand upright, 2 apart in x "
         "[wall-not-upright] no=7 element=1"},
        {Building("0 0 0 1 0", "8 2 0 0 0 200 0 0 0 0\n3 6 1 2\n"),
         "structure.sat:13: loss: wall 8 of story 1 is left out: its corner node 6 is not in the model "
         "[wall-corner-missing] no=7 element=1"},
        {Building("0 0 0 1 0", "8 2 0 0 0 200 0 0 0 1\n3 4\n 1 2\n"),
         "structure.sat:13: loss: wall 8 of story 1 is written without its opening [wall-opening] no=7 element=1"},
        {Building("0 0 0 0 1", "8 2 0 100 1 2\n"),
         "structure.sat:13: loss: plate 8 of story 1 is left out: it has 2 corners [plate-too-few-corners] no=7"},
        {Building("0 0 0 0 1", "8 0 0 100\n"),
         "structure.sat:13: loss: plate 8 of story 1 is left out: it has 0 corners [plate-too-few-corners] no=7"},
        {Building("0 0 0 0 1", "C a comment\n8 4 0 100 3\n 2 1\n 6\n"),
         "structure.sat:14: loss: 1 of the 2 triangles of plate 8 of story 1 are left out: node 6 is not in the model "
         "[plate-corner-missing] no=7 element=2"},
    };
    for (const CMemberLoss& loss : losses) {
        const CAnswer answer = Convert(loss.structure, "0\n");
        ExpectWritten(answer);
        EXPECT_EQ(CLines{loss.line}, LinesOf(answer));
    }
}

TEST(Findings, OfAPlateCountTheTrianglesThatAreLost)
{
    // Of the fan around node 1 the triangles 2 and 3 have the missing corner, 1 and 4 do not.
    const CAnswer answer = Convert(Building("0 0 0 0 1", "8 6 0 100 1 2 4 99 3 5\n"), "0\n");
    EXPECT_EQ(CLines{"structure.sat:13: loss: 2 of the 4 triangles of plate 8 of story 1 are left out: node 99 is not "
                     "in the model [plate-corner-missing] no=7 element=2"},
              LinesOf(answer));
}

TEST(Findings, OfAFlatTriangleAreNotes)
{
    // 3, 5 and 4 lie on one line.
    const CAnswer answer = Convert(Building("0 0 0 0 1", "8 4 0 100 3 5 4 2\n"), "0\n");
    EXPECT_EQ(CLines{"structure.sat:13: note: triangle 1 of plate 8 of story 1 is left out: it has no area "
                     "[flat-triangle] no=7 element=1"},
              LinesOf(answer));
}

struct CLoadLoss {
    std::string structure;
    std::string load;
    std::string line;
};

/// A load line with another case: its fourth number.
std::string AsLive(std::string line)
{
    std::size_t at = 0;
    for (int i = 0; i < 3; ++i) {
        at = line.find(' ', at) + 1;
    }
    line[at] = '2';
    return line;
}

TEST(Findings, OfADeadLoadAreToldUnderBothCasesOfALiveOneUnderOne)
{
    const CLoadLoss losses[] = {
        {kBeam, "1 8 31 0 5",
         "loss: a load of type 31 on object 8 of story 1 is left out: the type is not converted [load-type] no=7"},
        {kBeam, "1 8 5 0 5",
         "loss: a load of type 5 on object 8 of story 1 is left out: the type is not converted [load-type] no=7"},
        {kBeam, "1 9 1 0 5",
         "loss: a load on beam 9 of story 1 is left out: the story has no such beam "
         "[load-beam-missing] no=7"},
        {Building("1 0 0 0 0", "8 3 99 1 0 0 0\n"), "1 8 1 0 5",
         "loss: a load on beam 8 of story 1 is left out: node 99 is not in the model [load-node-missing] no=7 "
         "element=1"},
        {kWall, "1 9 22 0 5",
         "loss: a load on wall 9 of story 1 is left out: the story has no such wall "
         "[load-wall-missing] no=7"},
        {kBeam, "1 8 2 0 6 6 0 5",
         "loss: a load on beam 8 of story 1 reaches beyond end j and is cut there: a force "
         "of 6 is missing [load-cut] no=7 element=1"},
        {kBeam, "1 8 4 0 0 1",
         "note: a load on beam 8 of story 1 is left out: its intensity is 0, or nearly 0 [zero-load] no=7 element=1"},
    };
    for (const CLoadLoss& loss : losses) {
        const CAnswer dead = Convert(loss.structure, "C\n\n1\n" + loss.load + "\n");
        ExpectWritten(dead);
        EXPECT_EQ(UnderBothCases("load.sat:4: " + loss.line + " case=0"), LinesOf(dead));

        const CAnswer live = Convert(loss.structure, "1\n" + AsLive(loss.load) + "\n");
        EXPECT_EQ(CLines{"load.sat:2: " + loss.line + " case=1"}, LinesOf(live));
    }
}

TEST(Findings, OfALoadThatIsWrittenAreDoubts)
{
    const std::string inFront =
        "doubt: a load on beam 8 of story 1 has a distance below 0, or ends before it "
        "starts [load-before-start] no=7 element=1";
    const CLoadLoss doubts[] = {
        {kBeam, "1 8 1 0 5 6",
         "doubt: a load on beam 8 of story 1 is put on end j: it acts 6 from end i, and the beam is 4 long "
         "[load-moved] no=7 element=1"},
        {kBeam, "1 8 1 0 5 -1", inFront},
        {kBeam, "1 8 2 0 5 5 2 1", inFront},
        {kBeam, "1 8 3 0 5 2 -1", inFront},
        {kBeam, "1 8 4 0 5 -1", inFront},
        {kBeam, "1 8 4 0 5 1.998",
         "doubt: a load on beam 8 of story 1 is written as a triangle: its sloping parts are longer than half of the "
         "beam, or nearly so; a force of 0.01 is missing [trapezoid-as-triangle] no=7 element=1"},
        {kBeam, "1 8 4 0 5 3",
         "doubt: a load on beam 8 of story 1 is written as a triangle: its sloping parts are longer than half of the "
         "beam, or nearly so [trapezoid-as-triangle] no=7 element=1"},
        {kBeam, "1 99 11 0 5", "doubt: a load names node 99, which is not in the model [load-node-missing] no=7"},
        {kBeam, "1 99 12 0 5", "doubt: a load names node 99, which is not in the model [load-node-missing] no=7"},
    };
    for (const CLoadLoss& doubt : doubts) {
        const CAnswer dead = Convert(doubt.structure, "1\n\n" + doubt.load + "\n");
        ExpectWritten(dead);
        EXPECT_EQ(UnderBothCases("load.sat:3: " + doubt.line + " case=0"), LinesOf(dead));
        EXPECT_EQ("", dead.conversion.messageLog);

        const CAnswer live = Convert(doubt.structure, "1\n" + AsLive(doubt.load) + "\n");
        EXPECT_EQ(CLines{"load.sat:2: " + doubt.line + " case=1"}, LinesOf(live));
    }
}

TEST(Findings, OfALoadWithinItsBeamThereAreNone)
{
    for (const char* load : {"1 8 1 0 5 4", "1 8 1 0 5 4.000003", "1 8 1 0 5 0", "1 8 1 0 5 -0.000003",
                             "1 8 2 0 5 5 2 2", "1 8 2 0 5 5 0 4.000003", "1 8 3 0 5 0 2", "1 8 4 0 5 2",
                             "1 8 4 0 5 2.000003", "1 8 4 0 5 1.999997", "1 8 4 0 5 1.9", "1 5 11 0 5", "1 1 12 0 5"}) {
        const CAnswer answer = Convert(kBeam, "1\n" + std::string(load) + "\n");
        ExpectWritten(answer);
        EXPECT_EQ(CLines{}, LinesOf(answer)) << load;
    }
}

TEST(Findings, OfALoadWhoseStoryIsMissingNameTheBlock)
{
    // The block is 1; the story has another key.
    const std::string structure = Replaced(kBeam, "1 7 0\n0\n", "3 7 0\n0\n");
    for (const auto& [load, object] : {std::pair{"1 8 1 1 5", "beam"}, {"1 8 22 1 5", "wall"}}) {
        const CAnswer answer = Convert(structure, "1\n" + std::string(load) + "\n");
        ExpectWritten(answer);
        EXPECT_EQ(CLines{"load.sat:2: loss: a load on " + std::string(object) +
                         " 8 of story 1 is left out: there is no such story [load-story-missing] case=1"},
                  LinesOf(answer));
    }
}

TEST(Findings, OfALoadOnALostWallNameTheElementThatIsNotThere)
{
    const CAnswer answer = Convert(kLeaningWall, "1\n1 8 22 1 5\n");
    ExpectWritten(answer);
    EXPECT_EQ(
        "load.sat:2: loss: a line load on wall 8 of story 1 names an element that is not in the model: the wall "
        "was left out [load-on-lost-wall] no=7 element=1 case=1",
        LinesOf(answer).back());
    EXPECT_NE(std::string::npos, answer.conversion.model->find("\n1, PRES, PLATE, EDGE, 3, GZ, 0, 0, 0, -5, 0, 0,\n"));
}

TEST(Findings, OfAForceOnAWallWhoseNodeIsMissing)
{
    const CAnswer answer = Convert(Building("0 0 0 1 0", "8 2 0 0 0 200 0 0 0 0\n3 99 1 2\n"), "1\n1 8 21 1 5 1\n");
    ExpectWritten(answer);
    EXPECT_EQ(
        "load.sat:2: loss: a load on wall 8 of story 1 is left out: node 99 is not in the model "
        "[load-node-missing] no=7 element=1 case=1",
        LinesOf(answer).back());
}

TEST(Findings, ChangeNoByteOfTheOutputs)
{
    CMemoryFiles files;
    files.files = {{"structure.sat", SmallStructure()}, {"load.sat", SmallLoads()}};
    CScriptedInterface screen;
    CConvertSatwe deaf(screen, nullptr, files);
    EXPECT_EQ(0, deaf.Convert("structure.sat", "load.sat"));
    const CConversionResult heard = ConvertSmallBuilding();
    EXPECT_EQ(heard.model, files.Bytes("structure.vkm"));
    EXPECT_EQ(heard.messageLog, files.Bytes("satwecvt.msg"));
    EXPECT_EQ(heard.report.written.warnings, deaf.Report().written.warnings);
}

}  // namespace
}  // namespace satwecvt
