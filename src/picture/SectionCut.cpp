#include "picture/SectionCut.h"

#include "picture/CutLoops.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace satwecvt {

namespace {

using CCut = std::optional<CSectionCut>;

CCut OfOneMaterial(double width, double height, std::optional<CCutLoops> loops)
{
    return loops ? CCut({{{ECutMaterial::Own, std::move(*loops)}}, width, height}) : std::nullopt;
}

CCut CutOfRectangle(const CSection& section)
{
    const double height = section.values[0];
    const double width = section.values[1];
    return ArePositive({height, width}) ? OfOneMaterial(width, height, CCutLoops{BoxLoop(width, height)})
                                        : std::nullopt;
}

CCut CutOfCircle(const CSection& section)
{
    const double diameter = section.values[0];
    return ArePositive({diameter}) ? OfOneMaterial(diameter, diameter, CCutLoops{CircleLoop(diameter)}) : std::nullopt;
}

CCut CutOfPipe(const CSection& section)
{
    return OfOneMaterial(section.values[0], section.values[0], PipeLoops(section.values[0], section.values[1]));
}

CCut CutOfBox(const CSection& section)
{
    const auto& [height, width, web, upper, d5, lower, d7, d8, d9] = section.values;
    return OfOneMaterial(width, height, CHollowBox{height, width, web, upper, lower}.Loops());
}

CCut CutOfH(const CSection& section)
{
    const CFlanged h = CFlanged::Of(section.values);
    return h.IsShape() ? OfOneMaterial(h.Width(), h.height, CCutLoops{h.HLoop()}) : std::nullopt;
}

CCut CutOfChannel(const CSection& section)
{
    const CFlanged channel = CFlanged::Of(section.values);
    const double width = channel.Width();
    return channel.IsShape() ? OfOneMaterial(width, channel.height, CCutLoops{channel.ChannelLoop(-width / 2.0)})
                             : std::nullopt;
}

CCut CutOfTwoChannels(const CSection& section)
{
    const auto& [height, width, web, thickness, gap, d6, d7, d8, d9] = section.values;
    const CFlanged channel{height, web, {width, thickness}, {width, thickness}};
    if (!channel.IsShape() || !(gap >= 0.0)) {
        return std::nullopt;
    }
    const CCutLoop right = channel.ChannelLoop(gap / 2.0);
    return OfOneMaterial(2.0 * width + gap, height, CCutLoops{right, Mirrored(right)});
}

/// An H with a T, lying on its side, on each face of its web.
CCut CutOfCross(const CSection& section)
{
    const auto& [height, width, web, thickness, d15, depth, flange, stem, flangeThickness] = section.values;
    const CFlanged h{height, web, {width, thickness}, {width, thickness}};
    if (!h.IsShape() || !ArePositive({depth, flange, stem, flangeThickness}) || !FitsInto(depth, flangeThickness) ||
        !FitsInto(flange, stem)) {
        return std::nullopt;
    }
    const double face = web / 2.0;
    const double outside = face + depth;
    const double inside = outside - flangeThickness;
    const CCutLoop tee{{{face, -stem / 2.0},
                        {inside, -stem / 2.0},
                        {inside, -flange / 2.0},
                        {outside, -flange / 2.0},
                        {outside, flange / 2.0},
                        {inside, flange / 2.0},
                        {inside, stem / 2.0},
                        {face, stem / 2.0}}};
    return OfOneMaterial(std::max(width, 2.0 * outside), std::max(height, flange),
                         CCutLoops{h.HLoop(), tee, Mirrored(tee)});
}

CCut Composite(double width, double height, CCutLoop concrete, CCutLoops steel)
{
    return CSectionCut{
        {{ECutMaterial::Concrete, {std::move(concrete)}}, {ECutMaterial::Steel, std::move(steel)}}, width, height};
}

CCut CutOfFilledPipe(const CSection& section)
{
    const auto& [core, d2, diameter, wall, d5, d6, d7, d8] = section.further;
    auto steel = PipeLoops(diameter, wall);
    return steel && ArePositive({core}) && FitsInto(diameter, core)
               ? Composite(diameter, diameter, CircleLoop(core), std::move(*steel))
               : std::nullopt;
}

/// Concrete around an H or a box, whose height and width are `further[2]` and `further[3]`.
CCut CutOfEncased(const CSection& section, std::optional<CCutLoops> steel)
{
    const double height = section.further[0];
    const double width = section.further[1];
    const bool isInside = FitsInto(height, section.further[2]) && FitsInto(width, section.further[3]);
    return steel && ArePositive({height, width}) && isInside
               ? Composite(width, height, BoxLoop(width, height), std::move(*steel))
               : std::nullopt;
}

CCut CutOfEncasedH(const CSection& section)
{
    const auto& [d1, d2, height, width, web, thickness, d7, d8] = section.further;
    const CFlanged h{height, web, {width, thickness}, {width, thickness}};
    return h.IsShape() ? CutOfEncased(section, CCutLoops{h.HLoop()}) : std::nullopt;
}

CCut CutOfEncasedBox(const CSection& section)
{
    const auto& [d1, d2, height, width, web, thickness, d7, d8] = section.further;
    return CutOfEncased(section, CHollowBox{height, width, web, thickness, thickness}.Loops());
}

struct CShape {
    std::string_view name;
    CCut (*cut)(const CSection& section);
};

constexpr std::array<CShape, 11> kShapes{{{"SB", CutOfRectangle},
                                          {"H", CutOfH},
                                          {"SR", CutOfCircle},
                                          {"C", CutOfChannel},
                                          {"B", CutOfBox},
                                          {"P", CutOfPipe},
                                          {"2C", CutOfTwoChannels},
                                          {"H2T", CutOfCross},
                                          {"EPC", CutOfFilledPipe},
                                          {"RHB", CutOfEncasedH},
                                          {"RBC", CutOfEncasedBox}}};

}  // namespace

std::optional<CSectionCut> SectionCut(const CSection& section, double longest)
{
    const auto shape =
        std::find_if(kShapes.begin(), kShapes.end(), [&](const CShape& known) { return known.name == section.shape; });
    CCut cut = shape == kShapes.end() ? std::nullopt : shape->cut(section);
    return cut && cut->width <= longest && cut->height <= longest ? cut : std::nullopt;
}

}  // namespace satwecvt
