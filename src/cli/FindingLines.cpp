#include "cli/FindingLines.h"

#include "cli/Losses.h"
#include "cli/TerminalText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <ostream>

namespace satwecvt {

namespace {

/// The findings of one code and severity: a load on a missing node can be a loss or a doubt.
struct CGroup {
    std::vector<const CFinding*> first;  // as many as are printed
    std::int64_t count = 0;
};

using CGroups = std::array<std::array<CGroup, kFindingCodes>, 3>;  // by severity, then by code

CGroups GroupsOf(const std::vector<CFinding>& findings, std::size_t mostPrinted)
{
    CGroups groups;
    for (const CFinding& finding : findings) {
        CGroup& group = groups[static_cast<std::size_t>(finding.severity)][static_cast<std::size_t>(finding.code)];
        ++group.count;
        if (group.first.size() < mostPrinted) {
            group.first.push_back(&finding);
        }
    }
    return groups;
}

std::string LineOf(const CConversionPaths& paths, const CFinding& finding, const std::string& more)
{
    return PlaceText(paths, finding.place) + std::string(SeverityName(finding.severity)) + ": " + FindingText(finding) +
           more + " [" + std::string(CodeName(finding.code)) + "]\n";
}

std::string MoreText(const CGroup& group)
{
    const std::int64_t more = group.count - static_cast<std::int64_t>(group.first.size());
    return more > 0 ? "and " + CountText(more, "more of these", "more of these") : "";
}

}  // namespace

std::string PlaceText(const CConversionPaths& paths, const CPlace& place)
{
    if (place.source == ESource::Model) {
        return "";
    }
    std::string text = place.source == ESource::StructureFile ? paths.structure : paths.load;
    if (place.line > 0) {
        text += ":" + std::to_string(place.line);
    }
    return TerminalText(text) + ": ";
}

void PrintFindings(std::ostream& out, const CConversionPaths& paths, const std::vector<CFinding>& findings)
{
    constexpr std::size_t kMostOfACode = 10;
    for (const auto& codes : GroupsOf(findings, kMostOfACode)) {
        for (const CGroup& group : codes) {
            for (const CFinding* finding : group.first) {
                out << LineOf(paths, *finding, "");
            }
            const std::string more = MoreText(group);
            if (!more.empty()) {
                out << more << " [" << CodeName(group.first.front()->code) << "]\n";
            }
        }
    }
}

void PrintProblems(std::ostream& out, const CConversionPaths& paths, const std::vector<CFinding>& findings)
{
    const CGroups groups = GroupsOf(findings, 1);
    for (const ESeverity severity : {ESeverity::Loss, ESeverity::Doubt}) {
        for (const CGroup& group : groups[static_cast<std::size_t>(severity)]) {
            if (group.count > 0) {
                const std::string more = MoreText(group);
                out << LineOf(paths, *group.first.front(), more.empty() ? "" : ", " + more);
            }
        }
    }
}

}  // namespace satwecvt
