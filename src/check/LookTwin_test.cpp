// The look against a twin that holds every pair of things against each other, in whole numbers.

#include "check/LatticeLine_test.h"
#include "check/LookText_test.h"
#include "check/ModelLook.h"
#include "check/TwinPanel_test.h"
#include "model/SatweModel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <random>
#include <set>

namespace satwecvt {
namespace {

struct CTwinNode {
    std::int32_t number;
    std::int32_t story;  // 0: the model level
    CPoint place;
    bool isUsed = false;
};

struct CTwinFrame {
    EObject kind;
    std::int32_t story;
    std::int32_t element;
    std::int32_t i;
    std::int32_t j;
};

/// A building on a small lattice, where chance puts nodes and members on each other.
class CTwin {
public:
    explicit CTwin(std::uint32_t seed) : random(seed)
    {
        std::vector<std::int32_t> numbers(20);
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            numbers[i] = static_cast<std::int32_t>(3 * i + 1);
        }
        std::shuffle(numbers.begin(), numbers.end(), random);
        const int nodeCount = Below(17) + 4;
        for (int i = 0; i < nodeCount; ++i) {
            const CPoint place{Below(4), Below(3), Below(3)};
            nodes.push_back({numbers[static_cast<std::size_t>(i)], Below(3), place});
        }
        const int frameCount = Below(24) + 1;
        for (std::int32_t element = 1; element <= frameCount; ++element) {
            constexpr EObject kKinds[] = {EObject::Beam, EObject::Beam, EObject::Column, EObject::Brace};
            frames.push_back({kKinds[Below(4)], 1 + element * 2 / (frameCount + 1), element, AnyNode(), AnyNode()});
            NodeOf(frames.back().i).isUsed = true;
            NodeOf(frames.back().j).isUsed = true;
        }
        std::int32_t element = frameCount + 1;
        for (int i = Below(8); i > 0; --i) {
            AddPanel(element);
        }
    }

    CSatweModel Model()
    {
        CSatweModel model;
        std::vector<T_SATWE_STIF_D> stories(3);
        std::vector<std::int32_t> keys(100);
        for (std::size_t i = 0; i < keys.size(); ++i) {
            keys[i] = static_cast<std::int32_t>(i);
        }
        std::shuffle(keys.begin(), keys.end(), random);
        for (const CTwinNode& node : nodes) {
            auto& table = node.story == 0 ? model.nodes : stories[static_cast<std::size_t>(node.story)].nodes;
            const auto& [x, y, z] = node.place;
            table.Insert(keys.back(), {node.number, 0, 10.0 + 0.1 * static_cast<double>(x),
                                       0.1 * static_cast<double>(y), -0.1 * static_cast<double>(z)});
            keys.pop_back();
        }
        model.inputSections.Insert(1, {ESectionKind::Rectangle, kConcreteMark});
        for (const CTwinFrame& frame : frames) {
            Insert(stories[static_cast<std::size_t>(frame.story)], frame, keys.back());
            keys.pop_back();
        }
        for (const CTwinPanel& panel : panels) {
            Insert(stories[static_cast<std::size_t>(panel.story)], panel, keys.back());
            keys.pop_back();
        }
        model.nodes.SortByKey();
        for (std::int32_t key = 1; key <= 2; ++key) {
            T_SATWE_STIF_D& story = stories[static_cast<std::size_t>(key)];
            story.key = key;
            story.nodes.SortByKey();
            story.beams.SortByKey();
            story.columns.SortByKey();
            story.braces.SortByKey();
            story.walls.SortByKey();
            story.plates.SortByKey();
            model.stories.Insert(key, std::move(story));
        }
        return model;
    }

    /// What the look should find: code, element or node, and the value.
    using CExpected = std::multiset<std::tuple<EFinding, std::int32_t, double>>;

    CExpected Expected()
    {
        CExpected expected;
        ExpectOfNodes(expected);
        ExpectOfFrames(expected);
        ExpectOfPairs(expected);
        ExpectOfPanels(expected);
        ExpectOfParts(expected);
        return expected;
    }

private:
    static void Insert(T_SATWE_STIF_D& story, const CTwinFrame& frame, std::int32_t key)
    {
        switch (frame.kind) {
        case EObject::Beam:
            story.beams.Insert(key, {frame.element, frame.i, frame.j, 1, 0, 0, 0});
            break;
        case EObject::Column:
            story.columns.Insert(key, {frame.element, frame.i, frame.j, 1, 0, 0, 0, 0, 0});
            break;
        default:
            story.braces.Insert(key, {frame.element, frame.i, frame.j, 1, 0, 0, 0});
            break;
        }
    }

