#include "picture/PlanLayers.h"

namespace satwecvt {

namespace {

constexpr std::array<CLayerLook, kPlanLayers> kLooks{{
    {"slabs", R"(fill="#f6f3ea" stroke="#bcb296" stroke-width=".13")", "Slab, h its thickness", ELayerSample::Area},
    {"beams", R"(fill="none" stroke="#222" stroke-width=".5" stroke-linejoin="round")", "Beam, as wide as its section",
     ELayerSample::Area},
    {"beam-lines", R"(fill="none" stroke="#222" stroke-width=".35")", "Beam without a known width", ELayerSample::Line},
    {"walls", R"(fill="#c4c4c4" stroke="#222" stroke-width=".18" stroke-linejoin="round")", "Wall", ELayerSample::Area},
    {"leans", R"(fill="none" stroke="#444" stroke-width=".18" stroke-dasharray="4 1 .5 1")",
     "Lean of a column, from its head", ELayerSample::Line},
    {"braces", R"(fill="none" stroke="#1c5fae" stroke-width=".4" stroke-dasharray="3 1.2")", "Brace",
     ELayerSample::Line},
    {"columns", R"(fill="#868686" stroke="#111" stroke-width=".25" stroke-linejoin="round")", "Column of concrete",
     ELayerSample::Area},
    {"hollows", kBandFill, "Inside of hollow columns", ELayerSample::None},
    {"steel", R"(fill="#111" stroke="#111" stroke-width=".1" stroke-linejoin="round")", "Steel of a column",
     ELayerSample::Area},
    {"column-marks", R"(fill="none" stroke="#111" stroke-width=".35")", "Column without a known shape",
     ELayerSample::Cross},
    {"supports", R"(fill="#fff" stroke="#167a47" stroke-width=".3" stroke-linejoin="round")",
     "Support, held in all directions", ELayerSample::Triangle},
    {"hinges", R"(fill="#fff" stroke="#111" stroke-width=".25")", "Hinge", ELayerSample::Circle},
    {"lost", R"(fill="none" stroke="#c8321e" stroke-width=".6" stroke-dasharray="2 1")", "Lost: wall or slab left out",
     ELayerSample::Line},
    {"lost-loads", R"(fill="none" stroke="#c8321e" stroke-width=".35" stroke-dasharray=".8 .5")", "Lost load",
     ELayerSample::Cross},
}};

std::string GroupTag(const CLayerLook& look)
{
    std::string tag = "g class=\"";
    tag += look.name;
    tag += "\" ";
    tag += look.attributes;
    return tag;
}

}  // namespace

const CLayerLook& LookOf(EPlanLayer layer) noexcept
{
    return kLooks[static_cast<std::size_t>(layer)];
}

void CPlanLayers::AddPath(EPlanLayer layer, const CPathText& path, std::string_view id)
{
    ShapesOf(layer).AddPath(path.Text(), id);
}

void CPlanLayers::AddCircle(EPlanLayer layer, CPaperPoint middle, std::int32_t radius)
{
    ShapesOf(layer).AddCircle(middle, radius);
}

void CPlanLayers::AddTo(CSvgText& svg, std::string_view suffix) const
{
    for (std::size_t i = 0; i < kPlanLayers; ++i) {
        const auto layer = static_cast<EPlanLayer>(i);
        if (!IsUsed(layer)) {
            continue;
        }
        if (layer == EPlanLayer::Beams) {
            AddBands(svg, suffix);
        } else {
            AddGroup(svg, layer);
        }
    }
}

void CPlanLayers::AddGroup(CSvgText& svg, EPlanLayer layer) const
{
    const CLayerLook& look = LookOf(layer);
    svg.Open(GroupTag(look));
    svg.AddTitle(look.meaning);
    svg.Add(ShapesOf(layer).Text());
    svg.Close("g");
}

void CPlanLayers::AddBands(CSvgText& svg, std::string_view suffix) const
{
    const CLayerLook& look = LookOf(EPlanLayer::Beams);
    const std::string id = std::string(look.name) + std::string(suffix);
    svg.Open(GroupTag(look));
    svg.AddTitle(look.meaning);
    svg.Open("g id=\"" + id + "\"");
    svg.Add(ShapesOf(EPlanLayer::Beams).Text());
    svg.Close("g");
    svg.Close("g");
    svg.AddEmpty("use href=\"#" + id + "\" " + std::string(kBandFill));
}

CPathText CrossAt(CPaperPoint middle, std::int32_t size)
{
    const std::int32_t half = size / 2;
    CPathText path;
    path.AddLine({middle.x - half, middle.y - half}, {middle.x + half, middle.y + half});
    path.AddLine({middle.x - half, middle.y + half}, {middle.x + half, middle.y - half});
    return path;
}

CPathText TriangleBelow(CPaperPoint top, std::int32_t size)
{
    CPathText path;
    path.AddPolygon(
        std::array<CPaperPoint, 3>{{top, {top.x - size / 2, top.y + size}, {top.x + size / 2, top.y + size}}});
    return path;
}

}  // namespace satwecvt
