#include "writer/NodalLoadBlock.h"

#include "finding/InvalidArgument.h"
#include "text/WrittenText_test.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

const std::string kHeader =
    "*CONLOAD    ; Nodal Loads\n"
    "; NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP\n";

constexpr std::int32_t kDead = 0;
constexpr std::int32_t kLive = 1;

/// A model of story 1 with wall 3, whose first row runs from node 11 to node 12, 4.0 apart.
class NodalLoadBlock : public testing::Test {
protected:
    NodalLoadBlock()
    {
        SetWall({5, 2, {}, {11, 12}, {21, 22}, 40});
        writtenNodes.Add(first);
        writtenNodes.Add(last);
        writtenNodes.Complete();
    }

    void SetWall(const T_SATWE_STWL_D& wall)
    {
        T_SATWE_STIF_D story;
        story.key = 1;
        story.storyNo = 10;
        story.walls.Insert(3, wall);
        model.stories = {};
        model.stories.Insert(1, story);
    }

    void AddLoad(std::int32_t member, ELoadType type, std::int32_t loadCase, const std::array<double, 4>& value)
    {
        model.loads.Add({1, member, type, loadCase, value, ++loadLine});
    }

    void ExpectFailure(std::int64_t line, const std::string& what)
    {
        try {
            Written(ELoadCase::DeadLoad);
            ADD_FAILURE() << "no failure";
        } catch (const CInvalidArgument& failure) {
            EXPECT_EQ(ESource::LoadFile, failure.Place().source);
            EXPECT_EQ(line, failure.Place().line);
            EXPECT_EQ(what, failure.what());
        }
    }

    std::string Written(ELoadCase loadCase)
    {
        CWrittenCounts counts;
        CLostWalls lostWalls;
        findings = {};
        return WrittenText([&](COutputFile& file) {
            CLoadOutput output{file, findings, model, writtenNodes, lostWalls, counts};
            WriteNodalLoads(output, loadCase);
        });
    }

    CSatweModel model;
    CWrittenNodes writtenNodes;
    CFindingList findings;

private:
    T_SATWE_STND_D first{11, 1, 1.0, 0.0, 3.0};
    T_SATWE_STND_D last{12, 2, 5.0, 0.0, 3.0};
    std::int32_t loadLine = 0;
};

TEST_F(NodalLoadBlock, WithoutLoadsItIsOneEmptyLine)
{
    EXPECT_EQ("\n", Written(ELoadCase::DeadLoad));
    EXPECT_EQ("\n", Written(ELoadCase::LiveLoad));
}

TEST_F(NodalLoadBlock, LiveLoadsStandUnderLiveLoadAlone)
{
    AddLoad(8, ELoadType::NodeForces, kLive, {10});
    EXPECT_EQ("\n", Written(ELoadCase::DeadLoad));
    EXPECT_EQ(kHeader + "8, 0, 0, -10, 0, 0, 0\n\n", Written(ELoadCase::LiveLoad));
}

TEST_F(NodalLoadBlock, DeadLoadsStandUnderBothCases)
{
    AddLoad(8, ELoadType::NodeForces, kDead, {10});
    EXPECT_EQ(kHeader + "8, 0, 0, -10, 0, 0, 0\n\n", Written(ELoadCase::DeadLoad));
    EXPECT_EQ(kHeader + "8, 0, 0, -10, 0, 0, 0\n\n", Written(ELoadCase::LiveLoad));
}

TEST_F(NodalLoadBlock, AnyCaseButTheDeadOneIsLive)
{
    AddLoad(8, ELoadType::NodeForces, -1, {10});
    AddLoad(9, ELoadType::NodeForces, 7, {20});
    EXPECT_EQ("\n", Written(ELoadCase::DeadLoad));
    EXPECT_EQ(kHeader + "8, 0, 0, -10, 0, 0, 0\n9, 0, 0, -20, 0, 0, 0\n\n", Written(ELoadCase::LiveLoad));
}

