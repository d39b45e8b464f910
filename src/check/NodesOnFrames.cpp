#include "check/NodesOnFrames.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace satwecvt {

namespace {

/// The frame elements at each node. Most buildings never ask for them.
class CFramesAtNodes {
public:
    explicit CFramesAtNodes(const CFrameList& frameList) : list(frameList) {}

    std::span<const std::uint32_t> At(std::uint32_t position)
    {
        if (starts.empty()) {
            Make();
        }
        return {frames.data() + starts[position], frames.data() + starts[position + 1]};
    }

private:
    void Make()
    {
        starts.assign(list.Positions() + 1, 0);
        for (const CFrame& frame : list.Frames()) {
            ++starts[frame.nodeI];
            ++starts[frame.nodeJ];
        }
        std::uint32_t total = 0;
        for (std::uint32_t& start : starts) {
            total += start;
            start = total;  // for now where the elements of the node end
        }
        frames.resize(total);
        for (std::size_t i = list.Frames().size(); i-- > 0;) {
            frames[--starts[list.Frames()[i].nodeI]] = static_cast<std::uint32_t>(i);
            frames[--starts[list.Frames()[i].nodeJ]] = static_cast<std::uint32_t>(i);
        }
    }

    const CFrameList& list;
    std::vector<std::uint32_t> starts;  // by position: where its elements start
    std::vector<std::uint32_t> frames;
};

class CNodesOnFrames {
public:
    CNodesOnFrames(const CNodeList& nodeList, const CFrameList& frameList, const std::vector<CVector>& nodePlaces,
                   const CNodeGrid& nodeGrid, CTestBudget& testBudget, CPartners& overlappingPairs)
        : nodes(nodeList),
          frames(frameList.Frames()),
          places(nodePlaces),
          grid(nodeGrid),
          budget(testBudget),
          overlaps(overlappingPairs),
          framesAtNodes(frameList)
    {}

    /// The lowest position of a node that a beam should be told about.
    std::uint32_t FindOn(std::uint32_t frame)
    {
        const CElementName& name = frames[frame].name;
        const CSegment segment = SegmentOf(frame);
        std::uint32_t lowest = kNone;
        if (!segment.HasLength()) {
            return lowest;
        }
        const auto search = [&](std::span<const CPlacedNode> others) {
            if (!budget.Spend(name.level, others.size())) {
                return;
            }
            for (const CPlacedNode& other : others) {
                if (segment.HasInside(other.place)) {
                    AddOverlaps(frame, segment, other.position);
                    lowest = IsAskedAbout(name, other.position) ? std::min(lowest, other.position) : lowest;
                }
            }
        };
        grid.VisitNear(search, places[frames[frame].nodeI], places[frames[frame].nodeJ]);
        return lowest;
    }

private:
    CSegment SegmentOf(std::uint32_t frame) const { return {places[frames[frame].nodeI], places[frames[frame].nodeJ]}; }

    bool IsAskedAbout(const CElementName& name, std::uint32_t position) const
    {
        const std::uint32_t level = nodes.At(position).level;
        return name.kind == EObject::Beam && (level == name.level || level == kModelLevel);
    }

    /// A node inside the frame: the elements that end there may go on along it.
    void AddOverlaps(std::uint32_t frame, const CSegment& segment, std::uint32_t position)
    {
        for (const std::uint32_t other : framesAtNodes.At(position)) {
            if (!budget.Spend(frames[frame].name.level)) {
                return;
            }
            const CSegment otherSegment = SegmentOf(other);
            if (otherSegment.HasLength() && Overlap(segment, otherSegment)) {
                overlaps.Add(frame, other);
            }
        }
    }

    const CNodeList& nodes;
    const std::vector<CFrame>& frames;
    const std::vector<CVector>& places;
    const CNodeGrid& grid;
    CTestBudget& budget;
    CPartners& overlaps;
    CFramesAtNodes framesAtNodes;
};

}  // namespace

std::vector<CNodeOnBeam> FindNodesOnFrames(const CNodeList& nodes, const CFrameList& frames,
                                           const std::vector<CVector>& places, const CNodeGrid& grid,
                                           CTestBudget& budget, CPartners& overlaps)
{
    CNodesOnFrames nodesOnFrames(nodes, frames, places, grid, budget, overlaps);
    std::vector<CNodeOnBeam> found;
    for (std::uint32_t frame = 0; frame < frames.Frames().size(); ++frame) {
        const std::uint32_t lowest = nodesOnFrames.FindOn(frame);
        if (lowest != kNone) {
            found.push_back({frame, lowest});
        }
    }
    return found;
}

}  // namespace satwecvt
