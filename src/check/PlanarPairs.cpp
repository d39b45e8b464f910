#include "check/PlanarPairs.h"

#include "check/LookFinding.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <tuple>
#include <utility>
#include <vector>

namespace satwecvt {

namespace {

constexpr std::uint64_t Mixed(std::uint64_t number) noexcept
{
    constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15;
    const std::uint64_t product = (number + 1) * kMultiplier;
    return (product ^ product >> 29) * kMultiplier;
}

using CNodes = std::vector<std::uint32_t>;

/// A wall, or a plate with all its triangles: the elements from `first` on. The sum is one for all of a kind that have
/// the same nodes.
struct CPanel {
    std::uint64_t sum = 0;
    std::uint32_t size = 0;
    std::uint32_t first = 0;

    friend bool operator<(const CPanel& a, const CPanel& b)
    {
        return std::tie(a.sum, a.first) < std::tie(b.sum, b.first);
    }
};

/// Leaves the panels whose sum comes near to that of another one. Most have none like them, and need not be sorted.
std::vector<CPanel> ThoseLikeOthers(const std::vector<CPanel>& panels)
{
    constexpr std::size_t kPlacesForEach = 16;
    const std::size_t places = std::bit_ceil(kPlacesForEach * panels.size() + 1);
    std::vector<bool> met(places);
    std::vector<bool> metTwice(places);
    const auto placeOf = [&](const CPanel& panel) {
        return static_cast<std::uint32_t>(panel.sum >> 32) & (places - 1);
    };
    for (const CPanel& panel : panels) {
        const std::size_t place = placeOf(panel);
        metTwice[place] = metTwice[place] || met[place];
        met[place] = true;
    }
    std::vector<CPanel> left;
    std::copy_if(panels.begin(), panels.end(), std::back_inserter(left),
                 [&](const CPanel& panel) { return metTwice[placeOf(panel)]; });
    return left;
}

class CPlanarPairs {
public:
    explicit CPlanarPairs(const CPlanarElements& planarElements) : elements(planarElements.Elements()) {}

    void Tell(const CSatweModel& model, CFindingListener& listener) const
    {
        std::vector<CPanel> panels = ThoseLikeOthers(Panels());
        std::sort(panels.begin(), panels.end());
        std::vector<std::pair<std::uint32_t, std::uint32_t>> pairs;  // the element that is told, the earlier one
        const CPanel* earliest = panels.data();
        for (const CPanel& panel : panels) {
            if (panel.sum != earliest->sum) {
                earliest = &panel;
            } else if (panel.first != earliest->first && HaveSameNodes(panel, *earliest)) {
                pairs.emplace_back(ElementLike(panel, elements[earliest->first]), earliest->first);
            }
        }
        std::sort(pairs.begin(), pairs.end());
        for (const auto& [told, earlier] : pairs) {
            CFinding finding = ElementFinding(EFinding::SameNodes, model, elements[told].name);
            finding.values[0] = elements[earlier].name.element;
            listener.Tell(finding);
        }
    }

private:
    std::vector<CPanel> Panels() const
    {
        std::vector<CPanel> panels;
        CNodes nodes;
        for (std::uint32_t i = 0; i < elements.size();) {
            CPanel panel{0, 0, i};
            while (i < elements.size() && AreOfOneRecord(elements[panel.first].name, elements[i].name)) {
                ++panel.size;
                ++i;
            }
            CollectNodes(panel, nodes);
            panel.sum = Mixed(static_cast<std::uint64_t>(elements[panel.first].name.kind));
            for (const std::uint32_t node : nodes) {
                panel.sum += Mixed(node);
            }
            panels.push_back(panel);
        }
        return panels;
    }

    /// In ascending order.
    void CollectNodes(const CPanel& panel, CNodes& nodes) const
    {
        nodes.clear();
        for (std::uint32_t i = panel.first; i < panel.first + panel.size; ++i) {
            AppendNodes(elements[i], nodes);
        }
        std::sort(nodes.begin(), nodes.end());
        if (elements[panel.first].name.kind == EObject::Plate) {
            nodes.erase(std::unique(nodes.begin(), nodes.end()), nodes.end());
        }
    }

    /// The triangles of a fan have their first node in common, and each its second with the one before it.
    static void AppendNodes(const CPlanar& element, CNodes& nodes)
    {
        const bool isTriangle = element.name.kind == EObject::Plate;
        for (const std::uint32_t node : std::span(element.nodes).first(isTriangle ? 3 : 4)) {
            const bool isThere = isTriangle && !nodes.empty() && (node == nodes.front() || node == nodes.back());
            if (!isThere) {
                nodes.push_back(node);
            }
        }
    }

    bool HaveSameNodes(const CPanel& a, const CPanel& b) const
    {
        CNodes ofA;
        CNodes ofB;
        CollectNodes(a, ofA);
        CollectNodes(b, ofB);
        return elements[a.first].name.kind == elements[b.first].name.kind && ofA == ofB;
    }

    static CNodes NodesOf(const CPlanar& element)
    {
        CNodes nodes;
        AppendNodes(element, nodes);
        std::sort(nodes.begin(), nodes.end());
        return nodes;
    }

    /// The first element of a panel with the nodes of another one's; its first where it has none.
    std::uint32_t ElementLike(const CPanel& panel, const CPlanar& other) const
    {
        for (std::uint32_t i = panel.first; i < panel.first + panel.size; ++i) {
            if (NodesOf(elements[i]) == NodesOf(other)) {
                return i;
            }
        }
        return panel.first;
    }

    const std::vector<CPlanar>& elements;
};

}  // namespace

void TellPlanarPairs(const CSatweModel& model, const CPlanarElements& planarElements, CFindingListener& listener)
{
    CPlanarPairs(planarElements).Tell(model, listener);
}

}  // namespace satwecvt