    static void Insert(T_SATWE_STIF_D& story, const CTwinPanel& panel, std::int32_t key)
    {
        const auto& corners = panel.corners;
        if (panel.kind == EObject::Wall) {
            const CNodeRow upper{corners[0].number, corners[1].number};
            const CNodeRow lower{corners[3].number, corners[2].number};
            story.walls.Insert(key, {panel.element, 2, {0, 200, 0, 0, 0, 0}, upper, lower, 0});
            return;
        }
        const auto first = static_cast<std::uint32_t>(story.plateVertices.size());
        const auto count = static_cast<std::int32_t>(corners.size());
        for (const CTwinCorner& corner : corners) {
            story.plateVertices.push_back(corner.number);
        }
        story.plates.Insert(key, {panel.element, count, 100, first, count, 0});
    }

    /// A wall or a slab on nodes that are there, often those of the panel before in another order.
    void AddPanel(std::int32_t& element)
    {
        CTwinPanel panel{Below(2) == 0 ? EObject::Wall : EObject::Plate, 1 + Below(2), element, {}};
        for (int count = panel.kind == EObject::Wall ? 4 : 3 + Below(3); count > 0; --count) {
            const CTwinNode& node = nodes[random() % nodes.size()];
            panel.corners.push_back({node.number, node.place});
        }
        if (panel.kind == EObject::Wall) {
            panel.corners[2] = CornerBelow(panel.corners[1]);
            panel.corners[3] = CornerBelow(panel.corners[0]);
        }
        if (!panels.empty() && panels.back().kind == panel.kind && Below(2) == 0) {
            panel.corners = panels.back().corners;
            std::swap(panel.corners[0], panel.corners[random() % panel.corners.size()]);
        }
        if (!IsClearCut(panel)) {
            return;
        }
        element += panel.kind == EObject::Wall ? 1 : static_cast<std::int32_t>(panel.corners.size()) - 2;
        for (const CTwinFace& face : FacesOf(panel)) {
            for (const std::int32_t number : face.numbers) {
                NodeOf(number).isUsed = true;
            }
        }
        panels.push_back(std::move(panel));
    }

    /// Any node with the place in the plan, mostly.
    CTwinCorner CornerBelow(const CTwinCorner& corner)
    {
        for (int tries = 0; tries < 20; ++tries) {
            const CTwinNode& node = nodes[random() % nodes.size()];
            if (node.place.x == corner.place.x && node.place.y == corner.place.y) {
                return {node.number, node.place};
            }
        }
        return {nodes[0].number, nodes[0].place};
    }

    int Below(int count) { return static_cast<int>(random() % static_cast<std::uint32_t>(count)); }

    std::int32_t AnyNode() { return nodes[random() % nodes.size()].number; }

    CTwinNode& NodeOf(std::int32_t number)
    {
        return *std::find_if(nodes.begin(), nodes.end(), [&](const CTwinNode& node) { return node.number == number; });
    }

    CLatticeLine LineOf(const CTwinFrame& frame)
    {
        return {NodeOf(frame.i).place, NodeOf(frame.j).place - NodeOf(frame.i).place};
    }

    static bool HaveSameNodes(const CTwinFrame& a, const CTwinFrame& b)
    {
        return a.kind == b.kind && std::minmax(a.i, a.j) == std::minmax(b.i, b.j);
    }

    static bool HaveCommonNode(const CTwinFrame& a, const CTwinFrame& b)
    {
        return a.i == b.i || a.i == b.j || a.j == b.i || a.j == b.j;
    }

