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

/// An element behind its lowest node, for sorting: its other nodes, how many elements its plate has, then its position.
struct CByNodes {
    std::array<std::uint32_t, 3> others;
    std::uint32_t sizeOfPlate;
    std::uint32_t element;

    bool IsLike(const CByNodes& other) const { return others == other.others && sizeOfPlate == other.sizeOfPlate; }

    friend bool operator<(const CByNodes& a, const CByNodes& b)
    {
        return std::tie(a.others, a.sizeOfPlate, a.element) < std::tie(b.others, b.sizeOfPlate, b.element);
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
        for (std::uint32_t first = 0, end = 0; first < count; first = end) {
            std::uint32_t told = first;
            while (end < count && AreOfOnePlate(elements[end].name, elements[first].name)) {
                told = partners.Of(end) < partners.Of(told) ? end : told;
                ++end;
            }
            if (partners.Of(told) != kNone && AreTwins(first, end, partners.Of(told))) {
                CFinding finding = ElementFinding(EFinding::SameNodes, model, elements[told].name);
                finding.values[0] = elements[partners.Of(told)].name.element;
                listener.Tell(finding);
            }
        }
    }

private:
    /// Whether the partners of a plate's elements are all those of one other plate, of as many elements.
    bool AreTwins(std::uint32_t first, std::uint32_t end, std::uint32_t partner) const
    {
        for (std::uint32_t i = first; i < end; ++i) {
            if (partners.Of(i) == kNone || !AreOfOnePlate(elements[partners.Of(i)].name, elements[partner].name)) {
                return false;
            }
        }
        return true;
    }

    /// How many elements the plate of each element has.
    std::vector<std::uint32_t> SizesOfPlates() const
    {
        std::vector<std::uint32_t> sizes(elements.size());
        for (std::size_t first = 0, end = 0; first < elements.size(); first = end) {
            while (end < elements.size() && AreOfOnePlate(elements[end].name, elements[first].name)) {
                ++end;
            }
            std::fill(sizes.begin() + static_cast<std::ptrdiff_t>(first),
                      sizes.begin() + static_cast<std::ptrdiff_t>(end), static_cast<std::uint32_t>(end - first));
        }
        return sizes;
    }

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
        const std::vector<std::uint32_t> sizes = SizesOfPlates();
        byNodes.resize(total);
        for (std::uint32_t i = total; i-- > 0;) {
            const auto [lowest, second, third, fourth] = SortedNodes(elements[i]);
            byNodes[--starts[lowest]] = {{second, third, fourth}, sizes[i], i};
        }
    }

    /// Pairs every element with the earliest one of the same nodes whose plate has as many elements.
    void FindAtNode(std::span<CByNodes> bucket)
    {
        std::sort(bucket.begin(), bucket.end());
        const CByNodes* first = &bucket.front();
        for (const CByNodes& one : bucket) {
            if (!one.IsLike(*first)) {
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
