// What is told of loads on beams.

#include "writer/BeamLoadBlock_test.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace satwecvt {
namespace {

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
