// A random building on a lattice.
#pragma once

#include "check/LatticeLine_test.h"
#include "check/TwinPanel_test.h"
#include "model/SatweModel.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

namespace satwecvt {

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
class CTwinBuilding {
public:
    explicit CTwinBuilding(std::uint32_t seed) : random(seed)
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
            MarkUsed(frames.back().i);
            MarkUsed(frames.back().j);
        }
        std::int32_t element = frameCount + 1;
        for (int i = Below(8); i > 0; --i) {
            AddPanel(element);
        }
    }

    /// What is read of it: the order of the keys is a random one.
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

    const CTwinNode& NodeOf(std::int32_t number) const
    {
        return *std::find_if(nodes.begin(), nodes.end(), [&](const CTwinNode& node) { return node.number == number; });
    }

    std::vector<CTwinNode> nodes;
    std::vector<CTwinFrame> frames;
    std::vector<CTwinPanel> panels;

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
                MarkUsed(number);
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

    void MarkUsed(std::int32_t number)
    {
        for (CTwinNode& node : nodes) {
            node.isUsed = node.isUsed || node.number == number;
        }
    }

    int Below(int count) { return static_cast<int>(random() % static_cast<std::uint32_t>(count)); }

    std::int32_t AnyNode() { return nodes[random() % nodes.size()].number; }

    std::mt19937 random;
};

}  // namespace satwecvt
