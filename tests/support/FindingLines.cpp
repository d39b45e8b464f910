#include "support/FindingLines.h"

#include <optional>

namespace satwecvt {

std::string Line(const CFinding& finding)
{
    const auto number = [](const char* name, const std::optional<std::int32_t>& value) {
        return value ? " " + std::string(name) + "=" + std::to_string(*value) : "";
    };
    const std::string file = finding.place.source == ESource::StructureFile ? "structure.sat:" : "load.sat:";
    return file + std::to_string(finding.place.line) + ": " + std::string(SeverityName(finding.severity)) + ": " +
           FindingText(finding) + " [" + std::string(CodeName(finding.code)) + "]" + number("no", finding.storyNo) +
           number("element", finding.element) + number("case", finding.loadCase);
}

CLines LinesOf(const CAnswer& answer)
{
    CLines lines;
    for (const CFinding& finding : answer.conversion.findings) {
        lines.push_back(Line(finding));
    }
    return lines;
}

std::string Building(const std::string& counts, const std::string& members)
{
    return "1 1 5 0 0\n1 1 6 0 300 600 0 0 0 0\n0 0 0 0\n"
           "1 1 0 0 0 0\n2 2 0 4 0 0\n3 3 0 0 0 3\n4 4 0 4 0 3\n5 5 0 2 0 3\n"
           "1 7 0\n0\n3 30 30 30 30 3\n0 " +
           counts + "\n" + members;
}

std::string BuildingWithBeam()
{
    return Building("1 0 0 0 0", "8 3 4 1 0 0 0\n");
}

}  // namespace satwecvt
