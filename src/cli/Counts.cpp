#include "cli/Counts.h"

namespace satwecvt {

std::vector<CKindCount> CountsByKind(const CConversionReport& report)
{
    const CReadCounts& read = report.read;
    const CWrittenCounts& written = report.written;
    return {
        {"stories", read.stories, written.stories},
        {"nodes", read.nodes, written.nodes},
        {"beams", read.beams, written.beams},
        {"columns", read.columns, written.columns},
        {"braces", read.braces, written.braces},
        {"walls", read.walls, written.walls},
        {"plates", read.plates, written.plates},
        {"materials", std::nullopt, written.materials},
        {"sections", read.sections, written.sections},
        {"thicknesses", std::nullopt, written.thicknesses},
        {"supports", std::nullopt, written.supports},
        {"releases", std::nullopt, written.releases},
        {"offsets", std::nullopt, written.offsets},
        {"nodalLoads", read.nodalLoads, written.nodalLoads},
        {"beamLoads", read.beamLoads, written.beamLoads},
        {"pressureLoads", read.pressureLoads, written.pressureLoads},
        {"otherLoads", read.otherLoads, 0},
    };
}

}  // namespace satwecvt
