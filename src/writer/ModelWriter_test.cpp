#include "writer/ModelWriter.h"

#include "file/MemoryFiles_test.h"
#include "finding/InvalidArgument.h"
#include "satwecvt/SilentInterface.h"

#include <gtest/gtest.h>

#include <vector>

namespace satwecvt {
namespace {

class CStageList : public CSilentProgress {
public:
    std::vector<std::string> stages;

    void SetStageText(std::string_view text) override { stages.emplace_back(text); }
};

class ModelWriter : public testing::Test {
protected:
    std::string Written()
    {
        CSilentInterface screen;
        CModelWriter writer(model, system, screen, &findings);
        writer.WriteModelFile({"tower.sat", "tower.load", "tower.vkm", "satwecvt.msg"}, progress);
        return system.files["tower.vkm"];
    }

    CSatweModel model;
    CMemoryFiles system;
    CStageList progress;
    CFindingList findings;
};

const std::string kFrame =
    "*VERSION\n"
    "  5.8.0\n"
    "\n"
    "*STLDCASE    ; Static Load Cases\n"
    "; LCNAME, LCTYPE, DESC\n"
    "  DeadLoad, D, \n"
    "  LiveLoad, L, \n"
    "\n";

TEST_F(ModelWriter, WithoutLoadsThereIsNoLoadCaseBlock)
{
    EXPECT_EQ(kFrame, Written());
    EXPECT_EQ("", system.files["satwecvt.msg"]);
    EXPECT_EQ(0, system.OpenCount());
}

TEST_F(ModelWriter, ALoadBringsTheBlocksOfBothLoadCases)
{
    model.loads.Add({1, 8, ELoadType::NodeForces, 1, {10, 0, 0, 0}, 1});
    EXPECT_EQ(kFrame +
                  "*USE-STLD, DeadLoad\n"
                  "\n"
                  "\n"
                  "\n"
                  "\n"
                  "; End of data for load case [DeadLoad] -------------------------\n"
                  "\n"
                  "*USE-STLD, LiveLoad\n"
                  "\n"
                  "*CONLOAD    ; Nodal Loads\n"
                  "; NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP\n"
                  "8, 0, 0, -10, 0, 0, 0\n"
                  "\n"
                  "\n"
                  "\n"
                  "; End of data for load case [LiveLoad] -------------------------\n"
                  "\n"
                  "\n",
              Written());
}

TEST_F(ModelWriter, TheStagesAreToldInTheirOrder)
{
    Written();
    EXPECT_EQ((std::vector<std::string>{
                  "Write Data File : Node",
                  "Write Data File : Element",
                  "Write Data File : Material",
                  "Write Data File : Section",
                  "Write Data File : Thickness",
                  "Write Data File : Support",
                  "Write Data File : Beam End Release",
                  "Write Data File : Beam End Offset",
                  "Write Data File : Load Case",
                  "Write File : Static Load",
              }),
              progress.stages);
}

TEST_F(ModelWriter, ContentThatFailsLeavesWhatWasWrittenBefore)
{
    model.nodeCount = 1;
    EXPECT_THROW(Written(), CInvalidArgument);
    EXPECT_EQ(
        "*VERSION\n"
        "  5.8.0\n"
        "\n"
        "*NODE    ; Nodes\n"
        "; iNO, X, Y, Z\n",
        system.files["tower.vkm"]);
    EXPECT_EQ(0, system.OpenCount());
}

}  // namespace
}  // namespace satwecvt
