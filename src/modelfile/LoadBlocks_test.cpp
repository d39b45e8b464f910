#include "modelfile/ModelTexts_test.h"

#include <gtest/gtest.h>

#include <string>

namespace satwecvt {
namespace {

TEST(LoadBlocks, WithoutLoadsThereAreTwoEmptyCases)
{
    const CModelFile model = ReadModelFile(ModelTextOf({}));
    ASSERT_EQ(2U, model.loadCases.size());
    EXPECT_EQ("DeadLoad", model.loadCases[0].name);
    EXPECT_EQ("LiveLoad", model.loadCases[1].name);
    for (const CLoadCase& loadCase : model.loadCases) {
        EXPECT_FALSE(loadCase.hasNodalHeader || loadCase.hasBeamHeader || loadCase.hasEdgeHeader);
        EXPECT_TRUE(loadCase.nodalLoads.empty() && loadCase.beamLoads.empty() && loadCase.edgeLoads.empty());
    }
}

TEST(LoadBlocks, ANodalLoadHasForcesAndMoments)
{
    const CModelFile model = ReadModelFile(ModelTextOf({.nodalLoads = "5, 1, -2, -40000, 4.5e+06, 5, 6\n"}));
    const CLoadCase& dead = model.loadCases.at(0);
    EXPECT_TRUE(dead.hasNodalHeader);
    EXPECT_FALSE(dead.hasBeamHeader);
    EXPECT_FALSE(dead.hasEdgeHeader);
    ASSERT_EQ(1U, dead.nodalLoads.size());
    const CNodalLoad& load = dead.nodalLoads[0];
    EXPECT_EQ(5, load.node);
    EXPECT_EQ(1.0, load.fx);
    EXPECT_EQ(-2.0, load.fy);
    EXPECT_EQ(-40000.0, load.fz);
    EXPECT_EQ(4.5e6, load.mx);
    EXPECT_EQ(5.0, load.my);
    EXPECT_EQ(6.0, load.mz);
}

TEST(LoadBlocks, ABeamLoadHasPlacesAndValues)
{
    const CModelFile model =
        ReadModelFile(ModelTextOf({.beamLoads = "7, BEAM, CONLOAD, GZ, NO, 0.4, -12, 0, 0, 0, 0, 0, 0\n"
                                                "8, BEAM, UNILOAD, GZ, NO, 0.1, -1, 0.2, -2, 0.3, -3, 0.4, -4\n"}));
    const CLoadCase& dead = model.loadCases.at(0);
    EXPECT_FALSE(dead.hasNodalHeader);
    EXPECT_TRUE(dead.hasBeamHeader);
    ASSERT_EQ(2U, dead.beamLoads.size());
    const CBeamLoad& force = dead.beamLoads[0];
    EXPECT_EQ(7, force.element);
    EXPECT_EQ(EBeamLoad::Concentrated, force.type);
    EXPECT_EQ(0.4, force.pairs[0].place);
    EXPECT_EQ(-12.0, force.pairs[0].value);
    const CBeamLoad& line = dead.beamLoads[1];
    EXPECT_EQ(8, line.element);
    EXPECT_EQ(EBeamLoad::Distributed, line.type);
    constexpr double kPlaces[] = {0.1, 0.2, 0.3, 0.4};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(i == 0 ? 0.4 : 0.0, force.pairs[i].place);
        EXPECT_EQ(kPlaces[i], line.pairs[i].place);
        EXPECT_EQ(-1.0 - static_cast<double>(i), line.pairs[i].value);
    }
}

TEST(LoadBlocks, AnEdgeLoadHasItsEdgeAndValue)
{
    const CModelFile model =
        ReadModelFile(ModelTextOf({.edgeLoads = "120, PRES, PLATE, EDGE, 3, GZ, 0, 0, 0, -15.5, 0, 0,\n"}));
    const CLoadCase& dead = model.loadCases.at(0);
    EXPECT_TRUE(dead.hasEdgeHeader);
    ASSERT_EQ(1U, dead.edgeLoads.size());
    EXPECT_EQ(120, dead.edgeLoads[0].element);
    EXPECT_EQ(3, dead.edgeLoads[0].edge);
    EXPECT_EQ(-15.5, dead.edgeLoads[0].value);
}

TEST(LoadBlocks, AWallHasFourEdges)
{
    const CModelFile model =
        ReadModelFile(ModelTextOf({.edgeLoads = "1, PRES, PLATE, EDGE, 1, GZ, 0, 0, 0, -15, 0, 0,\n"
                                                "1, PRES, PLATE, EDGE, 4, GZ, 0, 0, 0, -15, 0, 0,\n"}));
    ASSERT_EQ(2U, model.loadCases.at(0).edgeLoads.size());
    EXPECT_EQ(1, model.loadCases[0].edgeLoads[0].edge);
    EXPECT_EQ(4, model.loadCases[0].edgeLoads[1].edge);
}

TEST(LoadBlocks, ALoadBelongsToTheCaseInWhichItStands)
{
    const std::string dead = BlockText("*CONLOAD    ; Nodal Loads", 1, "1, 0, 0, -1, 0, 0, 0\n");
    const std::string live = BlockText("*CONLOAD    ; Nodal Loads", 1, "1, 0, 0, -1, 0, 0, 0\n2, 0, 0, -2, 0, 0, 0\n");
    const CModelFile model =
        ReadModelFile(kShortestText + LoadsText("DeadLoad", dead) + LoadsText("LiveLoad", live) + "\n");
    ASSERT_EQ(1U, model.loadCases.at(0).nodalLoads.size());
    ASSERT_EQ(2U, model.loadCases.at(1).nodalLoads.size());
    EXPECT_EQ(2, model.loadCases[1].nodalLoads[1].node);
}

TEST(LoadBlocks, HeadersOfNodalAndBeamLoadsCanStandAlone)
{
    const std::string nodal = BlockText("*CONLOAD    ; Nodal Loads", 1, "");
    const std::string beam = BlockText("*BEAMLOAD    ; Element Beam Loads", 2, "");
    const CModelFile model =
        ReadModelFile(kShortestText + LoadsText("DeadLoad", nodal, "\n") + LoadsText("LiveLoad", "\n", beam) + "\n");
    EXPECT_TRUE(model.loadCases.at(0).hasNodalHeader);
    EXPECT_FALSE(model.loadCases.at(0).hasBeamHeader);
    EXPECT_FALSE(model.loadCases.at(1).hasNodalHeader);
    EXPECT_TRUE(model.loadCases.at(1).hasBeamHeader);
}

TEST(LoadBlocks, ALineOfAnotherFormIsRefused)
{
    for (const std::string line : {"5, 1, 2, 3, 4, 5", "5, 1, 2, 3, 4, 5, 6, 7", "  5, 1, 2, 3, 4, 5, 6",
                                   "5, 1, 2, 3, 4, 5, 6,", "5, 1, 2, three, 4, 5, 6", "5e0, 1, 2, 3, 4, 5, 6"}) {
        EXPECT_EQ("line 21: no nodal load is '" + line + "'", ComplaintAbout(ModelTextOf({.nodalLoads = line + "\n"})));
    }
    for (const std::string line :
         {"7, BEAM, CONLOAD, GZ, NO, 0.4, -12, 0, 0, 0, 0, 0", "7, BEAM, CONLOAD, GZ, NO, 0.4, -12, 0, 0, 0, 0, 0, 1",
          "7, BEAM, UNILOAD, GZ, NO, 0, 0, 0, 0, 0, 0, 0", "7, BEAM, UNILOAD, GZ, NO, 0, 0, 0, 0, 0, 0, 0, 0, 0",
          "7, BEAM, UNILOAD, GX, NO, 0, 0, 0, 0, 0, 0, 0, 0", "7, BEAM, UNILOAD, GZ, YES, 0, 0, 0, 0, 0, 0, 0, 0",
          "7, LINE, UNILOAD, GZ, NO, 0, 0, 0, 0, 0, 0, 0, 0", "7, BEAM, UNIMOMENT, GZ, NO, 0, 0, 0, 0, 0, 0, 0, 0", "7",
          "BEAM"}) {
        EXPECT_EQ("line 23: no beam load is '" + line + "'", ComplaintAbout(ModelTextOf({.beamLoads = line + "\n"})));
    }
    for (const std::string line :
         {"1, PRES, PLATE, EDGE, 3, GZ, 0, 0, 0, -15, 0, 0", "1, PRES, PLATE, EDGE, 3, GZ, 0, 0, 0, -15, 0, 0, ",
          "1, PRES, PLATE, EDGE, 0, GZ, 0, 0, 0, -15, 0, 0,", "1, PRES, PLATE, EDGE, 5, GZ, 0, 0, 0, -15, 0, 0,",
          "1, PRES, PLATE, FACE, 3, GZ, 0, 0, 0, -15, 0, 0,", "1, PRES, PLATE, EDGE, 3, GX, 0, 0, 0, -15, 0, 0,",
          "1, PRES, PLATE, EDGE, 3, GZ, 0, 0, 0, -15, -15, 0,", "1, PRES, PLATE, EDGE, 3, GZ, 0, 0, 1, -15, 0, 0,"}) {
        EXPECT_EQ("line 27: no pressure load is '" + line + "'",
                  ComplaintAbout(ModelTextOf({.edgeLoads = line + "\n"})));
    }
}

TEST(LoadBlocks, AHeaderOfPressureLoadsCannotStandAlone)
{
    const std::string edge = BlockText("*PRESSURE    ; Pressure Loads", 5, "");
    EXPECT_EQ("line 27: the block is empty",
              ComplaintAbout(kShortestText + LoadsText("DeadLoad", "\n", "\n", edge) + LoadsText("LiveLoad") + "\n"));
}

TEST(LoadBlocks, BothCasesAreThereInTheirOrder)
{
    const std::string before = kShortestText;
    EXPECT_EQ("line 17: '*USE-STLD, LiveLoad' stands where '*USE-STLD, DeadLoad' should",
              ComplaintAbout(before + LoadsText("LiveLoad") + LoadsText("DeadLoad") + "\n"));
    EXPECT_EQ("line 24: '' stands where '*USE-STLD, LiveLoad' should",
              ComplaintAbout(before + LoadsText("DeadLoad") + "\n"));
    EXPECT_EQ("line 31: the text ends too early",
              ComplaintAbout(before + LoadsText("DeadLoad") + LoadsText("LiveLoad")));
    EXPECT_EQ("line 32: something stands behind the loads",
              ComplaintAbout(before + LoadsText("DeadLoad") + LoadsText("LiveLoad") + "\n\n"));
}

TEST(LoadBlocks, TheLineAtTheEndOfACaseNamesIt)
{
    std::string text = kShortestText + LoadsText("DeadLoad") + LoadsText("LiveLoad") + "\n";
    text.replace(text.find("[DeadLoad]"), 10, "[LiveLoad]");
    EXPECT_EQ(
        "line 22: '; End of data for load case [LiveLoad] -------------------------' stands where "
        "'; End of data for load case [DeadLoad] -------------------------' should",
        ComplaintAbout(text));
}

}  // namespace
}  // namespace satwecvt
