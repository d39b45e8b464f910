#include "cli/OrderedFindings.h"

#include <algorithm>
#include <tuple>

namespace satwecvt {

namespace {

auto Order(const CFinding& finding)
{
    return std::tuple(finding.place.source, finding.place.line, finding.code);
}

/// Whether two neighbours in the order are one load, told under both load cases.
bool IsToldAgain(const CFinding& first, const CFinding& second)
{
    return first.loadCase == 0 && second.loadCase == 0 && Order(first) == Order(second) && first.key == second.key;
}

}  // namespace

std::vector<CFinding> OrderedFindings(const std::vector<CFinding>& told, const std::vector<CFinding>& doubts)
{
    std::vector<CFinding> findings = told;
    findings.insert(findings.end(), doubts.begin(), doubts.end());
    std::stable_sort(findings.begin(), findings.end(),
                     [](const CFinding& a, const CFinding& b) { return Order(a) < Order(b); });
    findings.erase(std::unique(findings.begin(), findings.end(), IsToldAgain), findings.end());
    return findings;
}

}  // namespace satwecvt
