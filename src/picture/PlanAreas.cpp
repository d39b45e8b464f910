#include "picture/PlanAreas.h"

#include "picture/PlanText.h"
#include "picture/SlabOutline.h"

#include <array>
#include <string>
#include <vector>

namespace satwecvt {

namespace {

CPlanPoint PlanOf(const CNode& node) noexcept
{
    return {node.x, node.y};
}

/// A wall stands on its first two nodes.
void AddWall(CPlanDrawing& drawing, const CPlanarElement& wall)
{
    const CNode* const from = drawing.model.NodeOf(wall.nodes[0]);
    const CNode* const to = drawing.model.NodeOf(wall.nodes[1]);
    if (from == nullptr || to == nullptr) {
        ++drawing.notDrawn;
        return;
    }
    const CPlanPoint run{to->x - from->x, to->y - from->y};
    const double length = LengthOf(run);
    const double half = length > 0.0 ? drawing.model.ThicknessOf(wall) / 2.0 / length : 0.0;
    const auto corner = [&](const CNode& node, double side) {
        return drawing.scale.ToPaper({node.x - side * run.y, node.y + side * run.x});
    };
    CPathText path;
    path.AddPolygon(
        std::array<CPaperPoint, 4>{{corner(*from, -half), corner(*to, -half), corner(*to, half), corner(*from, half)}});
    drawing.layers.AddPath(EPlanLayer::Walls, path, ElementId(wall.number));
    drawing.labels.Block(drawing.scale.ToPaper(PlanOf(*from)), drawing.scale.ToPaper(PlanOf(*to)),
                         drawing.scale.ToPaper(half * length));
}

/// The middle of triangles, by their areas.
class CMiddle {
public:
    void Add(CPlanPoint a, CPlanPoint b, CPlanPoint c)
    {
        const double twice = std::abs((b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y));
        area += twice;
        sum = {sum.x + twice * (a.x + b.x + c.x) / 3.0, sum.y + twice * (a.y + b.y + c.y) / 3.0};
        box.Add(a);
        box.Add(b);
        box.Add(c);
    }

    bool HasArea() const noexcept { return area > 0.0; }
    CPlanPoint Point() const noexcept { return {sum.x / area, sum.y / area}; }
    double Width() const noexcept { return box.Width(); }
    double Height() const noexcept { return box.Height(); }

private:
    double area = 0.0;
    CPlanPoint sum;
    CPlanBox box;
};

void AddThickness(CPlanDrawing& drawing, const CPlanarElement& plate, const CMiddle& middle)
{
    constexpr std::int32_t kMargin = 200;
    const double thickness = drawing.model.ThicknessOf(plate);
    const std::string text = "h=" + LengthText(thickness);
    const bool hasRoom = drawing.scale.ToPaper(middle.Width()) > CPlanLabels::LengthOf(text) + kMargin &&
                         drawing.scale.ToPaper(middle.Height()) > CPlanLabels::kHeight + kMargin;
    if (thickness > 0.0 && middle.HasArea() && hasRoom) {
        drawing.labels.Add(text, {drawing.scale.ToPaper(middle.Point())});
    }
}

/// The triangles at these positions are one slab.
void AddSlab(CPlanDrawing& drawing, std::span<const std::size_t> positions)
{
    const auto& elements = drawing.picture.source.model.planarElements;
    std::vector<CSlabTriangle> triangles;
    CMiddle middle;
    for (const std::size_t position : positions) {
        const auto& [a, b, c, none] = elements[position].nodes;
        const std::array<const CNode*, 3> nodes{drawing.model.NodeOf(a), drawing.model.NodeOf(b),
                                                drawing.model.NodeOf(c)};
        if (nodes[0] == nullptr || nodes[1] == nullptr || nodes[2] == nullptr) {
            ++drawing.notDrawn;
            continue;
        }
        triangles.push_back({a, b, c});
        middle.Add(PlanOf(*nodes[0]), PlanOf(*nodes[1]), PlanOf(*nodes[2]));
    }
    CPathText path;
    for (const CSlabLoop& loop : SlabOutline(triangles)) {
        std::vector<CPaperPoint> corners;
        for (const std::int32_t number : loop) {
            corners.push_back(drawing.scale.ToPaper(PlanOf(*drawing.model.NodeOf(number))));
        }
        path.AddPolygon(corners);
    }
    if (!triangles.empty()) {
        const std::int32_t key = drawing.picture.planarElements[positions.front()].key;
        drawing.layers.AddPath(EPlanLayer::Slabs, path, "s" + std::to_string(key));
        AddThickness(drawing, elements[positions.front()], middle);
    }
}

}  // namespace

void AddAreas(CPlanDrawing& drawing, std::span<const std::size_t> positions)
{
    const auto& elements = drawing.picture.source.model.planarElements;
    const auto& origins = drawing.picture.planarElements;
    while (!positions.empty()) {
        const std::size_t first = positions.front();
        std::size_t count = 1;
        if (elements[first].type == EPlanarElement::Wall) {
            AddWall(drawing, elements[first]);
        } else {
            while (count < positions.size() && elements[positions[count]].type == EPlanarElement::Plate &&
                   origins[positions[count]].key == origins[first].key) {
                ++count;
            }
            AddSlab(drawing, positions.first(count));
        }
        positions = positions.subspan(count);
    }
}

}  // namespace satwecvt
