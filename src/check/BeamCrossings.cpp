#include "check/BeamCrossings.h"

#include "check/CellGrid.h"
#include "check/Places.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

namespace satwecvt {

namespace {

/// A beam with length.
struct CPlacedBeam {
    CVector from;
    CVector to;
    std::uint32_t nodeI;
    std::uint32_t nodeJ;
    std::uint32_t frame;  // position among the frame elements
};

/// A beam, by position among those of its story, in a cell that it passes.
struct CPassage {
    std::uint32_t cell;
    std::uint32_t beam;
};

/// Whether two stretches of an axis, each given by its ends, come near to each other.
bool Meet(double a1, double a2, double b1, double b2)
{
    return std::min(a1, a2) <= std::max(b1, b2) + CCellGrid::kReach &&
           std::min(b1, b2) <= std::max(a1, a2) + CCellGrid::kReach;
}

bool HaveCommonNode(const CPlacedBeam& a, const CPlacedBeam& b)
{
    return a.nodeI == b.nodeI || a.nodeI == b.nodeJ || a.nodeJ == b.nodeI || a.nodeJ == b.nodeJ;
}

/// Most beams of a cell are told apart by their nodes, or by the box around each.
bool CrossWithoutNode(const CPlacedBeam& a, const CPlacedBeam& b)
{
    return !HaveCommonNode(a, b) && Meet(a.from.x, a.to.x, b.from.x, b.to.x) &&
           Meet(a.from.y, a.to.y, b.from.y, b.to.y) && Meet(a.from.z, a.to.z, b.from.z, b.to.z) &&
           CrossInside({a.from, a.to}, {b.from, b.to});
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
            const CPlacedBeam beam{places[nodeI], places[nodeJ], nodeI, nodeJ, frame};
            if (HasPlace(beam.from) && HasPlace(beam.to) && !IsOnePlace(beam.from, beam.to)) {
                beams.push_back(beam);
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
        CBox box{beams.front().from, beams.front().from};
        double lengths = 0.0;
        for (const CPlacedBeam& beam : beams) {
            for (const CVector& end : {beam.from, beam.to}) {
                box.low = {std::min(box.low.x, end.x), std::min(box.low.y, end.y), std::min(box.low.z, end.z)};
                box.high = {std::max(box.high.x, end.x), std::max(box.high.y, end.y), std::max(box.high.z, end.z)};
            }
            const CVector along = beam.to - beam.from;
            lengths += std::abs(along.x) + std::abs(along.y) + std::abs(along.z);  // at least that
        }
        return {box, lengths / static_cast<double>(beams.size()), beams.size()};
    }

    void SortByCell()
    {
        const CCellGrid grid = GridOfBeams();
        passages.clear();
        starts.assign(grid.Cells() + 1, 0);
        for (std::uint32_t i = 0; i < beams.size(); ++i) {
            grid.VisitNear(beams[i].from, beams[i].to, [&](std::size_t first, std::size_t last) {
                for (std::size_t cell = first; cell <= last; ++cell) {
                    passages.push_back({static_cast<std::uint32_t>(cell), i});
                    ++starts[cell];
                }
            });
        }
        std::size_t total = 0;
        for (std::size_t& start : starts) {
            total += start;
            start = total;  // for now where the beams of the cell end
        }
        beamsInCells.resize(total);
        for (std::size_t i = passages.size(); i-- > 0;) {
            beamsInCells[--starts[passages[i].cell]] = passages[i].beam;
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
    std::vector<CPassage> passages;
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
