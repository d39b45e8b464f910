#include "conversion/OrderedFindings.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

namespace satwecvt {

namespace {

auto Order(const CFinding& finding)
{
    return std::tuple(finding.place.source, finding.place.line, finding.code);
}

/// Whether neighbours in the order may be one load, told under both load cases.
bool AreAlike(const CFinding& first, const CFinding& second)
{
    return first.loadCase == 0 && second.loadCase == 0 && Order(first) == Order(second) && first.key == second.key;
}

/// Of dead loads, which are told twice, leaves one finding each. Pieces of an overlong line can be several loads.
void DropToldAgain(std::vector<CFinding>& findings)
{
    std::size_t kept = 0;
    for (std::size_t first = 0, end = 0; first < findings.size(); first = end) {
        while (end < findings.size() && (end == first || AreAlike(findings[first], findings[end]))) {
            ++end;
        }
        const std::size_t middle = first + (end - first + 1) / 2;  // the second half tells the first one again
        for (std::size_t i = first; i < middle; ++i, ++kept) {
            if (kept != i) {
                findings[kept] = std::move(findings[i]);
            }
        }
    }
    findings.resize(kept);
}

}  // namespace

std::vector<CFinding> OrderedFindings(const std::vector<CFinding>& told, const std::vector<CFinding>& doubts)
{
    std::vector<CFinding> findings = told;
    findings.insert(findings.end(), doubts.begin(), doubts.end());
    std::stable_sort(findings.begin(), findings.end(),
                     [](const CFinding& a, const CFinding& b) { return Order(a) < Order(b); });
    DropToldAgain(findings);
    return findings;
}

}  // namespace satwecvt
