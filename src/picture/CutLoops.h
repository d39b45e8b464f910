// The loops that cuts through sections are put together of. What has a hole or legs is none where these do not fit.
#pragma once

#include "picture/SectionCut.h"

#include <initializer_list>
#include <optional>
#include <span>
#include <vector>

namespace satwecvt {

using CCutLoops = std::vector<CCutLoop>;

/// Whether all are numbers above 0.
bool ArePositive(std::initializer_list<double> dimensions);

/// Whether a dimension is no larger than one that it is in. They have six digits, so it may be larger by rounding.
bool FitsInto(double outer, double inner);

CCutLoop BoxLoop(double width, double height);
CCutLoop CircleLoop(double diameter);

/// A pipe, without a hole where the wall leaves none.
std::optional<CCutLoops> PipeLoops(double diameter, double wall);

/// A hollow box, without a hole where its walls leave none.
struct CHollowBox {
    double height;
    double width;
    double web;
    double upper;
    double lower;

    std::optional<CCutLoops> Loops() const;
};

/// A flange of an H or a channel; without width or without thickness it is not there.
struct CFlange {
    double width;
    double thickness;
};

/// An H or a channel.
struct CFlanged {
    double height;
    double web;
    CFlange upper;
    CFlange lower;

    /// From values in the order in which H and C have them.
    static CFlanged Of(std::span<const double, 9> values);

    bool IsShape() const;
    double Width() const;

    CCutLoop HLoop() const;

    /// The back of the web stands at `back`, the flanges point to the right.
    CCutLoop ChannelLoop(double back) const;
};

/// Turned by half a turn around the z axis.
CCutLoop Mirrored(CCutLoop loop);

}  // namespace satwecvt
