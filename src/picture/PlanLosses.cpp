#include "picture/PlanLosses.h"

#include <algorithm>
#include <vector>

namespace satwecvt {

namespace {

void AddShape(CPlanDrawing& drawing, const CLostShape& shape)
{
    const auto& corners = shape.corners;
    if (corners.empty() || !std::all_of(corners.begin(), corners.end(), IsPlace)) {
        ++drawing.notDrawn;
        return;
    }
    std::vector<CPaperPoint> points;
    for (const CPicturePoint& corner : corners) {
        const CPaperPoint point = drawing.scale.ToPaper(PlanOf(corner));
        if (std::find(points.begin(), points.end(), point) == points.end()) {
            points.push_back(point);  // the upper corners of a wall lie on its lower ones
        }
    }
    CPathText path;
    if (points.size() > 2) {
        path.AddPolygon(points);
    } else {
        path.AddPolyline(points);
    }
    drawing.layers.AddPath(EPlanLayer::LostShapes, path);
}

/// A line, or a cross where the load is lost at one point.
void AddLoad(CPlanDrawing& drawing, const CLostLoad& load)
{
    constexpr std::int32_t kCrossSize = 240;
    if (!IsPlace(load.from) || !IsPlace(load.to)) {
        ++drawing.notDrawn;
        return;
    }
    const CPaperPoint from = drawing.scale.ToPaper(PlanOf(load.from));
    const CPaperPoint to = drawing.scale.ToPaper(PlanOf(load.to));
    CPathText path;
    path.AddLine(from, to);
    drawing.layers.AddPath(EPlanLayer::LostLoads, from == to ? CrossAt(from, kCrossSize) : path);
}

}  // namespace

void AddLosses(CPlanDrawing& drawing, const CPlanStory& story)
{
    for (const std::size_t position : story.lostShapes) {
        AddShape(drawing, drawing.picture.lostShapes[position]);
    }
    for (const std::size_t position : story.lostLoads) {
        AddLoad(drawing, drawing.picture.lostLoads[position]);
    }
}

}  // namespace satwecvt
