#include "writer/BeamLoadBlock_test.h"

#include <gtest/gtest.h>

#include <limits>

namespace satwecvt {
namespace {

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

}  // namespace
}  // namespace satwecvt
