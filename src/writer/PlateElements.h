#pragma once

#include "model/StoryRecord.h"
#include "writer/ElementBlock.h"

#include <array>
#include <cstdint>

namespace satwecvt {

/// Writes plates as fans of triangles around their first vertex, each triangle one "PLATE" line. A triangle whose two
/// edges point the same way is left out without a word; one with a corner that was never written is left out, and its
/// plate reported once. Both use up their element number.
class CPlateElements {
public:
    explicit CPlateElements(CElementOutput& elementOutput) : output(elementOutput) {}

    /// Writes the plates of a story. A vertex that the outline does not have is the invalid-argument failure.
    void Write(const T_SATWE_STIF_D& story);

private:
    /// What a triangle came to.
    enum class ETriangle { Written, PointsOneWay, CornerMissing };

    ETriangle WriteTriangle(const T_SATWE_STIF_D& story, const T_SATWE_STPL_D& plate, std::int32_t t);
    bool PointsOneWay(const T_SATWE_STND_D& corner, const T_SATWE_STND_D& second, const T_SATWE_STND_D& third);

    CElementOutput& output;

    // The unit vectors of a triangle's two edges. An edge too short to have a direction leaves its vector as the
    // triangle before it did, over plates and stories.
    std::array<double, 3> u{};
    std::array<double, 3> w{};
};

}  // namespace satwecvt
