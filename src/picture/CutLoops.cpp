#include "picture/CutLoops.h"

#include <algorithm>
#include <cmath>

namespace satwecvt {

namespace {

CCutLoop Rectangle(CCutPoint low, CCutPoint high)
{
    return {{low, {high.y, low.z}, high, {low.y, high.z}}};
}

CCutLoop Hole(CCutLoop loop)
{
    std::reverse(loop.corners.begin(), loop.corners.end());
    loop.isHole = true;
    return loop;
}

/// A flange that is not there is as wide as the web, and has no thickness.
CFlange FlangeBeside(double web, CFlange flange)
{
    return flange.width == 0.0 || flange.thickness == 0.0 ? CFlange{web, 0.0} : flange;
}

bool IsFlangeOf(double web, CFlange flange)
{
    return ArePositive({flange.width}) && flange.thickness >= 0.0 && FitsInto(flange.width, web);
}

}  // namespace

bool ArePositive(std::initializer_list<double> dimensions)
{
    return std::all_of(dimensions.begin(), dimensions.end(), [](double d) { return d > 0.0 && std::isfinite(d); });
}

bool FitsInto(double outer, double inner)
{
    constexpr double kRounding = 1e-5;
    return inner <= outer * (1.0 + kRounding);
}

CCutLoop BoxLoop(double width, double height)
{
    return Rectangle({-width / 2.0, -height / 2.0}, {width / 2.0, height / 2.0});
}

CCutLoop CircleLoop(double diameter)
{
    return {{}, diameter / 2.0};
}

std::optional<CCutLoops> PipeLoops(double diameter, double wall)
{
    if (!ArePositive({diameter, wall}) || !FitsInto(diameter, 2.0 * wall)) {
        return std::nullopt;
    }
    CCutLoops loops{CircleLoop(diameter)};
    if (2.0 * wall < diameter) {
        loops.push_back(Hole(CircleLoop(diameter - 2.0 * wall)));
    }
    return loops;
}

std::optional<CCutLoops> CHollowBox::Loops() const
{
    if (!ArePositive({height, width, web, upper, lower}) || !FitsInto(width, 2.0 * web) ||
        !FitsInto(height, upper + lower)) {
        return std::nullopt;
    }
    const CCutPoint low{web - width / 2.0, lower - height / 2.0};
    const CCutPoint high{width / 2.0 - web, height / 2.0 - upper};
    CCutLoops loops{BoxLoop(width, height)};
    if (low.y < high.y && low.z < high.z) {
        loops.push_back(Hole(Rectangle(low, high)));
    }
    return loops;
}

CFlanged CFlanged::Of(std::span<const double, 9> values)
{
    const double web = values[2];
    return {values[0], web, FlangeBeside(web, {values[1], values[3]}), FlangeBeside(web, {values[4], values[5]})};
}

bool CFlanged::IsShape() const
{
    return ArePositive({height, web}) && IsFlangeOf(web, upper) && IsFlangeOf(web, lower) &&
           FitsInto(height, upper.thickness + lower.thickness);
}

double CFlanged::Width() const
{
    return std::max(upper.width, lower.width);
}

CCutLoop CFlanged::HLoop() const
{
    const double low = -height / 2.0;
    const double high = height / 2.0;
    const double side = web / 2.0;
    const double upperEnd = upper.width / 2.0;
    const double lowerEnd = lower.width / 2.0;
    const double lowFace = low + lower.thickness;
    const double highFace = high - upper.thickness;
    return {{{-lowerEnd, low},
             {lowerEnd, low},
             {lowerEnd, lowFace},
             {side, lowFace},
             {side, highFace},
             {upperEnd, highFace},
             {upperEnd, high},
             {-upperEnd, high},
             {-upperEnd, highFace},
             {-side, highFace},
             {-side, lowFace},
             {-lowerEnd, lowFace}}};
}

CCutLoop CFlanged::ChannelLoop(double back) const
{
    const double low = -height / 2.0;
    const double high = height / 2.0;
    const double face = back + web;
    return {{{back, low},
             {back + lower.width, low},
             {back + lower.width, low + lower.thickness},
             {face, low + lower.thickness},
             {face, high - upper.thickness},
             {back + upper.width, high - upper.thickness},
             {back + upper.width, high},
             {back, high}}};
}

CCutLoop Mirrored(CCutLoop loop)
{
    std::reverse(loop.corners.begin(), loop.corners.end());
    for (CCutPoint& corner : loop.corners) {
        corner.y = -corner.y;
    }
    return loop;
}

}  // namespace satwecvt
