#include "check/PlanarPairs.h"

#include "check/LookFinding.h"
#include "check/Partners.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
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

/// An element by its nodes, then by how many elements its plate has, then by its position.
struct CByNodes {
    CNodes nodes;
    std::uint32_t sizeOfPlate;
    std::uint32_t element;

    bool IsLike(const CByNodes& other) const { return nodes == other.nodes && sizeOfPlate == other.sizeOfPlate; }

    friend bool operator<(const CByNodes& a, const CByNodes& b)
    {
        return std::tie(a.nodes, a.sizeOfPlate, a.element) < std::tie(b.nodes, b.sizeOfPlate, b.element);
    }
};

/// Whether they are triangles of one plate.
bool AreOfOnePlate(const CElementName& a, const CElementName& b)
{
    return a.kind == b.kind && a.level == b.level && a.record == b.record;
}

/// Tells most elements apart by a number that those of the same nodes share: only those whose number has been met twice
/// have to be sorted.
class CNodeSums {
public:
    explicit CNodeSums(std::size_t elements) : met(std::bit_ceil(kPlacesForEach * elements + 1)), metTwice(met.size())
    {}

    void Add(const CPlanarElement& element)
    {
        const std::size_t place = PlaceOf(element);
        metTwice[place] = metTwice[place] || met[place];
        met[place] = true;
    }

    bool MayBeLikeAnother(const CPlanarElement& element) const { return metTwice[PlaceOf(element)]; }

private:
    static constexpr std::size_t kPlacesForEach = 16;

    std::size_t PlaceOf(const CPlanarElement& element) const
    {
        constexpr std::uint64_t kMixed = 0x9E3779B97F4A7C15;
        std::uint64_t sum = 0;
        const std::size_t nodes = element.name.kind == EObject::Plate ? 3 : 4;
        for (std::size_t i = 0; i < nodes; ++i) {
            const std::uint64_t mixed = (element.nodes[i] + std::uint64_t{1}) * kMixed;
            sum += mixed ^ mixed >> 29;
        }
        constexpr int kUpperHalf = 32;
        return sum * kMixed >> kUpperHalf & (met.size() - 1);
    }

    std::vector<bool> met;
    std::vector<bool> metTwice;
};

class CPlanarPairs {
public:
    explicit CPlanarPairs(const CPlanarElements& planarElements)
        : elements(planarElements.Elements()),
          partners(elements.size())
    {}

    /// Pairs every element with the earliest one of the same nodes whose plate has as many elements.
    void Find()
    {
        const std::vector<CByNodes> byNodes = SortedByNodes();
        const CByNodes* first = byNodes.data();
        for (const CByNodes& one : byNodes) {
            if (!one.IsLike(*first)) {
                first = &one;
            } else if (!AreOfOnePlate(elements[one.element].name, elements[first->element].name)) {
                partners.Add(first->element, one.element);
            }
        }
    }

    void Tell(const CSatweModel& model, CFindingListener& listener) const
    {
        for (std::uint32_t first = 0, end = 0; first < elements.size(); first = end) {
            end = EndOfPlate(first);
            std::uint32_t told = first;
            for (std::uint32_t i = first; i < end; ++i) {
                told = partners.Of(i) < partners.Of(told) ? i : told;
            }
            if (partners.Of(told) != kNone && AreTwins(first, end, partners.Of(told))) {
                CFinding finding = ElementFinding(EFinding::SameNodes, model, elements[told].name);
                finding.values[0] = elements[partners.Of(told)].name.element;
                listener.Tell(finding);
            }
        }
    }

private:
    /// The elements of a plate follow each other.
    std::uint32_t EndOfPlate(std::uint32_t first) const
    {
        std::uint32_t end = first + 1;
        while (end < elements.size() && AreOfOnePlate(elements[end].name, elements[first].name)) {
            ++end;
        }
        return end;
    }

    /// Whether the partners of a plate's elements are all those of one other plate.
    bool AreTwins(std::uint32_t first, std::uint32_t end, std::uint32_t partner) const
    {
        for (std::uint32_t i = first; i < end; ++i) {
            if (partners.Of(i) == kNone || !AreOfOnePlate(elements[partners.Of(i)].name, elements[partner].name)) {
                return false;
            }
        }
        return true;
    }

    /// Those that may be like another one.
    std::vector<CByNodes> SortedByNodes() const
    {
        CNodeSums sums(elements.size());
        for (const CPlanarElement& element : elements) {
            sums.Add(element);
        }
        std::vector<CByNodes> byNodes;
        for (std::uint32_t first = 0, end = 0; first < elements.size(); first = end) {
            end = EndOfPlate(first);
            for (std::uint32_t i = first; i < end; ++i) {
                if (sums.MayBeLikeAnother(elements[i])) {
                    byNodes.push_back({SortedNodes(elements[i]), end - first, i});
                }
            }
        }
        std::sort(byNodes.begin(), byNodes.end());
        return byNodes;
    }

    const std::vector<CPlanarElement>& elements;
    CPartners partners;
};

}  // namespace

void TellPlanarPairs(const CSatweModel& model, const CPlanarElements& planarElements, CFindingListener& listener)
{
    CPlanarPairs pairs(planarElements);
    pairs.Find();
    pairs.Tell(model, listener);
}

}  // namespace satwecvt
