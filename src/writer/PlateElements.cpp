#include "writer/PlateElements.h"

#include "text/WriteLine.h"
#include "writer/PromisedRecords.h"
#include "writer/WriterFindings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace satwecvt {

namespace {

CTriangleEdges::CVector Difference(const T_SATWE_STND_D& to, const T_SATWE_STND_D& from)
{
    return {to.x - from.x, to.y - from.y, to.z - from.z};
}

}  // namespace

CInvalidArgument CPlateElements::CPlateInStory::TooFewVertices() const
{
    return {{ESource::StructureFile, plate.line},
            "plate " + std::to_string(key) + " of story " + std::to_string(story.key) + " announces " +
                std::to_string(plate.vertexCount) + " corners and has " + std::to_string(plate.storedVertices)};
}

CFinding CPlateElements::CPlateInStory::Finding(EFinding code, std::int32_t triangle) const
{
    return MemberFinding(code, story, EObject::Plate, key, plate.line, ElementOf(triangle));
}

void CPlateElements::Write(const T_SATWE_STIF_D& story)
{
    const CPromisedRecords plates(story.plates, EObject::Plate, &story);
    for (std::int32_t i = 0; i < story.plateCount; ++i) {
        const T_SATWE_STPL_D& plate = plates[i];
        WritePlate({story, plate, plates.KeyAt(i)});
    }
}

void CPlateElements::WritePlate(const CPlateInStory& plate)
{
    if (plate.plate.vertexCount < 3) {
        CFinding finding = plate.Finding(EFinding::PlateTooFewCorners, 1);
        finding.element.reset();
        finding.values[0] = plate.plate.vertexCount;
        output.findings.Tell(finding);
        return;
    }
    bool isReported = false;
    CPlateProperties properties;
    for (std::int32_t t = 1; t < std::int64_t{plate.plate.vertexCount} - 1; ++t) {
        // One look is enough for all triangles: only a thickness that is no number gets a new one each time.
        if (t == 1 || std::isnan(plate.plate.thickness)) {
            properties.thickness = output.tables.FindOrAddThickness(plate.plate.thickness);
            properties.material = output.tables.FindOrAddMaterial(EMaterialType::Concrete, plate.story.PlateGrade(), 0);
        }
        const ETriangle triangle = WriteTriangle(plate, properties, t);
        if (triangle == ETriangle::CornerMissing && !isReported) {
            output.findings.Tell(CornerMissing(plate, t));
            isReported = true;
        } else if (triangle == ETriangle::PointsOneWay) {
            CFinding finding = plate.Finding(EFinding::FlatTriangle, t);
            finding.values = {static_cast<double>(t), static_cast<double>(plate.plate.vertexCount - 2)};
            output.findings.Tell(finding);
        }
    }
}

/// Triangle t, counted from 1, has the outline's first vertex and the vertices at t and t + 1.
CPlateElements::ETriangle CPlateElements::WriteTriangle(const CPlateInStory& plate, const CPlateProperties& properties,
                                                        std::int32_t t)
{
    const std::array<std::int32_t, 3> numbers{plate.VertexAt(0), plate.VertexAt(t), plate.VertexAt(t + 1)};
    const T_SATWE_STND_D* corner = output.writtenNodes.Find(numbers[0]);
    const T_SATWE_STND_D* second = output.writtenNodes.Find(numbers[1]);
    const T_SATWE_STND_D* third = output.writtenNodes.Find(numbers[2]);
    if (corner == nullptr || second == nullptr || third == nullptr) {
        return ETriangle::CornerMissing;
    }
    if (edges.PointOneWay(Difference(*second, *corner), Difference(*third, *corner))) {
        return ETriangle::PointsOneWay;
    }
    WriteLine(output.modelFile, "  %d, PLATE, %d, %d, %d, %d, %d, 0, 1\n", plate.ElementOf(t), properties.material,
              properties.thickness, numbers[0], numbers[1], numbers[2]);
    ++output.counts.plates;
    return ETriangle::Written;
}

/// Triangle t is the first of its plate with a corner that was never written: told is how many there are.
CFinding CPlateElements::CornerMissing(const CPlateInStory& plate, std::int32_t t) const
{
    const auto isMissing = [&](std::int32_t position) {
        return output.writtenNodes.Find(plate.VertexAt(position)) == nullptr;
    };
    const std::int32_t last = std::min(plate.plate.vertexCount, plate.plate.storedVertices) - 2;
    const bool allAreLost = isMissing(0);
    std::int32_t lost = 0;
    for (std::int32_t triangle = t; triangle <= last; ++triangle) {
        lost += allAreLost || isMissing(triangle) || isMissing(triangle + 1) ? 1 : 0;
    }
    CFinding finding = plate.Finding(EFinding::PlateCornerMissing, t);
    const std::int32_t corner = allAreLost ? 0 : isMissing(t) ? t : t + 1;
    finding.values = {static_cast<double>(plate.VertexAt(corner)), static_cast<double>(lost),
                      static_cast<double>(plate.plate.vertexCount - 2)};
    return finding;
}

}  // namespace satwecvt
