#include "writer/BeamLoadBlock.h"

#include "text/WrittenText_test.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace satwecvt {
namespace {

const std::string kHeader =
    "*BEAMLOAD    ; Element Beam Loads\n"
    "; ELEM_LIST, CMD, TYPE, DIR, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n"
    "; ELEM_LIST, CMD, TYPE, DIR, VX, VY, VZ, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n";

constexpr std::int32_t kDead = 0;
constexpr std::int32_t kLive = 1;

constexpr std::int32_t kBeam = 17;             // element 101, 5.0 long
constexpr std::int32_t kBeamWithOffsets = 18;  // element 102, the same with negative end nodes
constexpr std::int32_t kPointBeam = 19;        // element 103, of no length
constexpr std::int32_t kLostBeam = 20;         // an end node of it was never written

/// A model of story 2 with four beams.
class BeamLoadBlock : public testing::Test {
protected:
    BeamLoadBlock()
    {
        T_SATWE_STIF_D story;
        story.key = 2;
        story.storyNo = 20;
        story.beams.Insert(kBeam, Beam(101, 1, 2));
        story.beams.Insert(kBeamWithOffsets, Beam(102, -1, -2));
        story.beams.Insert(kPointBeam, Beam(103, 2, 2));
        story.beams.Insert(kLostBeam, Beam(104, 1, 99));
        model.stories.Insert(2, story);
        writtenNodes.Add(first);
        writtenNodes.Add(last);
        writtenNodes.Complete();
    }

    void AddLoad(std::int32_t member, ELoadType type, std::int32_t loadCase, const std::array<double, 4>& value)
    {
        model.loads.Add({2, member, type, loadCase, value, ++loadLine});
    }

    std::string Written(ELoadCase loadCase)
    {
        findings = {};
        return WrittenText([&](COutputFile& modelFile) {
            CLoadOutput output{modelFile, findings, model, writtenNodes, lostWalls, counts};
            WriteBeamLoads(output, loadCase);
        });
    }

    /// The line of a single dead load.
    std::string LineOf(ELoadType type, const std::array<double, 4>& value, std::int32_t member = kBeam)
    {
        model.loads = {};
        loadLine = 0;
        AddLoad(member, type, kDead, value);
        const std::string text = Written(ELoadCase::DeadLoad);
        EXPECT_EQ(kHeader, text.substr(0, kHeader.size()));
        EXPECT_EQ('\n', text.back());
        return text.substr(kHeader.size(), text.size() - kHeader.size() - 1);
    }

    /// One finding was told, about a dead load of story 2.
    void ExpectFinding(EFinding code, ESeverity severity, EObject object, double value = 0.0, std::int64_t line = 1)
    {
        ASSERT_EQ(1U, findings.Findings().size());
        const CFinding& finding = findings.Findings()[0];
        EXPECT_EQ(code, finding.code);
        EXPECT_EQ(severity, finding.severity);
        EXPECT_EQ(ESource::LoadFile, finding.place.source);
        EXPECT_EQ(line, finding.place.line);
        EXPECT_EQ(object, finding.object);
        EXPECT_EQ(2, finding.story);
        EXPECT_EQ(20, finding.storyNo);
        EXPECT_EQ(0, finding.loadCase);
        EXPECT_DOUBLE_EQ(value, finding.values[0]);
    }

    CSatweModel model;
    CWrittenNodes writtenNodes;
    CLostWalls lostWalls;
    CWrittenCounts counts;
    CFindingList findings;

private:
    static T_SATWE_STBM_D Beam(std::int32_t seq, std::int32_t nodeI, std::int32_t nodeJ)
    {
        T_SATWE_STBM_D beam;
        beam.seq = seq;
        beam.nodeI = nodeI;
        beam.nodeJ = nodeJ;
        return beam;
    }

