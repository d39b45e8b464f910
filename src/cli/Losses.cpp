#include "cli/Losses.h"

#include <cstddef>

namespace satwecvt {

namespace {

/// "4,990".
std::string Grouped(std::int64_t number)
{
    std::string digits = std::to_string(number);
    for (std::size_t end = digits.size(); end > 3; end -= 3) {
        digits.insert(end - 3, ",");
    }
    return digits;
}

/// Counts the triangles that a plate has lost. Flat ones are no loss; a plate that has no others left is one.
class CPlateTriangles {
public:
    explicit CPlateTriangles(CLosses& allLosses) : losses(allLosses) {}

    void Add(const CFinding& finding)
    {
        if (finding.place.line != line || finding.key.value_or(0) != key) {
            EndPlate();
            line = finding.place.line;
            key = finding.key.value_or(0);
        }
        const bool isFlat = finding.code == EFinding::FlatTriangle;
        flat += isFlat ? 1 : 0;
        missing += isFlat ? 0 : static_cast<std::int64_t>(finding.values[1]);
        all = static_cast<std::int64_t>(finding.values[isFlat ? 1 : 2]);
    }

    /// To be called behind the last plate.
    void EndPlate()
    {
        if (missing > 0 && flat + missing >= all) {
            ++losses.plates;
        } else {
            losses.triangles += missing;
        }
        flat = missing = all = 0;
    }

private:
    CLosses& losses;
    std::int64_t line = 0;
    std::int32_t key = 0;
    std::int64_t flat = 0;
    std::int64_t missing = 0;
    std::int64_t all = 0;
};

void CountRecord(CLosses& losses, const CFinding& finding)
{
    switch (finding.code) {
    case EFinding::WallCornerMissing:
    case EFinding::WallNotUpright:
        ++losses.walls;
        break;
    case EFinding::PlateTooFewCorners:
        ++losses.plates;
        break;
    case EFinding::WallOpening:
        ++losses.openings;
        break;
    case EFinding::LoadType:
        ++losses.otherLoads;
        break;
    case EFinding::LoadBeamMissing:
        ++losses.beamLoads;
        break;
    case EFinding::LoadWallMissing:
    case EFinding::LoadOnLostWall:
        ++losses.pressureLoads;
        break;
    case EFinding::LoadStoryMissing:
        ++(finding.object == EObject::Beam ? losses.beamLoads : losses.pressureLoads);
        break;
    case EFinding::LoadNodeMissing:
        ++(finding.object == EObject::Beam ? losses.beamLoads : losses.nodalLoads);
        break;
    case EFinding::LoadCut:
        ++losses.loadParts;
        break;
    case EFinding::EndsEarly:
        losses.isLoadFileCut = true;
        break;
    default:
        break;
    }
}

/// "a, b and c".
std::string Listed(const std::vector<std::string>& items)
{
    std::string text;
    for (std::size_t i = 0; i < items.size(); ++i) {
        text += i == 0 ? "" : i + 1 < items.size() ? ", " : " and ";
        text += items[i];
    }
    return text;
}

}  // namespace

CLosses CountLosses(const std::vector<CFinding>& findings)
{
    CLosses losses;
    CPlateTriangles plates(losses);
    for (const CFinding& finding : findings) {
        const bool isLoss = finding.severity == ESeverity::Loss;
        losses.losses += isLoss ? 1 : 0;
        losses.doubts += finding.severity == ESeverity::Doubt ? 1 : 0;
        losses.notes += finding.severity == ESeverity::Note ? 1 : 0;
        if (finding.code == EFinding::PlateCornerMissing || finding.code == EFinding::FlatTriangle) {
            plates.Add(finding);
        } else if (isLoss) {
            CountRecord(losses, finding);
        }
    }
    plates.EndPlate();
    return losses;
}

std::string CountText(std::int64_t count, const std::string& noun, const std::string& nouns)
{
    return Grouped(count) + " " + (count == 1 ? noun : nouns);
}

std::string FindingCounts(const CLosses& losses)
{
    return CountText(losses.losses, "loss", "losses") + ", " + CountText(losses.doubts, "doubt", "doubts") + ", " +
           CountText(losses.notes, "note", "notes");
}

std::string LossesText(const CLosses& losses)
{
    std::vector<std::string> lost;
    const auto add = [&](std::int64_t count, const char* noun, const char* nouns) {
        if (count > 0) {
            lost.push_back(CountText(count, noun, nouns));
        }
    };
    add(losses.walls, "wall", "walls");
    add(losses.openings, "opening", "openings");
    add(losses.plates, "plate", "plates");
    add(losses.triangles, "triangle of a plate", "triangles of plates");
    add(losses.Loads(), "load", "loads");
    add(losses.loadParts, "part of a load", "parts of loads");
    if (losses.isLoadFileCut) {
        lost.emplace_back("the end of the load file");
    }
    std::string doubts = losses.doubts > 0 ? CountText(losses.doubts, "doubt", "doubts") : "";
    if (lost.empty()) {
        return doubts;
    }
    return Listed(lost) + " lost" + (doubts.empty() ? "" : ", " + doubts);
}

}  // namespace satwecvt
