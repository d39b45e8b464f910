#include "check/CoincidentNodes.h"

#include "check/LookFinding.h"

#include <numeric>
#include <span>

namespace satwecvt {

std::vector<std::uint32_t> FirstAtPlace(const CNodeList& nodes, const CFrameList& frames, const CNodeGrid& grid,
                                        CTestBudget& budget)
{
    std::vector<std::uint32_t> first(frames.Positions());
    std::iota(first.begin(), first.end(), 0U);
    for (const CPlacedNode& node : grid.Nodes()) {
        const std::uint32_t level = nodes.At(node.position).level;
        std::uint32_t& lowest = first[node.position];
        const auto search = [&](std::span<const CPlacedNode> others) {
            for (const CPlacedNode& other : others) {
                if (other.position >= lowest || !budget.Spend(level)) {
                    return;
                }
                if (IsOnePlace(other.place, node.place)) {
                    lowest = other.position;
                }
            }
        };
        grid.VisitNear(search, node.place);
    }
    return first;
}

void TellCoincidentNodes(const CSatweModel& model, const CNodeList& nodes,
                         const std::vector<std::uint32_t>& firstAtPlace, CFindingListener& listener)
{
    for (std::uint32_t position = 0; position < nodes.Count(); ++position) {
        if (firstAtPlace[position] != position) {
            CFinding finding = NodeFinding(EFinding::NodesCoincide, model, nodes.At(position));
            finding.values[0] = nodes.At(firstAtPlace[position]).record->number;
            listener.Tell(finding);
        }
    }
}

}  // namespace satwecvt
