// Models that heap up what a building spreads. The time of the look is shown by counts: no more findings than members,
// and a story whose members are too close together to test every pair says so instead.

#include "check/LookText_test.h"
#include "check/TestBudget.h"
#include "check/TestModel_test.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>

namespace satwecvt {
namespace {

constexpr std::int32_t kBeams = 20000;

class CCounter : public CFindingListener {
public:
    void Tell(const CFinding& finding) override { ++counts[finding.code]; }

    std::map<EFinding, std::int64_t> counts;
};

std::map<EFinding, std::int64_t> CountsOf(CTestModel& model)
{
    CCounter counter;
    LookAtModel(model.Model(), counter);
    return counter.counts;
}

/// A story of beams whose ends `place` tells: `place(model, number, beam, end)` adds the node.
template <class AddNode>
std::map<EFinding, std::int64_t> CountsOfBeams(AddNode addNode)
{
    CTestModel model;
    model.Story(1);
    for (std::int32_t beam = 0; beam < kBeams; ++beam) {
        addNode(model, 2 * beam + 1, beam, 0);
        addNode(model, 2 * beam + 2, beam, 1);
        model.Beam(2 * beam + 1, 2 * beam + 2);
    }
    return CountsOf(model);
}

using Counts = std::map<EFinding, std::int64_t>;

TEST(LookHostile, BeamsThatAllCrossInOnePointAreToldOfTheFirst)
{
    const Counts counts = CountsOfBeams([](CTestModel& model, std::int32_t number, std::int32_t beam, int end) {
        const double angle = 3.14159 * beam / kBeams;
        const double radius = end == 0 ? 1000 : -1000;
        model.Node(number, radius * std::cos(angle), radius * std::sin(angle), 0);
    });
    // Their ends stand too close together to hold each against each beam.
    EXPECT_EQ(
        (Counts{{EFinding::BeamsCross, kBeams - 1}, {EFinding::NotSupported, kBeams}, {EFinding::LookIncomplete, 1}}),
        counts);
}

TEST(LookHostile, BeamsThatLieOnEachOtherAreToldOfTheFirst)
{
    const Counts counts = CountsOfBeams([](CTestModel& model, std::int32_t number, std::int32_t beam, int end) {
        model.Node(number, 1000.0 * end, 1e-9 * beam, 0);
    });
    EXPECT_EQ((Counts{{EFinding::NodesCoincide, 2 * kBeams - 2},
                      {EFinding::MembersOverlap, kBeams - 1},
                      {EFinding::NotSupported, kBeams},
                      {EFinding::LookIncomplete, 1}}),
              counts);
}

TEST(LookHostile, NodesAtOnePlaceAreToldOfTheFirst)
{
    const Counts counts =
        CountsOfBeams([](CTestModel& model, std::int32_t number, std::int32_t, int) { model.Node(number, 7, 7, 7); });
    EXPECT_EQ((Counts{{EFinding::NodesCoincide, 2 * kBeams - 1},
                      {EFinding::ZeroLength, kBeams},
                      {EFinding::NotSupported, kBeams}}),
              counts);
}

TEST(LookHostile, BeamsAHairApartAreMoreThanTheLookHasTestsFor)
{
    const Counts counts = CountsOfBeams([](CTestModel& model, std::int32_t number, std::int32_t beam, int end) {
        model.Node(number, 1000.0 * end, 1e-2 * beam, 0);
    });
    EXPECT_EQ((Counts{{EFinding::NotSupported, kBeams}, {EFinding::LookIncomplete, 1}}), counts);
}

TEST(LookHostile, BeamsThatReachIntoEachOtherOnOneLineAreMoreThanTheLookHasTestsFor)
{
    Counts counts = CountsOfBeams([](CTestModel& model, std::int32_t number, std::int32_t beam, int end) {
        model.Node(number, beam + 10000.0 * end, 0, 0);
    });
    EXPECT_EQ(1, counts[EFinding::LookIncomplete]);
    EXPECT_LE(counts[EFinding::MembersOverlap], kBeams);
    EXPECT_LE(counts[EFinding::NodeOnMember], kBeams);
}

TEST(LookHostile, OneFarNodeThatPutsAllOthersIntoOneCellLeavesTheLookIncomplete)
{
    Counts counts = CountsOfBeams([](CTestModel& model, std::int32_t number, std::int32_t beam, int end) {
        const double far = number == 1 ? 1e9 : 0.0;
        model.Node(number, 6.0 * (beam % 100) + 4.0 * end + far, 6.0 * (beam / 100), 0);
    });
    EXPECT_EQ(1, counts[EFinding::LookIncomplete]);
    EXPECT_LE(counts[EFinding::NodesCoincide], 2 * kBeams);
}

TEST(LookHostile, CoordinatesOutsideOfAllRangesEndTheLookAllTheSame)
{
    constexpr double kOdd[] = {1e300,  -1e300, std::numeric_limits<double>::infinity(),
                               5e-324, -0.0,   std::numeric_limits<double>::quiet_NaN(),
                               1e-300, 1.0};
    Counts counts = CountsOfBeams([&](CTestModel& model, std::int32_t number, std::int32_t beam, int end) {
        const auto choice = static_cast<std::size_t>(beam + 3 * end);
        model.Node(number, kOdd[choice % 8], kOdd[choice / 8 % 8], kOdd[choice / 64 % 8]);
    });
    EXPECT_EQ(kBeams, counts[EFinding::NotSupported]);
    for (const auto& [code, count] : counts) {
        EXPECT_LE(count, 2 * kBeams) << CodeName(code);
    }
}

TEST(LookHostile, ALongChainOfElementsHangsTogether)
{
    CTestModel chain;
    chain.Story(1);
    for (std::int32_t number = 1; number <= 3; ++number) {
        chain.Node(number * kBeams + 1, 0, 100.0 * number, 0);
    }
    for (std::int32_t beam = kBeams; beam > 0; --beam) {
        chain.Node(kBeams + 1 - beam, beam, 0, 0);
    }
    for (std::int32_t beam = 1; beam < kBeams; ++beam) {
        chain.Beam(kBeams - beam, kBeams - beam + 1);
    }
    chain.Brace(kBeams + 1, 2 * kBeams + 1);
    chain.Brace(2 * kBeams + 1, 3 * kBeams + 1);
    EXPECT_EQ((Counts{{EFinding::NotSupported, 2}}), CountsOf(chain));
}

/// Three supports, and `kBeams` nodes over them.
CTestModel Fan()
{
    CTestModel fan;
    fan.Support(1, 0, 0, 0).Support(2, 1000, 0, 0).Support(3, 0, 1000, 0).Story(1);
    for (std::int32_t node = 0; node < kBeams; ++node) {
        fan.Node(4 + node, 10.0 * (node % 100), 10.0 * (node / 100), 1000);
    }
    return fan;
}

TEST(LookHostile, TrianglesOnOneNodeAreNoDoubtAsLongAsTheyDiffer)
{
    CTestModel fan = Fan();
    for (std::int32_t node = 4; node < kBeams + 4; ++node) {
        fan.Plate({1, 2, node}).Plate({node, 3, 1});
    }
    EXPECT_EQ(Counts(), CountsOf(fan));
}

TEST(LookHostile, SlabsOnOneTriangleAreToldOfTheFirst)
{
    CTestModel heap = Fan();
    for (std::int32_t node = 4; node < kBeams + 4; ++node) {
        heap.Plate({1, 2, node, 3}).Plate({3, 1, node}).Plate({2, 3, 1});
    }
    EXPECT_EQ((Counts{{EFinding::SameNodes, kBeams - 1}}), CountsOf(heap));
}

TEST(LookHostile, SlabsOfOneTriangleOverAndOverAreEachToldOnce)
{
    CTestModel winding = Fan();
    winding.Plate({1, 2, 3});
    std::vector<std::int32_t> outline{1};
    for (std::int32_t turn = 0; turn < kBeams; ++turn) {
        outline.insert(outline.end(), {2, 3});
    }
    winding.Plate(outline).Plate(outline);
    EXPECT_EQ((Counts{{EFinding::NodeUnused, 1}, {EFinding::SameNodes, 2}}), CountsOf(winding));
}

TEST(LookHostile, WallsOnTheSameCornersAreEachToldOnce)
{
    CTestModel heap = Fan();
    heap.Support(kBeams + 4, 1000, 0, 500).Support(kBeams + 5, 0, 1000, 500);
    for (std::int32_t wall = 0; wall < kBeams; ++wall) {
        heap.Wall({kBeams + 4, kBeams + 5}, {2, 3});
    }
    EXPECT_EQ((Counts{{EFinding::NodeUnused, 2}, {EFinding::SameNodes, kBeams - 1}}), CountsOf(heap));
}

TEST(LookHostile, AStoryHasTestsInProportionToItsMembersAndSharesSome)
{
    const auto tests = [](std::int32_t members) {
        CTestModel model;
        model.Story(1).Beam(1, 2).Story(2);
        for (std::int32_t member = 0; member < members; ++member) {
            model.Beam(1, 2);
        }
        CTestBudget budget(model.Model());
        std::int64_t count = 0;
        while (budget.Spend(2)) {
            ++count;
        }
        EXPECT_FALSE(budget.Spend(2));
        EXPECT_TRUE(budget.Spend(1));  // its own
        budget.Renew();
        EXPECT_TRUE(budget.Spend(2));
        return count;
    };
    EXPECT_GT(tests(0), 0);
    EXPECT_EQ(10 * (tests(1) - tests(0)), tests(10) - tests(0));
}

}  // namespace
}  // namespace satwecvt
