#include "picture/PlanSheet.h"

#include "picture/PathText.h"
#include "picture/PlanText.h"

#include <array>
#include <cmath>
#include <string>

namespace satwecvt {

namespace {

CPathText RectangleOf(CPaperPoint low, CPaperPoint high)
{
    CPathText path;
    path.AddPolygon(std::array<CPaperPoint, 4>{{low, {high.x, low.y}, high, {low.x, high.y}}});
    return path;
}

/// A short stroke through the end of a dimension line.
void AddTick(CPathText& path, CPaperPoint at)
{
    constexpr std::int32_t kHalf = 100;
    path.AddLine({at.x - kHalf, at.y + kHalf}, {at.x + kHalf, at.y - kHalf});
}

/// A dimension line, with a line from what it measures to each of its ends.
CPathText DimensionPath(CPaperPoint from, CPaperPoint to, CPaperPoint objectFrom, CPaperPoint objectTo)
{
    CPathText path;
    path.AddLine(objectFrom, from);
    path.AddLine(objectTo, to);
    path.AddLine(from, to);
    AddTick(path, from);
    AddTick(path, to);
    return path;
}

/// A dimension to the millimetre.
std::string DimensionText(double length, const CPlanScale& scale)
{
    const double toMillimetres = scale.IsInMetres() ? 1000.0 : 1.0;
    return LengthText(std::floor(length * toMillimetres + 0.5) / toMillimetres);
}

/// The longest round length in metres that the bar shows on 50 mm.
std::int64_t BarMetres(std::int64_t denominator)
{
    constexpr std::int64_t kMost = 50;
    const auto fits = [&](std::int64_t metres) { return metres * 1000 <= kMost * denominator; };
    std::int64_t power = 1;
    while (fits(power * 10)) {
        power *= 10;
    }
    return fits(5 * power) ? 5 * power : fits(2 * power) ? 2 * power : power;
}

}  // namespace

void AddBorder(CSvgText& svg, const CPlanScale& scale)
{
    const auto [low, high] = BorderOf(scale.Paper());
    CPathText path;
    path.AddLine({high.x - kTitleWidth, low.y}, {high.x - kTitleWidth, high.y});
    svg.Open(R"(g class="border" fill="none" stroke="#111" stroke-width=".7")");
    svg.AddPath(RectangleOf(low, high).Text());
    svg.AddPath(path.Text());
    svg.Close("g");
}

void AddDimensions(CSvgText& svg, const CPlanScale& scale, const CPlanModel& model)
{
    constexpr std::int32_t kAway = 900;
    constexpr std::int32_t kGap = 250;
    constexpr std::int32_t kAbove = 80;
    const CPlanBox& axes = model.Axes();
    const CPaperPoint corner = scale.ToPaper(model.Drawn().low);
    const CPaperPoint low = scale.ToPaper(axes.low);
    const CPaperPoint high = scale.ToPaper(axes.high);
    svg.Open(
        R"(g class="dimensions" fill="none" stroke="#444" stroke-width=".18" font-size="2.5" text-anchor="middle")");
    svg.AddTitle("Overall dimensions from node to node");
    if (low.x < high.x) {
        const std::int32_t y = corner.y + kAway;
        svg.AddPath(DimensionPath({low.x, y}, {high.x, y}, {low.x, corner.y + kGap}, {high.x, corner.y + kGap}).Text());
        svg.AddText({(low.x + high.x) / 2, y - kAbove}, DimensionText(axes.Width(), scale),
                    R"(fill="#222" stroke="none")");
    }
    if (high.y < low.y) {
        const std::int32_t x = corner.x - kAway;
        svg.AddPath(DimensionPath({x, low.y}, {x, high.y}, {corner.x - kGap, low.y}, {corner.x - kGap, high.y}).Text());
        svg.Open("g transform=\"rotate(-90)\" fill=\"#222\" stroke=\"none\"");
        svg.AddText({-(low.y + high.y) / 2, x - kAbove}, DimensionText(axes.Height(), scale));
        svg.Close("g");
    }
    svg.Close("g");
}

void AddAxes(CSvgText& svg, const CPlanScale& scale)
{
    constexpr std::int32_t kInside = 700;
    constexpr std::int32_t kArm = 1000;
    constexpr std::int32_t kHead = 150;
    constexpr std::int32_t kLetter = 220;
    const auto [low, high] = scale.Field();
    const CPaperPoint origin{low.x + kInside, high.y - kInside};
    const CPaperPoint x{origin.x + kArm, origin.y};
    const CPaperPoint y{origin.x, origin.y - kArm};
    CPathText path;
    path.AddLine({origin.x - kHead, origin.y}, x);
    path.AddLine({origin.x, origin.y + kHead}, y);
    path.AddPolyline(std::array<CPaperPoint, 3>{{{x.x - kHead, x.y - kHead}, x, {x.x - kHead, x.y + kHead}}});
    path.AddPolyline(std::array<CPaperPoint, 3>{{{y.x - kHead, y.y + kHead}, y, {y.x + kHead, y.y + kHead}}});
    svg.Open(R"(g class="axes" fill="none" stroke="#222" stroke-width=".25" font-size="2.5" text-anchor="middle")");
    svg.AddTitle("Global directions x and y");
    svg.AddPath(path.Text());
    svg.AddText({x.x + kLetter, x.y + kLetter / 3}, "x", R"(fill="#222" stroke="none")");
    svg.AddText({y.x, y.y - kLetter / 2}, "y", R"(fill="#222" stroke="none")");
    svg.Close("g");
}

void AddScaleBar(CSvgText& svg, const CPlanScale& scale)
{
    constexpr std::int32_t kParts = 5;
    constexpr std::int32_t kInside = 900;
    constexpr std::int32_t kThick = 120;
    constexpr std::int32_t kBelow = 300;
    const std::int64_t metres = BarMetres(scale.Denominator());
    const auto length = static_cast<std::int32_t>(metres * 100'000 / scale.Denominator());
    const auto [low, high] = scale.Field();
    const CPaperPoint start{high.x - kInside - length, high.y - kInside};
    const auto at = [&](std::int32_t part) { return start.x + length * part / kParts; };
    svg.Open(
        R"(g class="scale-bar" fill="#fff" stroke="#222" stroke-width=".18" font-size="2.2" text-anchor="middle")");
    svg.AddPath(RectangleOf(start, {start.x + length, start.y + kThick}).Text());
    svg.Open(R"(g fill="#222")");
    for (std::int32_t part = 0; part < kParts; part += 2) {
        svg.AddPath(RectangleOf({at(part), start.y}, {at(part + 1), start.y + kThick}).Text());
    }
    svg.Close("g");
    svg.Open(R"(g fill="#222" stroke="none")");
    svg.AddText({start.x, start.y + kThick + kBelow}, "0");
    svg.AddText({start.x + length, start.y + kThick + kBelow}, std::to_string(metres) + " m");
    svg.Close("g");
    svg.Close("g");
}

}  // namespace satwecvt