    void ExpectOfNodes(CExpected& expected)
    {
        std::map<std::int32_t, int> unused;
        for (const CTwinNode& node : nodes) {
            if (!node.isUsed) {
                ++unused[node.story];
                continue;
            }
            std::optional<std::int32_t> lowest;
            for (const CTwinNode& other : nodes) {
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

    void ExpectOfFrames(CExpected& expected)
    {
        for (const CTwinFrame& frame : frames) {
            if (LineOf(frame).along == kOrigin) {
                expected.insert({EFinding::ZeroLength, frame.element, 0});
            }
            std::optional<std::int32_t> lowest;
            for (const CTwinNode& node : nodes) {
                const bool isAskedAbout = node.isUsed && (node.story == 0 || node.story == frame.story);
                if (frame.kind == EObject::Beam && isAskedAbout && HasInside(LineOf(frame), node.place)) {
                    lowest = std::min(lowest.value_or(node.number), node.number);
                }
            }
            if (lowest) {
                expected.insert({EFinding::NodeOnMember, frame.element, *lowest});
            }
        }
    }

    void ExpectOfPairs(CExpected& expected)
    {
        for (const CTwinFrame& later : frames) {
            std::set<EFinding> told;
            for (const CTwinFrame& earlier : frames) {
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
                } else if (Overlap(LineOf(earlier), LineOf(later))) {
                    tell(EFinding::MembersOverlap);
                }
                if (earlier.kind == EObject::Beam && later.kind == EObject::Beam && earlier.story == later.story &&
                    !HaveCommonNode(earlier, later) && CrossInside(LineOf(earlier), LineOf(later))) {
                    tell(EFinding::BeamsCross);
                }
            }
        }
    }

    static std::multiset<std::vector<std::int32_t>> NumbersOf(const CTwinPanel& panel)
    {
        std::multiset<std::vector<std::int32_t>> numbers;
        for (const CTwinFace& face : FacesOf(panel)) {
            numbers.insert(face.numbers);
        }
        return numbers;
    }

    /// The earliest panel whose elements have the nodes of another one's.
    const CTwinPanel* EarliestLike(const CTwinPanel& later) const
    {
        const CTwinPanel* earliest = nullptr;
        for (const CTwinPanel& earlier : panels) {
            const bool isEarliest = earliest == nullptr || earlier.element < earliest->element;
            if (earlier.element < later.element && earlier.kind == later.kind && isEarliest &&
                NumbersOf(earlier) == NumbersOf(later)) {
                earliest = &earlier;
            }
        }
        return earliest;
    }

    void ExpectOfPanels(CExpected& expected)
    {
        for (const CTwinPanel& later : panels) {
            const std::vector<CTwinFace> faces = FacesOf(later);
            const CTwinPanel* const earliest = EarliestLike(later);
            if (faces.empty() || earliest == nullptr) {
                continue;
            }
            const CTwinFace first = FacesOf(*earliest).front();
            const auto own = std::find_if(faces.begin(), faces.end(),
                                          [&](const CTwinFace& face) { return face.numbers == first.numbers; });
            expected.insert({EFinding::SameNodes, own->element, first.element});
        }
    }

    /// All elements that are written, with their nodes.
    std::vector<CTwinFace> Elements() const
    {
        std::vector<CTwinFace> elements;
        for (const CTwinFrame& frame : frames) {
            elements.push_back({frame.element, {frame.i, frame.j}});
        }
        for (const CTwinPanel& panel : panels) {
            for (const CTwinFace& face : FacesOf(panel)) {
                elements.push_back(face);
            }
        }
        return elements;
    }

    void ExpectOfParts(CExpected& expected)
    {
        std::set<std::int32_t> told;
        for (const CTwinFace& first : Elements()) {
            if (told.count(first.element) != 0) {
                continue;
            }
            std::set<std::int32_t> part{first.element};
            std::set<std::int32_t> reached(first.numbers.begin(), first.numbers.end());
            for (std::size_t before = 0; before != part.size() + reached.size();) {
                before = part.size() + reached.size();
                for (const auto& [element, numbers] : Elements()) {
                    const auto isReached = [&](std::int32_t number) { return reached.count(number) != 0; };
                    if (std::any_of(numbers.begin(), numbers.end(), isReached)) {
                        part.insert(element);
                        reached.insert(numbers.begin(), numbers.end());
                    }
                }
            }
            told.insert(part.begin(), part.end());
            const bool isSupported = std::any_of(reached.begin(), reached.end(),
                                                 [&](std::int32_t number) { return NodeOf(number).story == 0; });
            if (!isSupported) {
                expected.insert({EFinding::NotSupported, first.element, static_cast<double>(part.size())});
            }
        }
    }

    std::mt19937 random;
    std::vector<CTwinNode> nodes;
    std::vector<CTwinFrame> frames;
    std::vector<CTwinPanel> panels;
};

TEST(LookTwin, BothTellTheSameOfThousandsOfRandomBuildings)
{
    std::map<EFinding, int> told;
    std::map<EObject, int> sameNodes;
    for (std::uint32_t seed = 1; seed <= 6000; ++seed) {
        CTwin twin(seed);
        const CSatweModel model = twin.Model();
        CFindingList list;
        LookAtModel(model, list);
        CTwin::CExpected found;
        for (const CFinding& finding : list.Findings()) {
            const bool isUnused = finding.code == EFinding::NodeUnused;
            const std::int32_t object = isUnused          ? finding.story.value_or(0)
                                        : finding.element ? *finding.element
                                                          : finding.key.value_or(0);
            found.insert({finding.code, object, finding.values[0]});
            ++told[finding.code];
            sameNodes[finding.object] += finding.code == EFinding::SameNodes ? 1 : 0;
        }
        ASSERT_EQ(twin.Expected(), found) << "seed " << seed;
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
