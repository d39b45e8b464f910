#include "check/PlanarPairs.h"

#include "check/LookFinding.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <tuple>
#include <utility>
#include <vector>

namespace satwecvt {

namespace {

using CNodes = std::array<std::uint32_t, 4>;

/// In ascending order. A triangle has three: the place of the fourth says so.
CNodes SortedNodes(const CPlanarElement& element)
{
    CNodes nodes = element.nodes;
    if (element.name.kind == EObject::Plate) {
        nodes[3] = kNone;
    }
    std::sort(nodes.begin(), nodes.end());
    return nodes;
}

constexpr std::uint64_t Mixed(std::uint64_t number) noexcept
{
    constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15;
    const std::uint64_t product = (number + 1) * kMultiplier;
    return (product ^ product >> 29) * kMultiplier;
}

/// A wall, or a plate with all its triangles: the elements from `first` on. The sum is one for all of the same nodes,
/// in whatever order.
struct CPanel {
    std::uint64_t sum = 0;
    std::uint32_t size = 0;
    std::uint32_t first = 0;

    bool MayBeLike(const CPanel& other) const noexcept { return sum == other.sum && size == other.size; }

    friend bool operator<(const CPanel& a, const CPanel& b)
    {
        return std::tie(a.sum, a.size, a.first) < std::tie(b.sum, b.size, b.first);
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
            if (!panel.MayBeLike(*earliest)) {
                earliest = &panel;
            } else if (panel.first != earliest->first && NodesOf(panel) == NodesOf(*earliest)) {
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
        for (std::uint32_t i = 0; i < elements.size(); ++i) {
            if (i == 0 || !AreOfOnePanel(elements[i - 1].name, elements[i].name)) {
                panels.push_back({0, 0, i});
            }
            panels.back().sum += SumOf(elements[i]);
            ++panels.back().size;
        }
        return panels;
    }

    static bool AreOfOnePanel(const CElementName& a, const CElementName& b)
    {
        return a.kind == b.kind && a.level == b.level && a.record == b.record;
    }

    /// Of a wall and of a triangle with its nodes it is another one.
    static std::uint64_t SumOf(const CPlanarElement& element)
    {
        const std::size_t nodes = element.name.kind == EObject::Plate ? 3 : 4;
        std::uint64_t sum = nodes;
        for (std::size_t i = 0; i < nodes; ++i) {
            sum += Mixed(element.nodes[i]);
        }
        return Mixed(sum);
    }

    /// The nodes of all its elements, in an order that is one for all of the same.
    std::vector<CNodes> NodesOf(const CPanel& panel) const
    {
        std::vector<CNodes> nodes;
        for (std::uint32_t i = panel.first; i < panel.first + panel.size; ++i) {
            nodes.push_back(SortedNodes(elements[i]));
        }
        std::sort(nodes.begin(), nodes.end());
        return nodes;
    }

    /// The first element of a panel with the nodes of another one's, which it has.
    std::uint32_t ElementLike(const CPanel& panel, const CPlanarElement& other) const
    {
        std::uint32_t element = panel.first;
        while (SortedNodes(elements[element]) != SortedNodes(other)) {
            ++element;
        }
        return element;
    }

    const std::vector<CPlanarElement>& elements;
};

}  // namespace

void TellPlanarPairs(const CSatweModel& model, const CPlanarElements& planarElements, CFindingListener& listener)
{
    CPlanarPairs(planarElements).Tell(model, listener);
}

}  // namespace satwecvt
