// What the beam load block tells of a load that it writes otherwise than it stands in the load file, or that stands
// there oddly: distances are compared with a millionth of the beam's length to spare.
#pragma once

#include "writer/LoadedBeam.h"
#include "writer/WriterFindings.h"

#include <cmath>

namespace satwecvt {

/// Whether the sloping parts of a trapezoid, each this fraction of the beam long, count as meeting at mid-span: then it
/// is a triangle.
inline bool MeetAtMidSpan(double fraction) noexcept
{
    constexpr double kTolerance = 0.001;
    return fraction > 0.5 || std::abs(fraction - 0.5) <= kTolerance;
}

/// The part of a beam that a load acts on, as distances from end i. Of a trapezoid, its sloping part at end i alone.
struct CLoadReach {
    double start;
    double end;
};

constexpr CLoadReach ReachOf(const T_SATWE_STLD_D& load) noexcept
{
    const auto& value = load.value;
    switch (load.loadType) {
    case ELoadType::BeamLinear:
        return {value[2], value[3]};
    case ELoadType::BeamTriangle:
        return {value[1], value[1] + 2.0 * value[2]};
    default:
        return {value[1], value[1]};
    }
}

/// Whether there is nothing to tell of a load that was written: true for nearly all of them.
inline bool IsUsual(const CLoadedBeam& beam, const T_SATWE_STLD_D& load) noexcept
{
    const double toSpare = kLengthToSpare * beam.length;
    const auto [start, end] = ReachOf(load);
    if (start < -toSpare || end < start - toSpare) {
        return false;
    }
    if (load.loadType == ELoadType::BeamTrapezoid) {
        return !MeetAtMidSpan(beam.Fraction(end)) || std::abs(end - 0.5 * beam.length) <= toSpare;
    }
    return !(start > beam.length + toSpare || end > beam.length + toSpare);
}

/// Tells of a load that is not usual.
void TellUnusual(CLoadOutput& output, const CLoadedBeam& beam, const T_SATWE_STLD_D& load);

}  // namespace satwecvt
