#include "check/PlanarPairs.h"

#include "check/LookFinding.h"
#include "check/Partners.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <tuple>
#include <vector>

namespace satwecvt {

namespace {

using CNodes = std::array<std::uint32_t, 4>;

/// In ascending order. A triangle has three: the place of the fourth says so, and no wall is like it.
CNodes SortedNodes(const CPlanarElement& element)
{
    CNodes nodes = element.nodes;
    if (element.name.kind == EObject::Plate) {
        nodes[3] = kNone;
    }
    std::sort(nodes.begin(), nodes.end());
    return nodes;
}

/// An element behind its lowest node, for sorting: its other nodes, then its position.
struct CByNodes {
    std::array<std::uint32_t, 3> others;
    std::uint32_t element;

    friend bool operator<(const CByNodes& a, const CByNodes& b)
    {
        return std::tie(a.others, a.element) < std::tie(b.others, b.element);
    }
};

/// Whether they are triangles of one plate.
bool AreOfOnePlate(const CElementName& a, const CElementName& b)
{
    return a.kind == b.kind && a.level == b.level && a.record == b.record;
}

class CPlanarPairs {
public:
    explicit CPlanarPairs(const CPlanarElements& planarElements)
        : elements(planarElements.Elements()),
          partners(elements.size())
    {}

    void Find(std::size_t nodeCount)
    {
        SortByLowestNode(nodeCount);
        for (std::size_t node = 0; node + 1 < starts.size(); ++node) {
            const std::span bucket(byNodes.data() + starts[node], byNodes.data() + starts[node + 1]);
            if (bucket.size() > 1) {
                FindAtNode(bucket);
            }
        }
    }

    void Tell(const CSatweModel& model, CFindingListener& listener) const
    {
        const auto count = static_cast<std::uint32_t>(elements.size());
        for (std::uint32_t i = 0; i < count;) {
            const CElementName& first = elements[i].name;
            std::uint32_t told = i;
            for (; i < count && AreOfOnePlate(elements[i].name, first); ++i) {
                told = partners.Of(i) < partners.Of(told) ? i : told;
            }
            if (partners.Of(told) != kNone) {
                CFinding finding = ElementFinding(EFinding::SameNodes, model, elements[told].name);
                finding.values[0] = elements[partners.Of(told)].name.element;
                listener.Tell(finding);
            }
        }
    }

private:
    void SortByLowestNode(std::size_t nodeCount)
    {
        starts.assign(nodeCount + 1, 0);
        for (const CPlanarElement& element : elements) {
            ++starts[*std::min_element(element.nodes.begin(), element.nodes.end())];
        }
        std::uint32_t total = 0;
        for (std::uint32_t& start : starts) {
            total += start;
            start = total;  // for now where the elements of the node end
        }
        byNodes.resize(total);
        for (std::uint32_t i = total; i-- > 0;) {
            const auto [lowest, second, third, fourth] = SortedNodes(elements[i]);
            byNodes[--starts[lowest]] = {{second, third, fourth}, i};
        }
    }

    /// Pairs every element with the earliest one of the same nodes.
    void FindAtNode(std::span<CByNodes> bucket)
    {
        std::sort(bucket.begin(), bucket.end());
        const CByNodes* first = &bucket.front();
        for (const CByNodes& one : bucket) {
            if (one.others != first->others) {
                first = &one;
            } else if (!AreOfOnePlate(elements[one.element].name, elements[first->element].name)) {
                partners.Add(first->element, one.element);
            }
        }
    }

    const std::vector<CPlanarElement>& elements;
    CPartners partners;
    std::vector<std::uint32_t> starts;  // by node: where the elements with that lowest node start
    std::vector<CByNodes> byNodes;
};

}  // namespace

void TellPlanarPairs(const CSatweModel& model, const CNodeList& nodes, const CPlanarElements& planarElements,
                     CFindingListener& listener)
{
    CPlanarPairs pairs(planarElements);
    pairs.Find(nodes.Count());
    pairs.Tell(model, listener);
}

}  // namespace satwecvt
