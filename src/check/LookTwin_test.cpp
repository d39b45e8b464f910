// The look against a twin that holds every pair of things against each other, in whole numbers.

#include "check/LatticeLine_test.h"
#include "check/LookText_test.h"
#include "check/ModelLook.h"
#include "check/TwinBuilding_test.h"
#include "check/TwinPanel_test.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <vector>

namespace satwecvt {
namespace {

// Code, element or node, and the value of a finding.
using CExpected = std::multiset<std::tuple<EFinding, std::int32_t, double>>;

CLatticeLine LineOf(const CTwinBuilding& twin, const CTwinFrame& frame)
{
    return {twin.NodeOf(frame.i).place, twin.NodeOf(frame.j).place - twin.NodeOf(frame.i).place};
}

bool HaveSameNodes(const CTwinFrame& a, const CTwinFrame& b)
{
    return a.kind == b.kind && std::minmax(a.i, a.j) == std::minmax(b.i, b.j);
}

bool HaveCommonNode(const CTwinFrame& a, const CTwinFrame& b)
{
    return a.i == b.i || a.i == b.j || a.j == b.i || a.j == b.j;
}

void ExpectOfNodes(const CTwinBuilding& twin, CExpected& expected)
{
    std::map<std::int32_t, int> unused;
    for (const CTwinNode& node : twin.nodes) {
        if (!node.isUsed) {
            ++unused[node.story];
            continue;
        }
        std::optional<std::int32_t> lowest;
        for (const CTwinNode& other : twin.nodes) {
            if (other.isUsed && other.place == node.place && other.number < node.number) {
                lowest = std::min(lowest.value_or(other.number), other.number);
            }
        }
        if (lowest) {
            expected.insert({EFinding::NodesCoincide, node.number, *lowest});
        }
    }
    for (const auto& [story, count] : unused) {
        expected.insert({EFinding::NodeUnused, story, count});
    }
}

void ExpectOfFrames(const CTwinBuilding& twin, CExpected& expected)
{
    for (const CTwinFrame& frame : twin.frames) {
        if (LineOf(twin, frame).along == kOrigin) {
            expected.insert({EFinding::ZeroLength, frame.element, 0});
        }
        std::optional<std::int32_t> lowest;
        for (const CTwinNode& node : twin.nodes) {
            const bool isAskedAbout = node.isUsed && (node.story == 0 || node.story == frame.story);
            if (frame.kind == EObject::Beam && isAskedAbout && HasInside(LineOf(twin, frame), node.place)) {
                lowest = std::min(lowest.value_or(node.number), node.number);
            }
        }
        if (lowest) {
            expected.insert({EFinding::NodeOnMember, frame.element, *lowest});
        }
    }
}

void ExpectOfPairs(const CTwinBuilding& twin, CExpected& expected)
{
    for (const CTwinFrame& later : twin.frames) {
        std::set<EFinding> told;
        for (const CTwinFrame& earlier : twin.frames) {
            if (earlier.element >= later.element) {
                break;
            }
            const auto tell = [&](EFinding code) {
                if (told.insert(code).second) {
                    expected.insert({code, later.element, earlier.element});
                }
            };
            if (HaveSameNodes(earlier, later)) {
                tell(EFinding::SameNodes);
            } else if (Overlap(LineOf(twin, earlier), LineOf(twin, later))) {
                tell(EFinding::MembersOverlap);
            }
            if (earlier.kind == EObject::Beam && later.kind == EObject::Beam && earlier.story == later.story &&
                !HaveCommonNode(earlier, later) && CrossInside(LineOf(twin, earlier), LineOf(twin, later))) {
                tell(EFinding::BeamsCross);
            }
        }
    }
}

/// The numbers of a wall's four nodes; of a slab's, each once.
std::vector<std::int32_t> NumbersOf(const CTwinPanel& panel)
{
    std::vector<std::int32_t> numbers;
    for (const CTwinFace& face : FacesOf(panel)) {
        numbers.insert(numbers.end(), face.numbers.begin(), face.numbers.end());
    }
    std::sort(numbers.begin(), numbers.end());
    if (panel.kind == EObject::Plate) {
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    }
    return numbers;
}

/// The earliest panel whose elements have the nodes of another one's.
const CTwinPanel* EarliestLike(const CTwinBuilding& twin, const CTwinPanel& later)
{
    const CTwinPanel* earliest = nullptr;
    for (const CTwinPanel& earlier : twin.panels) {
        const bool isEarliest = earliest == nullptr || earlier.element < earliest->element;
        if (earlier.element < later.element && earlier.kind == later.kind && isEarliest &&
            NumbersOf(earlier) == NumbersOf(later)) {
            earliest = &earlier;
        }
    }
    return earliest;
}

/// No triangle that is written has two corners at one place here; a wall can.
void ExpectOfFlatWalls(const CTwinBuilding& twin, CExpected& expected)
{
    for (const CTwinPanel& panel : twin.panels) {
        const auto& corners = panel.corners;
        for (std::size_t corner = 0; panel.kind == EObject::Wall && corner < 4; ++corner) {
            if (!FacesOf(panel).empty() && corners[corner].place == corners[(corner + 1) % 4].place) {
                expected.insert({EFinding::ZeroLength, panel.element, 0});
                break;
            }
        }
    }
}

void ExpectOfPanels(const CTwinBuilding& twin, CExpected& expected)
{
    for (const CTwinPanel& later : twin.panels) {
        const std::vector<CTwinFace> faces = FacesOf(later);
        const CTwinPanel* const earliest = EarliestLike(twin, later);
        if (faces.empty() || earliest == nullptr) {
            continue;
        }
        const CTwinFace first = FacesOf(*earliest).front();
        const auto own = std::find_if(faces.begin(), faces.end(),
                                      [&](const CTwinFace& face) { return face.numbers == first.numbers; });
        expected.insert(
            {EFinding::SameNodes, own != faces.end() ? own->element : faces.front().element, first.element});
    }
}

/// All elements that are written, with their nodes.
std::vector<CTwinFace> Elements(const CTwinBuilding& twin)
{
    std::vector<CTwinFace> elements;
    for (const CTwinFrame& frame : twin.frames) {
        elements.push_back({frame.element, {frame.i, frame.j}});
    }
    for (const CTwinPanel& panel : twin.panels) {
        for (const CTwinFace& face : FacesOf(panel)) {
            elements.push_back(face);
        }
    }
    return elements;
}

void ExpectOfParts(const CTwinBuilding& twin, CExpected& expected)
{
    std::set<std::int32_t> told;
    for (const CTwinFace& first : Elements(twin)) {
        if (told.count(first.element) != 0) {
            continue;
        }
        std::set<std::int32_t> part{first.element};
        std::set<std::int32_t> reached(first.numbers.begin(), first.numbers.end());
        for (std::size_t before = 0; before != part.size() + reached.size();) {
            before = part.size() + reached.size();
            for (const auto& [element, numbers] : Elements(twin)) {
                const auto isReached = [&](std::int32_t number) { return reached.count(number) != 0; };
                if (std::any_of(numbers.begin(), numbers.end(), isReached)) {
                    part.insert(element);
                    reached.insert(numbers.begin(), numbers.end());
                }
            }
        }
        told.insert(part.begin(), part.end());
        const bool isSupported = std::any_of(reached.begin(), reached.end(),
                                             [&](std::int32_t number) { return twin.NodeOf(number).story == 0; });
        if (!isSupported) {
            expected.insert({EFinding::NotSupported, first.element, static_cast<double>(part.size())});
        }
    }
}

CExpected Expected(const CTwinBuilding& twin)
{
    CExpected expected;
    ExpectOfNodes(twin, expected);
    ExpectOfFrames(twin, expected);
    ExpectOfPairs(twin, expected);
    ExpectOfFlatWalls(twin, expected);
    ExpectOfPanels(twin, expected);
    ExpectOfParts(twin, expected);
    return expected;
}

TEST(LookTwin, BothTellTheSameOfThousandsOfRandomBuildings)
{
    std::map<EFinding, int> told;
    std::map<EObject, int> sameNodes;
    for (std::uint32_t seed = 1; seed <= 6000; ++seed) {
        CTwinBuilding twin(seed);
        const CSatweModel model = twin.Model();
        CFindingList list;
        LookAtModel(model, list);
        CExpected found;
        for (const CFinding& finding : list.Findings()) {
            const bool isUnused = finding.code == EFinding::NodeUnused;
            const std::int32_t object = isUnused          ? finding.story.value_or(0)
                                        : finding.element ? *finding.element
                                                          : finding.key.value_or(0);
            found.insert({finding.code, object, finding.values[0]});
            ++told[finding.code];
            sameNodes[finding.object] += finding.code == EFinding::SameNodes ? 1 : 0;
        }
        ASSERT_EQ(Expected(twin), found) << "seed " << seed;
    }
    for (const EFinding code :
         {EFinding::NodeUnused, EFinding::ZeroLength, EFinding::SameNodes, EFinding::NodesCoincide,
          EFinding::NodeOnMember, EFinding::BeamsCross, EFinding::MembersOverlap, EFinding::NotSupported}) {
        EXPECT_GT(told[code], 300) << CodeName(code);
    }
    EXPECT_GT(sameNodes[EObject::Wall], 300);
    EXPECT_GT(sameNodes[EObject::Plate], 300);
}

}  // namespace
}  // namespace satwecvt
