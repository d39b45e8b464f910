#include "picture/PlanBeams.h"

#include "picture/PlanTurn.h"
#include "picture/SectionName.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace satwecvt {

namespace {

constexpr double kHingeRadius = 70.0;
constexpr double kBesideLine = 100.0;  // what texts beside a line keep free: often it lies within a band

/// What a lying element takes on both sides of its line, the left one positive.
struct CReach {
    double right = 0.0;
    double left = 0.0;
};

CReach ReachOf(const CSectionCut& cut, double angle)
{
    const CPlanTurn turn = TurnBy(angle);
    CReach reach;
    for (const CCutPart& part : cut.parts) {
        for (const CCutLoop& loop : part.loops) {
            reach = {std::min(reach.right, -loop.radius), std::max(reach.left, loop.radius)};
            for (const CCutPoint& corner : loop.corners) {
                const double side = corner.y * turn.cosine - corner.z * turn.sine;
                reach = {std::min(reach.right, side), std::max(reach.left, side)};
            }
        }
    }
    return reach;
}

/// A point of a line on paper: so far from its start, and so far to the left.
CPaperPoint PointOn(CPaperPoint start, CPaperDirection along, double forward, double left)
{
    return {start.x + PaperLength((forward * along.x + left * along.y) / 100.0),
            start.y + PaperLength((forward * along.y - left * along.x) / 100.0)};
}

}  // namespace

void CPlanBeams::Add(std::size_t position, const CPlanEnds& ends)
{
    const CFrameElement& frame = drawing.picture.source.model.frameElements[position];
    const CLine line = LineOf(frame, ends);
    const double halfWidth = AddShape(drawing.picture.frameElements[position].object, frame, ends, line);
    AddHinges(frame, line);
    AddLabel(frame, line, halfWidth);
}

CPlanBeams::CLine CPlanBeams::LineOf(const CFrameElement& frame, const CPlanEnds& ends) const
{
    CLine line{drawing.scale.ToPaper(PlanOf(ends.i)), drawing.scale.ToPaper(PlanOf(ends.j)), {}, 0.0};
    const double x = line.to.x - line.from.x;
    const double y = line.to.y - line.from.y;
    line.length = std::sqrt(x * x + y * y);
    if (line.length > 0.0) {
        line.along = {x / line.length, y / line.length};
    }
    line.freeFrom = columns.ReachAt(frame.nodeI);
    line.freeTo = line.length - columns.ReachAt(frame.nodeJ);
    return line;
}

/// Returns half of the width on paper that its text keeps free.
double CPlanBeams::AddShape(EObject kind, const CFrameElement& frame, const CPlanEnds& ends, const CLine& line)
{
    const CSectionCut* const cut = kind == EObject::Brace ? nullptr : drawing.model.CutOf(frame);
    const CPlanPoint run = RunOf(ends);
    const double length = LengthOf(run);
    CPathText path;
    if (cut == nullptr || !(length > 0.0)) {
        const bool isForward = std::pair(line.from.x, line.from.y) < std::pair(line.to.x, line.to.y);
        path.AddLine(isForward ? line.from : line.to, isForward ? line.to : line.from);  // dashes fall on dashes
        drawing.layers.AddPath(kind == EObject::Brace ? EPlanLayer::Braces : EPlanLayer::BeamLines, path,
                               ElementId(frame.number));
        return kBesideLine;
    }
    const auto [right, left] = ReachOf(*cut, frame.angle);
    const CPlanPoint normal{-run.y / length, run.x / length};
    const auto corner = [&](const CPicturePoint& end, double side) {
        return drawing.scale.ToPaper({end.x + side * normal.x, end.y + side * normal.y});
    };
    path.AddPolygon(std::array<CPaperPoint, 4>{
        {corner(ends.i, right), corner(ends.j, right), corner(ends.j, left), corner(ends.i, left)}});
    drawing.layers.AddPath(EPlanLayer::Beams, path, ElementId(frame.number));
    return drawing.scale.ToPaper(std::max(left, -right));
}

/// A hinge stands a little inside of what is free of a member, or of its whole where nothing is free.
void CPlanBeams::AddHinges(const CFrameElement& frame, const CLine& line)
{
    const CRelease* const release = drawing.model.ReleaseOf(frame);
    if (release == nullptr) {
        return;
    }
    const double inside = std::min(2.0 * kHingeRadius, line.length / 4.0);
    const double atI = std::min(line.freeFrom + inside, line.length / 2.0 - inside);
    const double atJ = std::max(line.freeTo - inside, line.length / 2.0 + inside);
    for (const auto& [isHinge, at] : {std::pair(release->isHingeAtI, atI), std::pair(release->isHingeAtJ, atJ)}) {
        if (isHinge) {
            drawing.layers.AddCircle(EPlanLayer::Hinges, PointOn(line.from, line.along, at, 0.0),
                                     static_cast<std::int32_t>(kHingeRadius));
        }
    }
}

/// The section's name stands within a wide band, or else above the line, above a wall in the line, or below.
void CPlanBeams::AddLabel(const CFrameElement& frame, const CLine& line, double halfWidth)
{
    constexpr double kGap = 80.0;
    constexpr double kMargin = 4.0 * kHingeRadius;
    const CSection* const section = drawing.model.SectionOf(frame);
    if (section == nullptr) {
        return;
    }
    const std::string name = SectionName(*section);
    if (CPlanLabels::LengthOf(name) + 2.0 * kMargin > line.freeTo - line.freeFrom) {
        return;
    }
    const bool isWithin = 2.0 * halfWidth >= CPlanLabels::kHeight + kGap;
    const double beside = halfWidth + kGap + CPlanLabels::kHeight / 2.0;
    const CPaperDirection reading = CPlanLabels::Readable(line.along);
    const CPaperPoint middle = PointOn(line.from, line.along, (line.freeFrom + line.freeTo) / 2.0, 0.0);
    const auto at = [&](double side) { return PointOn(middle, reading, 0.0, side); };
    drawing.labels.Add(name, {at(isWithin ? 0.0 : beside), at(beside), at(beside + CPlanLabels::kHeight), at(-beside)},
                       reading);
}

}  // namespace satwecvt