    T_SATWE_STND_D first{1, 1, 1.0, 1.0, 3.0};
    T_SATWE_STND_D last{2, 2, 1.0, 6.0, 3.0};
    std::int32_t loadLine = 0;
};

TEST_F(BeamLoadBlock, WithoutLoadsItIsOneEmptyLine)
{
    EXPECT_EQ("\n", Written(ELoadCase::DeadLoad));
    EXPECT_EQ("\n", Written(ELoadCase::LiveLoad));
}

TEST_F(BeamLoadBlock, LiveLoadsStandUnderLiveLoadAlone)
{
    AddLoad(kBeam, ELoadType::BeamForce, kLive, {10, 2.5});
    EXPECT_EQ("\n", Written(ELoadCase::DeadLoad));
    EXPECT_EQ(kHeader + "101, BEAM, CONLOAD, GZ, NO, 0.5, -10, 0, 0, 0, 0, 0, 0\n\n", Written(ELoadCase::LiveLoad));
}

TEST_F(BeamLoadBlock, DeadLoadsStandUnderBothCases)
{
    AddLoad(kBeam, ELoadType::BeamForce, kDead, {10, 2.5});
    EXPECT_EQ(kHeader + "101, BEAM, CONLOAD, GZ, NO, 0.5, -10, 0, 0, 0, 0, 0, 0\n\n", Written(ELoadCase::DeadLoad));
    EXPECT_EQ(kHeader + "101, BEAM, CONLOAD, GZ, NO, 0.5, -10, 0, 0, 0, 0, 0, 0\n\n", Written(ELoadCase::LiveLoad));
}

TEST_F(BeamLoadBlock, AForceStandsAtAFractionOfTheLength)
{
    EXPECT_EQ("101, BEAM, CONLOAD, GZ, NO, 0.5, -10, 0, 0, 0, 0, 0, 0\n", LineOf(ELoadType::BeamForce, {10, 2.5}));
}

TEST_F(BeamLoadBlock, AFractionIsCappedAt1ButNotFloored)
{
    EXPECT_EQ("101, BEAM, CONLOAD, GZ, NO, 1, -10, 0, 0, 0, 0, 0, 0\n", LineOf(ELoadType::BeamForce, {10, 7}));
    EXPECT_EQ("101, BEAM, CONLOAD, GZ, NO, -0.2, -10, 0, 0, 0, 0, 0, 0\n", LineOf(ELoadType::BeamForce, {10, -1}));
}

TEST_F(BeamLoadBlock, ALinearLoadHasTwoIntensitiesAndTwoDistances)
{
    EXPECT_EQ("101, BEAM, UNILOAD, GZ, NO, 0.2, -10, 0.8, 20, 0, 0, 0, 0\n",
              LineOf(ELoadType::BeamLinear, {10, -20, 1, 4}));
}

TEST_F(BeamLoadBlock, ATriangleRisesAndFallsOverItsHalfLength)
{
    EXPECT_EQ("101, BEAM, UNILOAD, GZ, NO, 0.1, 0, 0.4, -10, 0.7, 0, 0, 0\n",
              LineOf(ELoadType::BeamTriangle, {10, 0.5, 1.5}));
}

TEST_F(BeamLoadBlock, ATrapezoidSlopesAtBothEnds)
{
    EXPECT_EQ("101, BEAM, UNILOAD, GZ, NO, 0, 0, 0.3, -10, 0.7, -10, 1, 0\n",
              LineOf(ELoadType::BeamTrapezoid, {10, 1.5}));
}

TEST_F(BeamLoadBlock, ATrapezoidWhoseSlopesMeetIsATriangle)
{
    for (const double length : {2.4975, 2.5, 2.6, 5.0, 7.0}) {
        EXPECT_EQ("101, BEAM, UNILOAD, GZ, NO, 0, 0, 0.5, -10, 1, 0, 0, 0\n",
                  LineOf(ELoadType::BeamTrapezoid, {10, length}))
            << length;
    }
    EXPECT_EQ("101, BEAM, UNILOAD, GZ, NO, 0, 0, 0.498, -10, 0.502, -10, 1, 0\n",
              LineOf(ELoadType::BeamTrapezoid, {10, 2.49}));
}

TEST_F(BeamLoadBlock, ATrapezoidOfNegativeSlopesEndsAt1)
{
    EXPECT_EQ("101, BEAM, UNILOAD, GZ, NO, 0, 0, -0.2, -10, 1, -10, 1, 0\n",
              LineOf(ELoadType::BeamTrapezoid, {10, -1}));
}

TEST_F(BeamLoadBlock, ATrapezoidOfNoHeightIsReported)
{
    for (const double height : {0.000001, -0.000001, 0.0, 0.0000099}) {
        EXPECT_EQ("", LineOf(ELoadType::BeamTrapezoid, {height, 1.5}));
        ExpectFinding(EFinding::ZeroLoad, ESeverity::Note, EObject::Beam);
    }
    EXPECT_EQ("101, BEAM, UNILOAD, GZ, NO, 0, 0, 0.3, -1e-05, 0.7, -1e-05, 1, 0\n",
              LineOf(ELoadType::BeamTrapezoid, {0.00001, 1.5}));
    EXPECT_TRUE(findings.Findings().empty());
}

TEST_F(BeamLoadBlock, OtherLoadsOfNothingAreWrittenAsTheyStand)
{
    EXPECT_EQ("101, BEAM, CONLOAD, GZ, NO, 0.5, -0, 0, 0, 0, 0, 0, 0\n", LineOf(ELoadType::BeamForce, {0, 2.5}));
    EXPECT_TRUE(findings.Findings().empty());
}

TEST_F(BeamLoadBlock, AnUnknownTypeBringsTheHeaderButNoLine)
{
    for (const std::int32_t type : {5, 0, 40, -1}) {
        EXPECT_EQ("", LineOf(static_cast<ELoadType>(type), {10, 2.5})) << type;
        ExpectFinding(EFinding::LoadType, ESeverity::Loss, EObject::Load, type);
    }
}

TEST_F(BeamLoadBlock, OtherLoadsAreOtherSectionsBusiness)
{
    for (const std::int32_t type : {11, 12, 21, 22, 31}) {
        AddLoad(kBeam, static_cast<ELoadType>(type), kDead, {10, 2.5});
    }
    EXPECT_EQ("\n", Written(ELoadCase::DeadLoad));
    ExpectFinding(EFinding::LoadType, ESeverity::Loss, EObject::Load, 31, 5);
}

TEST_F(BeamLoadBlock, TheSignsOfTheEndNodesAreDropped)
{
    EXPECT_EQ("102, BEAM, CONLOAD, GZ, NO, 0.5, -10, 0, 0, 0, 0, 0, 0\n",
              LineOf(ELoadType::BeamForce, {10, 2.5}, kBeamWithOffsets));
}

TEST_F(BeamLoadBlock, ABeamOfNoLengthFollowsIeeeArithmetic)
{
    EXPECT_EQ("103, BEAM, CONLOAD, GZ, NO, 1, -10, 0, 0, 0, 0, 0, 0\n",
              LineOf(ELoadType::BeamForce, {10, 2.5}, kPointBeam));
    EXPECT_EQ("103, BEAM, CONLOAD, GZ, NO, nan, -10, 0, 0, 0, 0, 0, 0\n",
              LineOf(ELoadType::BeamForce, {10, 0}, kPointBeam));
    EXPECT_EQ("103, BEAM, CONLOAD, GZ, NO, -inf, -10, 0, 0, 0, 0, 0, 0\n",
              LineOf(ELoadType::BeamForce, {10, -1}, kPointBeam));
}

TEST_F(BeamLoadBlock, ALoadOnAMissingBeamIsSkipped)
{
    for (const ELoadType type : {ELoadType::BeamForce, ELoadType::BeamTrapezoid}) {
        EXPECT_EQ("", LineOf(type, {0, 2.5}, kLostBeam));
        ExpectFinding(EFinding::LoadNodeMissing, ESeverity::Loss, EObject::Beam, 99);
        EXPECT_EQ(104, findings.Findings()[0].element);
        EXPECT_EQ("", LineOf(type, {0, 2.5}, 21));
        ExpectFinding(EFinding::LoadBeamMissing, ESeverity::Loss, EObject::Beam);
    }
    model.loads = {};
    model.loads.Add({1, kBeam, ELoadType::BeamForce, kDead, {10, 2.5}, 1});
    EXPECT_EQ(kHeader + "\n", Written(ELoadCase::DeadLoad));
    ASSERT_EQ(1U, findings.Findings().size());
    EXPECT_EQ(EFinding::LoadStoryMissing, findings.Findings()[0].code);
    EXPECT_EQ(1, findings.Findings()[0].story);
    EXPECT_EQ(std::nullopt, findings.Findings()[0].storyNo);
}

TEST_F(BeamLoadBlock, AForceBeyondTheEndIsToldWithItsPlace)
{
    EXPECT_NE("", LineOf(ELoadType::BeamForce, {10, 7}));
    ExpectFinding(EFinding::LoadMoved, ESeverity::Doubt, EObject::Beam, 7);
    EXPECT_EQ(5.0, findings.Findings()[0].values[1]);
    EXPECT_EQ(101, findings.Findings()[0].element);
    EXPECT_EQ(kBeam, findings.Findings()[0].key);
    EXPECT_NE("", LineOf(ELoadType::BeamForce, {10, 5.00001}));
    ExpectFinding(EFinding::LoadMoved, ESeverity::Doubt, EObject::Beam, 5.00001);
    EXPECT_NE("", LineOf(ELoadType::BeamForce, {10, 1}, kPointBeam));
    ExpectFinding(EFinding::LoadMoved, ESeverity::Doubt, EObject::Beam, 1);
    EXPECT_EQ(0.0, findings.Findings()[0].values[1]);
}

struct CPlacedLoad {
    ELoadType type;
    std::array<double, 4> value;
};

TEST_F(BeamLoadBlock, ALoadInFrontOfEndIOrOfItsOwnStartIsTold)
{
    constexpr CPlacedLoad kLoads[] = {
        {ELoadType::BeamForce, {10, -1}},           {ELoadType::BeamForce, {10, -0.00001}},
        {ELoadType::BeamLinear, {10, 10, -1, 4}},   {ELoadType::BeamLinear, {10, 10, 4, 1}},
        {ELoadType::BeamLinear, {0, 10, 1, -4}},    {ELoadType::BeamTriangle, {10, -1, 2}},
        {ELoadType::BeamTriangle, {10, 4, -1}},     {ELoadType::BeamTrapezoid, {10, -1}},
        {ELoadType::BeamTriangle, {10, 1, -1e300}}, {ELoadType::BeamTrapezoid, {10, -1e300}},
    };
    for (const CPlacedLoad& load : kLoads) {
        EXPECT_NE("", LineOf(load.type, load.value));
        ExpectFinding(EFinding::LoadBeforeStart, ESeverity::Doubt, EObject::Beam);
        EXPECT_EQ(101, findings.Findings()[0].element);
        EXPECT_EQ(kBeam, findings.Findings()[0].key);
    }
}

TEST_F(BeamLoadBlock, ALoadMayStartInFrontAndEndBeyond)
{
    EXPECT_NE("", LineOf(ELoadType::BeamLinear, {10, 10, -1, 7}));
    ASSERT_EQ(2U, findings.Findings().size());
    EXPECT_EQ(EFinding::LoadBeforeStart, findings.Findings()[0].code);
    EXPECT_EQ(EFinding::LoadCut, findings.Findings()[1].code);
    EXPECT_DOUBLE_EQ(20.0, findings.Findings()[1].values[0]);
}

TEST_F(BeamLoadBlock, ATrapezoidAsATriangleIsToldWithTheForceThatIsMissing)
{
    EXPECT_NE("", LineOf(ELoadType::BeamTrapezoid, {10, 2.5 - 1.0 / 1024}));
    ExpectFinding(EFinding::TrapezoidAsTriangle, ESeverity::Doubt, EObject::Beam, 10.0 / 1024);
    EXPECT_EQ(101, findings.Findings()[0].element);
    EXPECT_NE("", LineOf(ELoadType::BeamTrapezoid, {-10, 2.5 - 1.0 / 1024}));
    ExpectFinding(EFinding::TrapezoidAsTriangle, ESeverity::Doubt, EObject::Beam, -10.0 / 1024);
    for (const double beyond : {2.50001, 2.6, 5.0, 7.0}) {
        EXPECT_NE("", LineOf(ELoadType::BeamTrapezoid, {10, beyond}));
        ASSERT_EQ(1U, findings.Findings().size());
        EXPECT_EQ(EFinding::TrapezoidAsTriangle, findings.Findings()[0].code);
        EXPECT_TRUE(std::isnan(findings.Findings()[0].values[0]));
    }
}

TEST_F(BeamLoadBlock, OfAnUsualLoadNothingIsTold)
{
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    constexpr CPlacedLoad kLoads[] = {
        {ELoadType::BeamForce, {10, 0}},        {ELoadType::BeamForce, {10, -0.000004}},
        {ELoadType::BeamForce, {10, 5}},        {ELoadType::BeamForce, {10, 5.000004}},
        {ELoadType::BeamForce, {0, 9}},         {ELoadType::BeamForce, {0, -9}},
        {ELoadType::BeamForce, {10, kNan}},     {ELoadType::BeamLinear, {10, 10, 3, 3}},
        {ELoadType::BeamLinear, {0, 0, 4, -9}}, {ELoadType::BeamLinear, {10, 10, 3, 2.999996}},
        {ELoadType::BeamTriangle, {10, 4, 0}},  {ELoadType::BeamTriangle, {0, 4, -9}},
        {ELoadType::BeamTrapezoid, {10, 2.5}},  {ELoadType::BeamTrapezoid, {10, 2.500004}},
        {ELoadType::BeamTrapezoid, {10, 0}},    {ELoadType::BeamTrapezoid, {10, 2.499996}},
        {ELoadType::BeamTrapezoid, {10, 2.49}}, {ELoadType::BeamTrapezoid, {10, -0.000004}},
        {ELoadType::BeamTrapezoid, {10, kNan}},
    };
    for (const CPlacedLoad& load : kLoads) {
        EXPECT_NE("", LineOf(load.type, load.value));
        EXPECT_TRUE(findings.Findings().empty()) << load.value[0] << " " << load.value[1];
    }
}

struct CCut {
    ELoadType type;
    std::array<double, 4> value;
    double missing;
};

// The beam is 5.0 long.
TEST_F(BeamLoadBlock, ALoadBeyondTheEndIsToldWithTheForceThatIsMissing)
{
    constexpr CCut kCuts[] = {
        {ELoadType::BeamLinear, {10, 10, 1, 7}, 20},     // 60 along 6, 40 along the 4 that are left
        {ELoadType::BeamLinear, {10, 20, 0, 10}, 75},    // 150 along 10, 75 along 5
        {ELoadType::BeamLinear, {10, 10, 6, 8}, 20},     // beyond from its start on
        {ELoadType::BeamLinear, {-10, -10, 1, 7}, -20},  // an uplift is missing: force is added
        {ELoadType::BeamLinear, {10, -10, 1, 7}, 0},     // no resultant, but another shape
        {ELoadType::BeamTriangle, {10, 1, 3}, 10},       // 30 along 6, 20 along the 4 that are left
        {ELoadType::BeamTriangle, {10, 6, 1}, 10},       // beyond from its start on
    };
    for (const CCut& cut : kCuts) {
        EXPECT_NE("", LineOf(cut.type, cut.value));
        ExpectFinding(EFinding::LoadCut, ESeverity::Loss, EObject::Beam, cut.missing);
        EXPECT_EQ(101, findings.Findings()[0].element);
        EXPECT_EQ(kBeam, findings.Findings()[0].key);
    }
}

TEST_F(BeamLoadBlock, ALoadUpToTheEndIsNotCut)
{
    constexpr CCut kWhole[] = {
        {ELoadType::BeamLinear, {10, 10, 0, 5}, 0}, {ELoadType::BeamLinear, {10, 10, 0, 5.000004}, 0},
        {ELoadType::BeamTriangle, {10, 0, 2.5}, 0}, {ELoadType::BeamTriangle, {10, 1, 2.000001}, 0},
        {ELoadType::BeamLinear, {0, 0, 0, 9}, 0},   {ELoadType::BeamTriangle, {0, 0, 9}, 0},
    };
    for (const CCut& whole : kWhole) {
        EXPECT_NE("", LineOf(whole.type, whole.value));
        EXPECT_TRUE(findings.Findings().empty());
    }
}

TEST_F(BeamLoadBlock, ADeadLoadThatIsLeftOutIsToldUnderBothCases)
{
    AddLoad(21, ELoadType::BeamForce, kDead, {10, 2.5});
    AddLoad(21, ELoadType::BeamForce, kLive, {10, 2.5});
    Written(ELoadCase::DeadLoad);
    ASSERT_EQ(1U, findings.Findings().size());
    EXPECT_EQ(0, findings.Findings()[0].loadCase);
    Written(ELoadCase::LiveLoad);
    ASSERT_EQ(2U, findings.Findings().size());
    EXPECT_EQ(0, findings.Findings()[0].loadCase);
    EXPECT_EQ(1, findings.Findings()[1].loadCase);
    EXPECT_EQ(2, findings.Findings()[1].place.line);
}

}  // namespace
}  // namespace satwecvt