TEST_F(NodalLoadBlock, MomentsKeepTheirSigns)
{
    AddLoad(8, ELoadType::NodeForceMoments, kDead, {10, 2.5, -3.5, 99});
    EXPECT_EQ(kHeader + "8, 0, 0, -10, 2.5, -3.5, 0\n\n", Written(ELoadCase::DeadLoad));
}

TEST_F(NodalLoadBlock, HorizontalForcesKeepTheirSigns)
{
    AddLoad(8, ELoadType::NodeForces, kDead, {-10, 2.5, -3.5, 99});
    EXPECT_EQ(kHeader + "8, 2.5, -3.5, 10, 0, 0, 0\n\n", Written(ELoadCase::DeadLoad));
}

TEST_F(NodalLoadBlock, AForceOfNothingIsANegated0)
{
    AddLoad(8, ELoadType::NodeForces, kDead, {0});
    EXPECT_EQ(kHeader + "8, 0, 0, -0, 0, 0, 0\n\n", Written(ELoadCase::DeadLoad));
}

TEST_F(NodalLoadBlock, AWallForceIsSplitOntoTheEndsOfTheFirstRow)
{
    AddLoad(3, ELoadType::WallForce, kDead, {12, 1.0});
    EXPECT_EQ(kHeader +
                  "11, 0, 0, -9, 0, 0, 0\n"
                  "12, 0, 0, -3, 0, 0, 0\n"
                  "\n",
              Written(ELoadCase::DeadLoad));
}

TEST_F(NodalLoadBlock, AWallForceMayLieOutsideTheWall)
{
    AddLoad(3, ELoadType::WallForce, kDead, {4, 5.0});
    EXPECT_EQ(kHeader +
                  "11, 0, 0, 1, 0, 0, 0\n"
                  "12, 0, 0, -5, 0, 0, 0\n"
                  "\n",
              Written(ELoadCase::DeadLoad));
}

TEST_F(NodalLoadBlock, AForceBesideItsWallIsADoubt)
{
    AddLoad(3, ELoadType::WallForce, kDead, {4, 5.0});
    Written(ELoadCase::DeadLoad);
    ASSERT_EQ(1U, findings.Findings().size());
    const CFinding& beyond = findings.Findings()[0];
    EXPECT_EQ(EFinding::LoadBeyondEnd, beyond.code);
    EXPECT_EQ(ESeverity::Doubt, beyond.severity);
    EXPECT_EQ(EObject::Wall, beyond.object);
    EXPECT_EQ(1, beyond.place.line);
    EXPECT_EQ(5, beyond.element);
    EXPECT_EQ(5.0, beyond.values[0]);
    EXPECT_EQ(4.0, beyond.values[1]);

    model.loads = {};
    AddLoad(3, ELoadType::WallForce, kDead, {4, -0.00001});
    Written(ELoadCase::DeadLoad);
    ASSERT_EQ(1U, findings.Findings().size());
    EXPECT_EQ(EFinding::LoadBeforeStart, findings.Findings()[0].code);
    EXPECT_EQ(EObject::Wall, findings.Findings()[0].object);

    model.loads = {};
    for (const double inside : {0.0, -0.000003, 2.0, 4.0, 4.000003}) {
        AddLoad(3, ELoadType::WallForce, kDead, {4, inside});
    }
    AddLoad(3, ELoadType::WallForce, kDead, {0, 9});  // of nothing
    Written(ELoadCase::DeadLoad);
    EXPECT_TRUE(findings.Findings().empty());
}

TEST_F(NodalLoadBlock, AForceOnAMissingWallIsTheInvalidArgumentFailure)
{
    AddLoad(4, ELoadType::WallForce, kDead, {12, 1.0});
    ExpectFailure(1, "a force on wall 4 of story 1, which does not exist");
    model.loads = {};
    model.loads.Add({2, 3, ELoadType::WallForce, kDead, {12, 1.0}, 77});
    ExpectFailure(77, "a force on wall 3 of story 2, which does not exist");
}

