#pragma once

#include "geometry/MathFunc.h"
#include "model/Int32.h"
#include "writer/LoadBlock.h"

#include <cstdint>
#include <optional>

namespace satwecvt {

/// The smaller of 1.0 and x; a NaN stays a NaN.
constexpr double SmallerOfOneAnd(double x) noexcept
{
    return 1.0 < x ? 1.0 : x;
}

/// The beam that a load acts on.
struct CLoadedBeam {
    const T_SATWE_STIF_D* story;
    std::int32_t element;
    double length;  // between its nodes

    /// A distance from end i as a fraction of the length, capped at 1.
    double Fraction(double distance) const noexcept { return SmallerOfOneAnd(distance / length); }
};

/// Tells why a load has no beam.
void TellMissingBeam(CLoadOutput& output, const T_SATWE_STLD_D& load);

/// The beam of a load; none, with a finding told, when the story, the beam or one of its nodes is missing.
inline std::optional<CLoadedBeam> FindLoadedBeam(CLoadOutput& output, const T_SATWE_STLD_D& load)
{
    const T_SATWE_STIF_D* story = output.model.stories.Find(load.storyId);
    const T_SATWE_STBM_D* beam = story != nullptr ? story->beams.Find(load.memberId) : nullptr;
    if (beam != nullptr) {
        const T_SATWE_STND_D* i = output.writtenNodes.Find(WrappedAbs(beam->nodeI));
        const T_SATWE_STND_D* j = output.writtenNodes.Find(WrappedAbs(beam->nodeJ));
        if (i != nullptr && j != nullptr) {
            return CLoadedBeam{story, beam->seq, CMathFunc::Distance(i->x, i->y, i->z, j->x, j->y, j->z)};
        }
    }
    TellMissingBeam(output, load);
    return std::nullopt;
}

}  // namespace satwecvt
