#include "writer/PlateElements.h"

#include "geometry/MathFunc.h"
#include "model/Int32.h"
#include "writer/WriteLine.h"

namespace satwecvt {

namespace {

std::int32_t VertexAt(const T_SATWE_STIF_D& story, const T_SATWE_STPL_D& plate, std::int32_t position)
{
    if (position >= plate.storedVertices) {
        throw CInvalidArgument("a plate with fewer vertices than it announces");
    }
    return story.plateVertices[plate.firstVertex + static_cast<std::size_t>(position)];
}

std::array<double, 3> Difference(const T_SATWE_STND_D& to, const T_SATWE_STND_D& from)
{
    return {to.x - from.x, to.y - from.y, to.z - from.z};
}

}  // namespace

void CPlateElements::Write(const T_SATWE_STIF_D& story)
{
    for (std::int32_t i = 0; i < story.plateCount; ++i) {
        const T_SATWE_STPL_D& plate = story.plates.At(i);
        bool isReported = false;
        for (std::int32_t t = 1; t < std::int64_t{plate.vertexCount} - 1; ++t) {
            const bool lacksCorner = WriteTriangle(story, plate, t) == ETriangle::CornerMissing;
            if (lacksCorner && !isReported) {
                WriteLine(output.messageFile, "The plate(story id:%d,plate id:%d) has invalid shape\n", story.storyNo,
                          story.plates.KeyAt(i));
                ++output.counts.warnings;
                isReported = true;
            }
        }
    }
}

/// Triangle t, counted from 1, has the outline's first vertex and the vertices at t and t + 1.
CPlateElements::ETriangle CPlateElements::WriteTriangle(const T_SATWE_STIF_D& story, const T_SATWE_STPL_D& plate,
                                                        std::int32_t t)
{
    const std::int32_t grade = TruncateToInt32(story.storyValues[4]);
    const std::int32_t thickness = output.model.FindOrAddThickness(plate.thickness);
    const std::int32_t material = output.model.FindOrAddMaterial(T_SATWE_MATL_D::kConcrete, grade, 0);
    const std::array<std::int32_t, 3> numbers{VertexAt(story, plate, 0), VertexAt(story, plate, t),
                                              VertexAt(story, plate, t + 1)};
    const T_SATWE_STND_D* corner = output.writtenNodes.Find(numbers[0]);
    const T_SATWE_STND_D* second = output.writtenNodes.Find(numbers[1]);
    const T_SATWE_STND_D* third = output.writtenNodes.Find(numbers[2]);
    if (corner == nullptr || second == nullptr || third == nullptr) {
        return ETriangle::CornerMissing;
    }
    if (PointsOneWay(*corner, *second, *third)) {
        return ETriangle::PointsOneWay;
    }
    WriteLine(output.modelFile, "  %d, PLATE, %d, %d, %d, %d, %d, 0, 1\n", WrappedSum(plate.seq, t - 1), material,
              thickness, numbers[0], numbers[1], numbers[2]);
    ++output.counts.plates;
    return ETriangle::Written;
}

/// Whether the edges from a corner to the other two point exactly the same way. A NaN is not 0: such a triangle stays.
bool CPlateElements::PointsOneWay(const T_SATWE_STND_D& corner, const T_SATWE_STND_D& second,
                                  const T_SATWE_STND_D& third)
{
    CMathFunc::Normalize(Difference(second, corner).data(), u.data());
    CMathFunc::Normalize(Difference(third, corner).data(), w.data());
    return CMathFunc::AngleDeg(u.data(), w.data()) == 0.0;
}

}  // namespace satwecvt
