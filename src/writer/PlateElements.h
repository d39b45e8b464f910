#pragma once

#include "finding/InvalidArgument.h"
#include "geometry/TriangleEdges.h"
#include "model/Int32.h"
#include "model/StoryRecord.h"
#include "writer/ElementOutput.h"

#include <cstddef>
#include <cstdint>

namespace satwecvt {

/// Writes plates as fans of triangles around their first vertex, each triangle one "PLATE" line. A triangle whose two
/// edges point the same way is left out, and so is one with a corner that was never written. Both use up their element
/// number. Corners are told once for each plate.
class CPlateElements {
public:
    explicit CPlateElements(CElementOutput& elementOutput) : output(elementOutput) {}

    /// Writes the plates of a story. A vertex that the outline does not have is the invalid-argument failure.
    void Write(const T_SATWE_STIF_D& story);

private:
    /// What a triangle came to.
    enum class ETriangle { Written, PointsOneWay, CornerMissing };

    /// A plate in its story.
    struct CPlateInStory {
        const T_SATWE_STIF_D& story;
        const T_SATWE_STPL_D& plate;
        std::int32_t key;

        std::int32_t VertexAt(std::int32_t position) const
        {
            if (position >= plate.storedVertices) {
                throw TooFewVertices();
            }
            return story.plateVertices[plate.firstVertex + static_cast<std::size_t>(position)];
        }
        std::int32_t ElementOf(std::int32_t triangle) const { return WrappedSum(plate.seq, triangle - 1); }
        CInvalidArgument TooFewVertices() const;
        CFinding Finding(EFinding code, std::int32_t triangle) const;
    };

    /// The property numbers of a plate.
    struct CPlateProperties {
        std::int32_t material = 0;
        std::int32_t thickness = 0;
    };

    void WritePlate(const CPlateInStory& plate);
    ETriangle WriteTriangle(const CPlateInStory& plate, const CPlateProperties& properties, std::int32_t t);
    CFinding CornerMissing(const CPlateInStory& plate, std::int32_t t) const;

    CElementOutput& output;

    CTriangleEdges edges;  // one for all triangles: what it keeps goes over plates and stories
};

}  // namespace satwecvt
