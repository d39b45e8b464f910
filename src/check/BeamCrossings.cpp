#include "check/BeamCrossings.h"

#include "check/CellGrid.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace satwecvt {

namespace {

/// A beam with length.
struct CPlacedBeam {
    CSegment segment;
    CBox box;  // with some room around it
    std::uint32_t nodeI;
    std::uint32_t nodeJ;
    std::uint32_t frame;  // position among the frame elements
};

CBox BoxOf(const CVector& a, const CVector& b)
{
    constexpr double kRoom = CCellGrid::kReach;
    return {{std::min(a.x, b.x) - kRoom, std::min(a.y, b.y) - kRoom, std::min(a.z, b.z) - kRoom},
            {std::max(a.x, b.x) + kRoom, std::max(a.y, b.y) + kRoom, std::max(a.z, b.z) + kRoom}};
}

bool Meet(const CBox& a, const CBox& b)
{
    return a.low.x <= b.high.x && b.low.x <= a.high.x && a.low.y <= b.high.y && b.low.y <= a.high.y &&
           a.low.z <= b.high.z && b.low.z <= a.high.z;
}

bool HaveCommonNode(const CPlacedBeam& a, const CPlacedBeam& b)
{
    return a.nodeI == b.nodeI || a.nodeI == b.nodeJ || a.nodeJ == b.nodeI || a.nodeJ == b.nodeJ;
}

bool CrossWithoutNode(const CPlacedBeam& a, const CPlacedBeam& b)
{
    return Meet(a.box, b.box) && !HaveCommonNode(a, b) && CrossInside(a.segment, b.segment);
}

/// The beams of one story after the other; what it needs for one is used again for the next.
class CBeamCrossings {
public:
    CBeamCrossings(const CFrameList& frameList, const std::vector<CVector>& nodePlaces, CTestBudget& testBudget,
                   CPartners& crossingPairs)
        : frames(frameList.Frames()),
          places(nodePlaces),
          budget(testBudget),
          crossings(crossingPairs)
    {}

    /// Takes the beams of a story, by position in ascending order.
    void FindAmong(std::span<const std::uint32_t> storyBeams)
    {
        beams.clear();
        for (const std::uint32_t frame : storyBeams) {
            const auto& [nodeI, nodeJ, name] = frames[frame];
            const CSegment segment(places[nodeI], places[nodeJ]);
            if (segment.HasLength()) {
                beams.push_back({segment, BoxOf(places[nodeI], places[nodeJ]), nodeI, nodeJ, frame});
            }
        }
        if (!beams.empty()) {
            SortByCell();
            for (std::size_t cell = 0; cell + 1 < starts.size(); ++cell) {
                FindInCell({beamsInCells.data() + starts[cell], beamsInCells.data() + starts[cell + 1]});
            }
        }
    }

private:
    /// Cells as wide as a usual beam is long: all beams together pass through a number of them in proportion to their
    /// own.
    CCellGrid GridOfBeams() const
    {
        CBox box = beams.front().box;
        double lengths = 0.0;
        for (const CPlacedBeam& beam : beams) {
            const auto& [low, high] = beam.box;
            box.low = {std::min(box.low.x, low.x), std::min(box.low.y, low.y), std::min(box.low.z, low.z)};
            box.high = {std::max(box.high.x, high.x), std::max(box.high.y, high.y), std::max(box.high.z, high.z)};
            lengths += beam.segment.length;
        }
        return {box, lengths / static_cast<double>(beams.size()), beams.size()};
    }

    void SortByCell()
    {
        const CCellGrid grid = GridOfBeams();
        const auto visitCells = [&](const CPlacedBeam& beam, auto visit) {
            grid.VisitNear(places[beam.nodeI], places[beam.nodeJ], [&](std::size_t first, std::size_t last) {
                for (std::size_t cell = first; cell <= last; ++cell) {
                    visit(cell);
                }
            });
        };
        starts.assign(grid.Cells() + 1, 0);
        for (const CPlacedBeam& beam : beams) {
            visitCells(beam, [&](std::size_t cell) { ++starts[cell]; });
        }
        std::size_t total = 0;
        for (std::size_t& start : starts) {
            total += start;
            start = total;  // for now where the beams of the cell end
        }
        beamsInCells.resize(total);
        for (std::size_t i = beams.size(); i-- > 0;) {
            visitCells(beams[i],
                       [&](std::size_t cell) { beamsInCells[--starts[cell]] = static_cast<std::uint32_t>(i); });
        }
    }

    void FindInCell(std::span<const std::uint32_t> inCell)
    {
        for (std::size_t later = 1; later < inCell.size(); ++later) {
            const CPlacedBeam& beam = beams[inCell[later]];
            for (const std::uint32_t i : inCell.first(later)) {
                const CPlacedBeam& earlier = beams[i];
                if (earlier.frame >= crossings.Of(beam.frame) || !budget.Spend(frames[beam.frame].name.level)) {
                    break;
                }
                if (CrossWithoutNode(earlier, beam)) {
                    crossings.Add(earlier.frame, beam.frame);
                }
            }
        }
    }

    const std::vector<CFrame>& frames;
    const std::vector<CVector>& places;
    CTestBudget& budget;
    CPartners& crossings;
    std::vector<CPlacedBeam> beams;
    std::vector<std::size_t> starts;  // by cell: where its beams start
    std::vector<std::uint32_t> beamsInCells;
};

}  // namespace

void FindBeamCrossings(const CSatweModel& model, const CFrameList& frames, const std::vector<CVector>& places,
                       CTestBudget& budget, CPartners& crossings)
{
    std::vector<std::vector<std::uint32_t>> beams(model.stories.Count() + 1);  // by level
    for (std::size_t level = 1; level < beams.size(); ++level) {
        beams[level].reserve(model.stories.At(level - 1).beams.Count());
    }
    for (std::uint32_t frame = 0; frame < frames.Frames().size(); ++frame) {
        const CElementName& name = frames.Frames()[frame].name;
        if (name.kind == EObject::Beam) {
            beams[name.level].push_back(frame);
        }
    }
    CBeamCrossings beamCrossings(frames, places, budget, crossings);
    for (const std::vector<std::uint32_t>& ofStory : beams) {
        beamCrossings.FindAmong(ofStory);
    }
}

}  // namespace satwecvt
