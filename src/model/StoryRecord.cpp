#include "model/StoryRecord.h"

#include <algorithm>

namespace satwecvt {

const std::array<double, 6>* T_SATWE_STIF_D::OffsetsOf(const T_SATWE_STBM_D& beam) const noexcept
{
    if (!beam.HasExtra() || beamExtras.empty()) {
        return nullptr;
    }
    // Numbers that count up may wrap at 32 bits; how far they are from the first one does not.
    const auto first = static_cast<std::uint32_t>(beamExtras.front().seq);
    const auto distance = [first](std::int32_t seq) { return static_cast<std::uint32_t>(seq) - first; };
    const auto found =
        std::lower_bound(beamExtras.begin(), beamExtras.end(), distance(beam.seq),
                         [&](const CBeamExtra& extra, std::uint32_t wanted) { return distance(extra.seq) < wanted; });
    const bool isThere = found != beamExtras.end() && found->seq == beam.seq;
    return isThere ? &found->offsets : nullptr;
}

}  // namespace satwecvt
