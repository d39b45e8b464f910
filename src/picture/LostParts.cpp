#include "picture/LostParts.h"

#include "check/NodesByNumber.h"
#include "model/Int32.h"
#include "model/LoadRecord.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <utility>

namespace satwecvt {

namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

class CLossCollector {
public:
    CLossCollector(const CSatweModel& satweModel, const CModelFile& modelFile, std::span<const CFinding> allFindings);

    void Add(std::size_t index);
    CLostParts Take() { return std::move(parts); }

private:
    const T_SATWE_STIF_D* StoryOf(const CFinding& finding) const;
    const T_SATWE_STWL_D* WallOf(const CFinding& finding) const;
    const T_SATWE_STPL_D* PlateOf(const CFinding& finding) const;
    const T_SATWE_STLD_D* LoadOf(const CFinding& finding) const;
    std::optional<CNodeRow> LoadedRow(const CFinding& finding) const;

    void AddShape(std::size_t index, std::span<const std::int32_t> corners);
    void AddWall(std::size_t index);
    void AddPlate(std::size_t index);
    void AddTriangles(std::size_t index);
    void AddFlatTriangle(std::size_t index);
    void AddEdgeLoad(std::size_t index);
    void AddLoadAtEnd(std::size_t index);

    const CSatweModel& input;
    std::span<const CFinding> findings;
    CNodesByNumber nodes;
    std::map<std::int64_t, T_SATWE_STLD_D> loadsByLine;  // those that findings tell of
    CLostParts parts;
};

bool NeedsItsLoad(const CFinding& finding)
{
    return finding.code == EFinding::LoadOnLostWall;
}

CLossCollector::CLossCollector(const CSatweModel& satweModel, const CModelFile& modelFile,
                               std::span<const CFinding> allFindings)
    : input(satweModel),
      findings(allFindings),
      nodes(modelFile)
{
    for (const CFinding& finding : findings) {
        if (NeedsItsLoad(finding)) {
            loadsByLine.try_emplace(finding.place.line);
        }
    }
    if (!loadsByLine.empty()) {
        input.loads.Visit([this](const T_SATWE_STLD_D& load) {
            if (const auto wanted = loadsByLine.find(load.line); wanted != loadsByLine.end()) {
                wanted->second = load;
            }
        });
    }
}

const T_SATWE_STIF_D* CLossCollector::StoryOf(const CFinding& finding) const
{
    return finding.story ? input.stories.Find(*finding.story) : nullptr;
}

const T_SATWE_STWL_D* CLossCollector::WallOf(const CFinding& finding) const
{
    const T_SATWE_STIF_D* const story = StoryOf(finding);
    return story == nullptr || !finding.key ? nullptr : story->walls.Find(*finding.key);
}

const T_SATWE_STPL_D* CLossCollector::PlateOf(const CFinding& finding) const
{
    const T_SATWE_STIF_D* const story = StoryOf(finding);
    return story == nullptr || !finding.key ? nullptr : story->plates.Find(*finding.key);
}

const T_SATWE_STLD_D* CLossCollector::LoadOf(const CFinding& finding) const
{
    const auto load = loadsByLine.find(finding.place.line);
    return load == loadsByLine.end() ? nullptr : &load->second;
}

/// The corners that are in the model; one alone, or none, is no shape.
void CLossCollector::AddShape(std::size_t index, std::span<const std::int32_t> corners)
{
    CLostShape shape{index, {}};
    for (const std::int32_t number : corners) {
        if (const CNode* const node = nodes.Find(number)) {
            shape.corners.push_back(PlaceOf(*node));
        }
    }
    if (shape.corners.size() > 1) {
        parts.shapes.push_back(std::move(shape));
    }
}

void CLossCollector::AddWall(std::size_t index)
{
    if (const T_SATWE_STWL_D* const wall = WallOf(findings[index])) {
        const CNodeRow& upper = wall->firstListA;
        const CNodeRow& lower = wall->firstListB;
        AddShape(index, std::array{lower.first, lower.last, upper.last, upper.first});
    }
}

/// All corners of a slab that has too few for a triangle.
void CLossCollector::AddPlate(std::size_t index)
{
    if (const T_SATWE_STPL_D* const plate = PlateOf(findings[index])) {
        const std::span<const std::int32_t> corners(StoryOf(findings[index])->plateVertices);
        AddShape(index, corners.subspan(plate->firstVertex, static_cast<std::size_t>(plate->storedVertices)));
    }
}

/// The triangles of a slab with a corner that is not in the model.
void CLossCollector::AddTriangles(std::size_t index)
{
    const T_SATWE_STPL_D* const plate = PlateOf(findings[index]);
    if (plate == nullptr) {
        return;
    }
    const std::int32_t corners = std::min(plate->vertexCount, plate->storedVertices);
    const std::int32_t* const outline = StoryOf(findings[index])->plateVertices.data() + plate->firstVertex;
    for (std::int32_t t = 1; t + 1 < corners; ++t) {
        const std::array triangle{outline[0], outline[t], outline[t + 1]};
        const bool isWhole = std::all_of(triangle.begin(), triangle.end(),
                                         [&](std::int32_t node) { return nodes.Find(node) != nullptr; });
        if (!isWhole) {
            AddShape(index, triangle);
        }
    }
}

/// The finding tells which triangle of the slab it is, counted from 1.
void CLossCollector::AddFlatTriangle(std::size_t index)
{
    const T_SATWE_STPL_D* const plate = PlateOf(findings[index]);
    const std::int32_t t = TruncateToInt32(findings[index].values[0]);
    if (plate != nullptr && t >= 1 && t < plate->storedVertices - 1) {
        const std::int32_t* const outline = StoryOf(findings[index])->plateVertices.data() + plate->firstVertex;
        AddShape(index, std::array{outline[0], outline[t], outline[t + 1]});
    }
}

/// A line load on the upper edge of a wall that is not there.
void CLossCollector::AddEdgeLoad(std::size_t index)
{
    const T_SATWE_STWL_D* const wall = WallOf(findings[index]);
    const T_SATWE_STLD_D* const load = LoadOf(findings[index]);
    if (wall == nullptr || load == nullptr) {
        return;
    }
    const CNode* const from = nodes.Find(wall->firstListA.last);
    const CNode* const to = nodes.Find(wall->firstListA.first);
    if (from != nullptr && to != nullptr) {
        parts.loads.push_back({index, PlaceOf(*from), PlaceOf(*to), -load->value[0], -load->value[0]});
    }
}

/// The two nodes between which the loaded beam, or the upper row of the loaded wall, lies; none where it is neither.
std::optional<CNodeRow> CLossCollector::LoadedRow(const CFinding& finding) const
{
    if (finding.object == EObject::Wall) {
        const T_SATWE_STWL_D* const wall = WallOf(finding);
        return wall == nullptr ? std::nullopt : std::optional(wall->firstListA);
    }
    const T_SATWE_STIF_D* const story = StoryOf(finding);
    const bool isOnBeam = finding.object == EObject::Beam && story != nullptr && finding.key;
    const T_SATWE_STBM_D* const beam = isOnBeam ? story->beams.Find(*finding.key) : nullptr;
    return beam == nullptr ? std::nullopt : std::optional(CNodeRow{WrappedAbs(beam->nodeI), WrappedAbs(beam->nodeJ)});
}

/// A load that is left out with one of the two nodes, or a part of one that is cut at end j.
void CLossCollector::AddLoadAtEnd(std::size_t index)
{
    const CFinding& finding = findings[index];
    const std::optional<CNodeRow> row = LoadedRow(finding);
    if (!row) {
        return;
    }
    const CNode* const first = nodes.Find(row->first);
    const CNode* const last = nodes.Find(row->last);
    if (const CNode* const place = last != nullptr ? last : first) {
        const double value = finding.code == EFinding::LoadCut ? -finding.values[0] : kUnknown;
        parts.loads.push_back({index, PlaceOf(*place), PlaceOf(*place), value, value});
    }
}

void CLossCollector::Add(std::size_t index)
{
    switch (findings[index].code) {
    case EFinding::WallCornerMissing:
    case EFinding::WallNotUpright:
        return AddWall(index);
    case EFinding::PlateTooFewCorners:
        return AddPlate(index);
    case EFinding::PlateCornerMissing:
        return AddTriangles(index);
    case EFinding::FlatTriangle:
        return AddFlatTriangle(index);
    case EFinding::LoadOnLostWall:
        return AddEdgeLoad(index);
    case EFinding::LoadCut:
    case EFinding::LoadNodeMissing:
        return AddLoadAtEnd(index);
    default:
        return;
    }
}

}  // namespace

CLostParts LostParts(const CSatweModel& input, const CModelFile& model, std::span<const CFinding> findings)
{
    CLossCollector losses(input, model, findings);
    for (std::size_t index = 0; index < findings.size(); ++index) {
        losses.Add(index);
    }
    return losses.Take();
}

}  // namespace satwecvt
