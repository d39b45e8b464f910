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

    /// Whether a distributed load reaches beyond end j. A millionth of the length does not count as beyond.
    bool IsCut(const T_SATWE_STLD_D& load) const noexcept
    {
        constexpr double kJustBeyond = 1.000001;
        const auto& value = load.value;
        switch (load.loadType) {
        case ELoadType::BeamLinear:
            return (value[2] > kJustBeyond * length || value[3] > kJustBeyond * length) &&
                   (value[0] != 0.0 || value[1] != 0.0);
        case ELoadType::BeamTriangle:
            return (value[1] > kJustBeyond * length || value[1] + 2.0 * value[2] > kJustBeyond * length) &&
                   value[0] != 0.0;
        default:
            return false;
        }
    }

    /// The force that a distributed load loses where it is cut; below 0 when it gains one.
    double CutForce(const T_SATWE_STLD_D& load) const noexcept;
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
