#include "picture/PlanColumns.h"

#include "picture/PlanTurn.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace satwecvt {

namespace {

/// What is smaller on paper is drawn without what is inside of it.
constexpr std::int32_t kLeastDetailed = 200;

/// The local axes of a standing element, as they lie in the plan.
struct CCutAxes {
    CPlanPoint y;
    CPlanPoint z;
};

/// Upright, z lies along global x; in an element that leans it lies in the upright plane through the element. The angle
/// turns both around the element.
CCutAxes AxesOf(const CPlanEnds& ends, double angle) noexcept
{
    constexpr double kUpright = 1e-6;
    const CPlanPoint run = RunOf(ends);
    const double rise = ends.j.z - ends.i.z;
    const double length = LengthOf(run);
    const double up = rise < 0.0 ? -1.0 : 1.0;
    const CPlanPoint z = length <= kUpright * std::abs(rise) ? CPlanPoint{1.0, 0.0}
                                                             : CPlanPoint{-up * run.x / length, -up * run.y / length};
    const CPlanPoint y{up * z.y, -up * z.x};
    const CPlanTurn turn = TurnBy(angle);
    return {{y.x * turn.cosine + z.x * turn.sine, y.y * turn.cosine + z.y * turn.sine},
            {z.x * turn.cosine - y.x * turn.sine, z.y * turn.cosine - y.y * turn.sine}};
}

void AddLoop(CPathText& path, const CPlanScale& scale, const CCutLoop& loop, const CCutAxes& axes, CPaperPoint middle)
{
    if (loop.corners.empty()) {
        path.AddCircle(middle, scale.ToPaper(loop.radius), !loop.isHole);
        return;
    }
    std::vector<CPaperPoint> corners;
    for (const auto& [y, z] : loop.corners) {
        corners.push_back({middle.x + scale.ToPaper(y * axes.y.x + z * axes.z.x),
                           middle.y - scale.ToPaper(y * axes.y.y + z * axes.z.y)});
    }
    path.AddPolygon(corners);
}

const CPicturePoint& UpperOf(const CPlanEnds& ends) noexcept
{
    return ends.j.z < ends.i.z ? ends.i : ends.j;
}

EPlanLayer LayerOf(ECutMaterial material, bool isOfSteel) noexcept
{
    const bool isSteel = material == ECutMaterial::Steel || (material == ECutMaterial::Own && isOfSteel);
    return isSteel ? EPlanLayer::Steel : EPlanLayer::Columns;
}

}  // namespace

bool Stands(EObject kind, const CPlanEnds& ends) noexcept
{
    constexpr double kUpright = 1e-3;
    const double rise = std::abs(ends.j.z - ends.i.z);
    return LengthOf(RunOf(ends)) <= (kind == EObject::Column ? rise : kUpright * rise);
}

void CPlanColumns::Add(std::size_t position, const CPlanEnds& ends)
{
    constexpr std::int32_t kMarkSize = 160;
    constexpr std::int32_t kLeastLean = 50;
    const CFrameElement& frame = drawing.picture.source.model.frameElements[position];
    const CSectionCut* const cut = drawing.model.CutOf(frame);
    const CPaperPoint head = drawing.scale.ToPaper(PlanOf(UpperOf(ends)));
    const CPaperPoint foot = drawing.scale.ToPaper(PlanOf(&UpperOf(ends) == &ends.i ? ends.j : ends.i));
    std::int32_t reach = kMarkSize / 2;
    if (cut != nullptr) {
        AddCut(frame, *cut, ends, head);
        reach = drawing.scale.ToPaper(std::max(cut->width, cut->height) / 2.0);
    } else {
        drawing.layers.AddPath(EPlanLayer::ColumnMarks, CrossAt(head, kMarkSize), ElementId(frame.number));
    }
    if (std::abs(foot.x - head.x) + std::abs(foot.y - head.y) > kLeastLean) {
        CPathText lean;
        lean.AddLine(head, foot);
        drawing.layers.AddPath(EPlanLayer::Leans, lean);
    }
    reaches.emplace_back(frame.nodeI, reach);
    reaches.emplace_back(frame.nodeJ, reach);
    if (!marks.empty() && IsPieceOf(marks.back(), position, head)) {
        marks.back().text += ", " + std::to_string(frame.number);
    } else {
        marks.push_back({position, head, reach, std::to_string(frame.number)});
    }
}

void CPlanColumns::AddLabels()
{
    constexpr std::int32_t kGap = 50;
    std::sort(reaches.begin(), reaches.end());
    for (const CMark& mark : marks) {
        drawing.labels.Block({mark.middle.x - mark.reach + kGap, mark.middle.y},
                             {mark.middle.x + mark.reach - kGap, mark.middle.y}, mark.reach - kGap);
    }
    for (const CMark& mark : marks) {
        const std::int32_t x = mark.reach + kGap + CPlanLabels::LengthOf(mark.text) / 2;
        const std::int32_t y = mark.reach + kGap + CPlanLabels::kHeight / 2;
        const CPaperPoint middle = mark.middle;
        drawing.labels.Add(mark.text, {{middle.x + x, middle.y - y},
                                       {middle.x - x, middle.y - y},
                                       {middle.x + x, middle.y + y},
                                       {middle.x - x, middle.y + y}});
    }
}

std::int32_t CPlanColumns::ReachAt(std::int32_t node) const
{
    const auto behind = std::upper_bound(reaches.begin(), reaches.end(), node,
                                         [](std::int32_t wanted, const auto& known) { return wanted < known.first; });
    return behind != reaches.begin() && std::prev(behind)->first == node ? std::prev(behind)->second : 0;
}

/// Whether the element at a position is another piece of the column that has the mark.
bool CPlanColumns::IsPieceOf(const CMark& mark, std::size_t position, CPaperPoint middle) const
{
    const COrigin& a = drawing.picture.frameElements[mark.position];
    const COrigin& b = drawing.picture.frameElements[position];
    return a.object == b.object && a.key == b.key && mark.middle == middle;
}

void CPlanColumns::AddCut(const CFrameElement& frame, const CSectionCut& cut, const CPlanEnds& ends, CPaperPoint middle)
{
    const CCutAxes axes = AxesOf(ends, frame.angle);
    const bool isSmall = drawing.scale.ToPaper(std::max(cut.width, cut.height)) < kLeastDetailed;
    std::string id = ElementId(frame.number);
    for (const CCutPart& part : std::span(cut.parts).first(isSmall ? 1 : cut.parts.size())) {
        CPathText path;
        CPathText hollow;
        for (const CCutLoop& loop : part.loops) {
            AddLoop(path, drawing.scale, loop, axes, middle);
            if (loop.isHole && part.material == ECutMaterial::Own && !isSmall) {
                AddLoop(hollow, drawing.scale, loop, axes, middle);
            }
        }
        if (!hollow.Text().empty()) {
            drawing.layers.AddPath(EPlanLayer::Hollows, hollow);
        }
        drawing.layers.AddPath(LayerOf(part.material, drawing.model.IsOfSteel(frame)), path, id);
        id.clear();  // the first part is the element's
    }
}

}  // namespace satwecvt
