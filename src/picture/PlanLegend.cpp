#include "picture/PlanLegend.h"

#include "picture/PathText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace satwecvt {

namespace {

constexpr std::int32_t kSampleWidth = 1000;
constexpr std::int32_t kSampleHeight = 280;

/// A sample of a layer around a middle.
CPathText SamplePath(ELayerSample sample, CPaperPoint middle)
{
    const CPaperPoint low{middle.x - kSampleWidth / 2, middle.y - kSampleHeight / 2};
    const CPaperPoint high{middle.x + kSampleWidth / 2, middle.y + kSampleHeight / 2};
    CPathText path;
    switch (sample) {
    case ELayerSample::None:
        return path;
    case ELayerSample::Area:
        path.AddPolygon(std::array<CPaperPoint, 4>{{low, {high.x, low.y}, high, {low.x, high.y}}});
        return path;
    case ELayerSample::Line:
        path.AddLine({low.x, middle.y}, {high.x, middle.y});
        return path;
    case ELayerSample::Cross:
        return CrossAt(middle, kSampleHeight);
    case ELayerSample::Triangle:
        return TriangleBelow({middle.x, low.y}, kSampleHeight);
    case ELayerSample::Circle:
        path.AddCircle(middle, kSampleHeight / 4);
        return path;
    }
    return path;
}

void AddSample(CSvgText& svg, EPlanLayer layer, CPaperPoint middle)
{
    const CLayerLook& look = LookOf(layer);
    const CPathText path = SamplePath(look.sample, middle);
    svg.Open("g " + std::string(look.attributes));
    svg.AddPath(path.Text());
    svg.Close("g");
    if (layer == EPlanLayer::Beams) {
        svg.Open("g " + std::string(kBandFill));
        svg.AddPath(path.Text());
        svg.Close("g");
    }
}

}  // namespace

void AddLegend(CSvgText& svg, const CPlanScale& scale, const CPlanLayers& layers)
{
    constexpr std::int32_t kMargin = 300;
    constexpr std::int32_t kFirstRow = 1250;
    constexpr std::int32_t kRow = 560;
    const std::int32_t left = scale.Field().high.x + kMargin;
    const std::int32_t top = scale.Field().low.y;
    svg.Open(R"(g class="legend" font-size="2.5" fill="#222")");
    svg.AddText({left, top + kFirstRow / 2}, "Legend", R"(font-size="3.5" font-weight="bold")");
    std::int32_t y = top + kFirstRow;
    for (std::size_t i = 0; i < kPlanLayers; ++i) {
        const auto layer = static_cast<EPlanLayer>(i);
        if (layers.IsUsed(layer) && LookOf(layer).sample != ELayerSample::None) {
            AddSample(svg, layer, {left + kSampleWidth / 2, y});
            svg.AddText({left + kSampleWidth + kMargin, y + 80}, LookOf(layer).meaning);
            y += kRow;
        }
    }
    svg.Close("g");
}

}  // namespace satwecvt