TEST_F(NodalLoadBlock, AForceOnAWallWithoutNodesIsTheInvalidArgumentFailure)
{
    SetWall({5, 0, {}, {}, {}, 40});
    AddLoad(3, ELoadType::WallForce, kDead, {12, 1.0});
    ExpectFailure(1, "a force on wall 3 of story 1, which has no nodes");
}

TEST_F(NodalLoadBlock, AForceOnAWallWhoseNodesWereNotWrittenIsSkipped)
{
    SetWall({5, 2, {}, {11, 13}, {21, 22}, 40});
    AddLoad(3, ELoadType::WallForce, kDead, {12, 1.0});
    EXPECT_EQ(kHeader + "\n", Written(ELoadCase::DeadLoad));
    ASSERT_EQ(1U, findings.Findings().size());
    const CFinding& finding = findings.Findings()[0];
    EXPECT_EQ(EFinding::LoadNodeMissing, finding.code);
    EXPECT_EQ(ESeverity::Loss, finding.severity);
    EXPECT_EQ(ESource::LoadFile, finding.place.source);
    EXPECT_EQ(1, finding.place.line);
    EXPECT_EQ(EObject::Wall, finding.object);
    EXPECT_EQ(1, finding.story);
    EXPECT_EQ(10, finding.storyNo);
    EXPECT_EQ(3, finding.key);
    EXPECT_EQ(0, finding.loadCase);
    EXPECT_EQ(13, finding.values[0]);
}

TEST_F(NodalLoadBlock, ALoadOnANodeThatWasNotWrittenIsADoubt)
{
    for (const ELoadType type : {ELoadType::NodeForceMoments, ELoadType::NodeForces}) {
        model.loads = {};
        model.loads.Add({1, 99, type, kLive, {10}, 7});
        EXPECT_NE("\n", Written(ELoadCase::LiveLoad));
        ASSERT_EQ(1U, findings.Findings().size());
        const CFinding& finding = findings.Findings()[0];
        EXPECT_EQ(EFinding::LoadNodeMissing, finding.code);
        EXPECT_EQ(ESeverity::Doubt, finding.severity);
        EXPECT_EQ(ESource::LoadFile, finding.place.source);
        EXPECT_EQ(7, finding.place.line);
        EXPECT_EQ(EObject::Node, finding.object);
        EXPECT_EQ(1, finding.story);
        EXPECT_EQ(10, finding.storyNo);
        EXPECT_EQ(99, finding.key);
        EXPECT_EQ(std::nullopt, finding.element);
        EXPECT_EQ(1, finding.loadCase);
        EXPECT_EQ(99, finding.values[0]);
    }
}

TEST_F(NodalLoadBlock, ALoadOnAWrittenNodeIsNoDoubt)
{
    AddLoad(11, ELoadType::NodeForceMoments, kDead, {10});
    AddLoad(12, ELoadType::NodeForces, kDead, {10});
    AddLoad(3, ELoadType::WallForce, kDead, {4, 2.0});
    Written(ELoadCase::DeadLoad);
    EXPECT_TRUE(findings.Findings().empty());
}

TEST_F(NodalLoadBlock, OtherLoadsAreOtherSectionsBusiness)
{
    for (const std::int32_t type : {0, 1, 2, 3, 4, 5, 10, 13, 22, 31, -11}) {
        AddLoad(3, static_cast<ELoadType>(type), kDead, {12, 1.0});
    }
    EXPECT_EQ("\n", Written(ELoadCase::DeadLoad));
    EXPECT_EQ("\n", Written(ELoadCase::LiveLoad));
}

TEST_F(NodalLoadBlock, LoadsStandInTheOrderOfTheLoadFile)
{
    AddLoad(9, ELoadType::NodeForces, kDead, {1});
    AddLoad(3, ELoadType::BeamForce, kDead, {1});
    AddLoad(8, ELoadType::NodeForceMoments, kDead, {2});
    EXPECT_EQ(kHeader +
                  "9, 0, 0, -1, 0, 0, 0\n"
                  "8, 0, 0, -2, 0, 0, 0\n"
                  "\n",
              Written(ELoadCase::DeadLoad));
}

}  // namespace
}  // namespace satwecvt
