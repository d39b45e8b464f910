#include "support/Losses.h"

#include "satwecvt/ConvertSatwe.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <stdexcept>

namespace satwecvt {

namespace {

/// Lines of each kind, as they have to be.
struct CExpectedLines {
    std::int64_t columns = 0;
    std::int64_t walls = 0;
    std::int64_t plates = 0;
    std::int64_t nodalLoads = 0;
    std::int64_t beamLoads = 0;
    std::int64_t pressureLoads = 0;
};

void AddMembers(CExpectedLines& lines, const CSatweModel& input)
{
    for (const T_SATWE_STIF_D& story : input.stories.Records()) {
        for (const T_SATWE_STCL_D& column : story.columns.Records()) {
            lines.columns += column.hasExtra != 0 ? 2 : 1;
        }
        lines.walls += static_cast<std::int64_t>(story.walls.Count());
        for (const T_SATWE_STPL_D& plate : story.plates.Records()) {
            lines.plates += std::max<std::int64_t>(std::int64_t{plate.vertexCount} - 2, 0);
        }
    }
}

/// A dead load has its line under both load cases. A force on a wall comes to its two end nodes.
void AddLoads(CExpectedLines& lines, const CSatweModel& input)
{
    input.loads.Visit([&](const T_SATWE_STLD_D& load) {
        const int times = load.loadCase == 0 ? 2 : 1;
        const CLoadTraits traits = TraitsOf(load.loadType);
        if (traits.block == ELoadBlock::Nodal) {
            lines.nodalLoads += times * (load.loadType == ELoadType::WallForce ? 2 : 1);
        } else if (traits.block == ELoadBlock::Pressure) {
            lines.pressureLoads += times;
        } else if (traits.valueCount > 0) {
            lines.beamLoads += times;
        }
    });
}

bool IsOneOf(EFinding code, std::initializer_list<EFinding> codes)
{
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

void TakeAway(CExpectedLines& lines, const CFinding& finding)
{
    const bool isOfObject = IsOneOf(finding.code, {EFinding::LoadStoryMissing, EFinding::LoadNodeMissing});
    if (IsOneOf(finding.code, {EFinding::WallCornerMissing, EFinding::WallNotUpright})) {
        --lines.walls;
    } else if (finding.code == EFinding::PlateCornerMissing) {
        lines.plates -= static_cast<std::int64_t>(finding.values[1]);
    } else if (finding.code == EFinding::FlatTriangle) {
        --lines.plates;
    } else if (IsOneOf(finding.code, {EFinding::LoadBeamMissing, EFinding::ZeroLoad}) ||
               (isOfObject && finding.object == EObject::Beam)) {
        --lines.beamLoads;
    } else if (finding.code == EFinding::LoadWallMissing ||
               (finding.code == EFinding::LoadStoryMissing && finding.object == EObject::Wall)) {
        --lines.pressureLoads;
    } else if (finding.code == EFinding::LoadNodeMissing && finding.object == EObject::Wall) {
        lines.nodalLoads -= 2;
    }
}

std::string Difference(const char* kind, std::int64_t expected, std::int64_t found)
{
    return expected == found ? ""
                             : std::string(kind) + ": " + std::to_string(found) + " lines, " +
                                   std::to_string(expected) + " are accounted for\n";
}

}  // namespace

std::shared_ptr<const CSatweModel> ReadAgain(CMemoryFiles& files)
{
    CScriptedInterface screen;
    CConvertSatwe converter(screen, nullptr, files);
    const auto input = converter.Read(LibraryPaths("structure.sat", "load.sat"));
    if (input == nullptr) {
        throw std::logic_error("what was converted cannot be read");
    }
    return input;
}

std::string BrokenCounts(const CSatweModel& input, const CConversionResult& conversion)
{
    CExpectedLines lines;
    AddMembers(lines, input);
    AddLoads(lines, input);
    for (const CFinding& finding : conversion.findings) {
        TakeAway(lines, finding);
    }
    const CReadCounts& read = conversion.report.read;
    const CWrittenCounts& written = conversion.report.written;
    return Difference("nodes", read.nodes, written.nodes) + Difference("beams", read.beams, written.beams) +
           Difference("columns", lines.columns, written.columns) + Difference("braces", read.braces, written.braces) +
           Difference("walls", lines.walls, written.walls) + Difference("plates", lines.plates, written.plates) +
           Difference("nodal loads", lines.nodalLoads, written.nodalLoads) +
           Difference("beam loads", lines.beamLoads, written.beamLoads) +
           Difference("pressure loads", lines.pressureLoads, written.pressureLoads);
}

}  // namespace satwecvt
