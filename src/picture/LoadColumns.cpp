#include "picture/PictureParts.h"
#include "picture/RecordColumns.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace satwecvt {

namespace {

/// A line, and in which of the cases it stands.
enum EStands : std::int32_t { kInLiveLoad = 0, kInBoth = 1, kInDeadLoad = 2 };

template <class Line>
struct CStandingLine {
    const Line* line;
    EStands stands;
};

/// Whether two lines have the same number. One that is none is written alike, whatever it is.
bool IsSame(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool AreOne(const CNodalLoad& a, const CNodalLoad& b)
{
    return a.node == b.node && IsSame(a.fx, b.fx) && IsSame(a.fy, b.fy) && IsSame(a.fz, b.fz) && IsSame(a.mx, b.mx) &&
           IsSame(a.my, b.my) && IsSame(a.mz, b.mz);
}

bool AreOne(const CBeamLoad& a, const CBeamLoad& b)
{
    const auto areOne = [](const CPlacedValue& first, const CPlacedValue& second) {
        return IsSame(first.place, second.place) && IsSame(first.value, second.value);
    };
    return a.element == b.element && a.type == b.type &&
           std::equal(a.pairs.begin(), a.pairs.end(), b.pairs.begin(), areOne);
}

bool AreOne(const CEdgeLoad& a, const CEdgeLoad& b)
{
    return a.element == b.element && a.edge == b.edge && IsSame(a.value, b.value);
}

/// LiveLoad holds the lines of DeadLoad again, in their order: those stand once here. A line of DeadLoad that LiveLoad
/// does not have, of which there is none in a model that is right, stands behind the others.
template <class Line>
std::vector<CStandingLine<Line>> StandingLines(const std::vector<Line>& dead, const std::vector<Line>& live)
{
    std::vector<CStandingLine<Line>> lines;
    lines.reserve(live.size());
    std::size_t next = 0;
    for (const Line& line : live) {
        const bool isInBoth = next < dead.size() && AreOne(dead[next], line);
        next += isInBoth ? 1 : 0;
        lines.push_back({&line, isInBoth ? kInBoth : kInLiveLoad});
    }
    for (; next < dead.size(); ++next) {
        lines.push_back({&dead[next], kInDeadLoad});
    }
    return lines;
}

template <class Line, class ValueOf>
void AddOfLines(CColumnBytes& columns, const std::string& name, const std::vector<CStandingLine<Line>>& lines,
                ValueOf valueOf)
{
    AddColumn(columns, name, lines, [&](const CStandingLine<Line>& standing) { return valueOf(*standing.line); });
}

template <class Line>
void AddCases(CColumnBytes& columns, const std::string& name, const std::vector<CStandingLine<Line>>& lines)
{
    AddColumn(columns, name, lines,
              [](const CStandingLine<Line>& standing) { return static_cast<std::int32_t>(standing.stands); });
}

void AddNodalLoads(CColumnBytes& columns, const CLoadCase& dead, const CLoadCase& live)
{
    const auto lines = StandingLines(dead.nodalLoads, live.nodalLoads);
    AddCases(columns, "nodalLoad.standing", lines);
    AddOfLines(columns, "nodalLoad.node", lines, [](const CNodalLoad& load) { return load.node; });
    AddOfLines(columns, "nodalLoad.fx", lines, [](const CNodalLoad& load) { return load.fx; });
    AddOfLines(columns, "nodalLoad.fy", lines, [](const CNodalLoad& load) { return load.fy; });
    AddOfLines(columns, "nodalLoad.fz", lines, [](const CNodalLoad& load) { return load.fz; });
    AddOfLines(columns, "nodalLoad.mx", lines, [](const CNodalLoad& load) { return load.mx; });
    AddOfLines(columns, "nodalLoad.my", lines, [](const CNodalLoad& load) { return load.my; });
    AddOfLines(columns, "nodalLoad.mz", lines, [](const CNodalLoad& load) { return load.mz; });
}

void AddBeamLoads(CColumnBytes& columns, const CLoadCase& dead, const CLoadCase& live)
{
    const auto lines = StandingLines(dead.beamLoads, live.beamLoads);
    AddCases(columns, "beamLoad.standing", lines);
    AddOfLines(columns, "beamLoad.element", lines, [](const CBeamLoad& load) { return load.element; });
    AddOfLines(columns, "beamLoad.type", lines,
               [](const CBeamLoad& load) { return static_cast<std::int32_t>(load.type); });
    for (std::size_t pair = 0; pair < CBeamLoad().pairs.size(); ++pair) {
        const std::string number = std::to_string(pair + 1);
        AddOfLines(columns, "beamLoad.d" + number, lines,
                   [pair](const CBeamLoad& load) { return load.pairs[pair].place; });
        AddOfLines(columns, "beamLoad.p" + number, lines,
                   [pair](const CBeamLoad& load) { return load.pairs[pair].value; });
    }
}

void AddEdgeLoads(CColumnBytes& columns, const CLoadCase& dead, const CLoadCase& live)
{
    const auto lines = StandingLines(dead.edgeLoads, live.edgeLoads);
    AddCases(columns, "edgeLoad.standing", lines);
    AddOfLines(columns, "edgeLoad.element", lines, [](const CEdgeLoad& load) { return load.element; });
    AddOfLines(columns, "edgeLoad.edge", lines, [](const CEdgeLoad& load) { return load.edge; });
    AddOfLines(columns, "edgeLoad.value", lines, [](const CEdgeLoad& load) { return load.value; });
}

std::array<double, 4> SumRow(const CForceSum& sum)
{
    return {static_cast<double>(sum.count), sum.fx, sum.fy, sum.fz};
}

void AddBalance(CColumnBytes& columns, std::span<const CBalanceRow> rows)
{
    AddColumn(columns, "balance.story", rows, [](const CBalanceRow& row) { return row.story.value_or(0); });
    AddColumn(columns, "balance.hasStory", rows, [](const CBalanceRow& row) { return row.story ? 1 : 0; });
    AddColumn(columns, "balance.case", rows, [](const CBalanceRow& row) { return row.loadCase; });
    AddRows(columns, "balance.read", rows, [](const CBalanceRow& row) { return SumRow(row.read); });
    AddRows(columns, "balance.model", rows, [](const CBalanceRow& row) { return SumRow(row.model); });
    AddRows(columns, "balance.lost", rows, [](const CBalanceRow& row) { return SumRow(row.lost); });
    AddColumn(columns, "balance.notSummed", rows,
              [](const CBalanceRow& row) { return static_cast<std::int32_t>(row.notSummed); });
    AddColumn(columns, "balance.holds", rows, [](const CBalanceRow& row) { return row.Holds() ? 1 : 0; });
}

}  // namespace

void AddLoads(CColumnBytes& columns, const CPictureSource& source)
{
    static const CLoadCase kNone;
    const std::vector<CLoadCase>& cases = source.model.loadCases;
    const CLoadCase& dead = cases.empty() ? kNone : cases[0];
    const CLoadCase& live = cases.size() < 2 ? kNone : cases[1];
    AddNodalLoads(columns, dead, live);
    AddBeamLoads(columns, dead, live);
    AddEdgeLoads(columns, dead, live);
    AddBalance(columns, source.loads);
}

}  // namespace satwecvt
