#include "cli/Counts.h"

namespace satwecvt {

std::vector<CKindCount> CountsByKind(const CConversionReport& report, const CLosses* losses)
{
    const CReadCounts& read = report.read;
    const CWrittenCounts& written = report.written;
    const CLosses none;
    const CLosses& lost = losses != nullptr ? *losses : none;
    const auto row = [&](const char* kind, const char* name, std::int64_t readCount, std::int64_t lostCount,
                         std::int64_t lines) {
        CKindCount count{kind, name, readCount, std::nullopt, std::nullopt, lines};
        if (losses != nullptr) {
            count.converted = readCount - lostCount;
            count.lost = lostCount;
        }
        return count;
    };
    const auto made = [](const char* kind, std::int64_t lines) {
        return CKindCount{kind, kind, std::nullopt, std::nullopt, std::nullopt, lines};
    };
    return {
        row("stories", "stories", read.stories, 0, written.stories),
        row("nodes", "nodes", read.nodes, 0, written.nodes),
        row("beams", "beams", read.beams, 0, written.beams),
        row("columns", "columns", read.columns, 0, written.columns),
        row("braces", "braces", read.braces, 0, written.braces),
        row("walls", "walls", read.walls, lost.walls, written.walls),
        row("plates", "plates", read.plates, lost.plates, written.plates),
        made("materials", written.materials),
        row("sections", "sections", read.sections, 0, written.sections),
        made("thicknesses", written.thicknesses),
        made("supports", written.supports),
        made("releases", written.releases),
        made("offsets", written.offsets),
        row("nodalLoads", "nodal loads", read.nodalLoads, lost.nodalLoads, written.nodalLoads),
        row("beamLoads", "beam loads", read.beamLoads, lost.beamLoads, written.beamLoads),
        row("pressureLoads", "pressure loads", read.pressureLoads, lost.pressureLoads, written.pressureLoads),
        row("otherLoads", "other loads", read.otherLoads, lost.otherLoads, 0),
    };
}

}  // namespace satwecvt
