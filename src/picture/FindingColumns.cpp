#include "picture/PictureParts.h"
#include "picture/RecordColumns.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <numeric>
#include <span>
#include <string>
#include <vector>

namespace satwecvt {

namespace {

/// How many findings of each code are listed, so that they are at most `most` in all: codes with few have all of them,
/// the others share the rest.
std::array<std::size_t, kFindingCodes> ListedOfCodes(std::span<const CFinding> findings, std::size_t most)
{
    std::array<std::size_t, kFindingCodes> counts{};
    for (const CFinding& finding : findings) {
        ++counts[static_cast<std::size_t>(finding.code)];
    }
    std::array<std::size_t, kFindingCodes> codes{};
    std::iota(codes.begin(), codes.end(), std::size_t{0});
    std::sort(codes.begin(), codes.end(), [&](std::size_t a, std::size_t b) { return counts[a] < counts[b]; });
    for (std::size_t i = 0; i < codes.size(); ++i) {
        std::size_t& count = counts[codes[i]];
        count = std::min(count, most / (codes.size() - i));
        most -= count;
    }
    return counts;
}

/// The findings that are listed, and what is told of all.
struct CListedFindings {
    std::vector<CFinding> findings;
    std::vector<std::int32_t> codes;           // of the findings: indexes into the codes that occur
    std::vector<std::string> codeNames;        // that occur
    std::vector<std::int32_t> totals;          // of each code that occurs
    std::vector<std::int32_t> placeOfFinding;  // by index of the picture's findings: among the listed ones, or -1
};

CListedFindings ListedFindings(std::span<const CFinding> findings, std::size_t most)
{
    CListedFindings listed;
    const std::array<std::size_t, kFindingCodes> listedOf = ListedOfCodes(findings, most);
    std::array<std::int32_t, kFindingCodes> indexOf;
    indexOf.fill(-1);
    for (const CFinding& finding : findings) {
        const auto code = static_cast<std::size_t>(finding.code);
        if (indexOf[code] < 0) {
            indexOf[code] = static_cast<std::int32_t>(listed.codeNames.size());
            listed.codeNames.emplace_back(CodeName(finding.code));
            listed.totals.push_back(0);
        }
        std::int32_t& total = listed.totals[static_cast<std::size_t>(indexOf[code])];
        const bool isListed = static_cast<std::size_t>(++total) <= listedOf[code];
        listed.placeOfFinding.push_back(isListed ? static_cast<std::int32_t>(listed.findings.size()) : -1);
        if (isListed) {
            listed.findings.push_back(finding);
            listed.codes.push_back(indexOf[code]);
        }
    }
    return listed;
}

/// A page grows with its building, not with what is wrong with it.
std::size_t MostFindings(const CPicture& picture)
{
    constexpr std::size_t kInAnyCase = 1000;
    constexpr std::size_t kElementsForOne = 4;
    return kInAnyCase + (picture.frameElements.size() + picture.planarElements.size()) / kElementsForOne;
}

void AddListed(CColumnBytes& columns, const CPicture& picture, const CListedFindings& listed)
{
    const std::vector<CFinding>& findings = listed.findings;
    columns.Add("findingCode.name", listed.codeNames);
    columns.Add("findingCode.total", listed.totals);
    columns.Add("finding.code", listed.codes);
    AddColumn(columns, "finding.severity", findings,
              [](const CFinding& finding) { return static_cast<std::int32_t>(finding.severity); });
    AddColumn(columns, "finding.source", findings,
              [](const CFinding& finding) { return static_cast<std::int32_t>(finding.place.source); });
    AddColumn(columns, "finding.line", findings,
              [](const CFinding& finding) { return static_cast<std::int32_t>(finding.place.line); });
    AddColumn(columns, "finding.object", findings,
              [](const CFinding& finding) { return static_cast<std::int32_t>(finding.object); });
    AddColumn(columns, "finding.story", findings,
              [&](const CFinding& finding) { return finding.story ? picture.StoryOf(*finding.story) : kNoStory; });
    AddColumn(columns, "finding.key", findings, [](const CFinding& finding) { return finding.key.value_or(0); });
    AddColumn(columns, "finding.element", findings,
              [](const CFinding& finding) { return finding.element.value_or(0); });
    AddColumn(columns, "finding.text", findings, FindingText);
}

/// Those whose findings are listed.
template <class Part>
std::vector<Part> Listed(const std::vector<Part>& parts, const CListedFindings& listed)
{
    std::vector<Part> kept;
    std::copy_if(parts.begin(), parts.end(), std::back_inserter(kept),
                 [&](const Part& part) { return listed.placeOfFinding[part.finding] >= 0; });
    return kept;
}

void AddLostShapes(CColumnBytes& columns, const CPicture& picture, const CListedFindings& listed)
{
    const std::vector<CLostShape> shapes = Listed(picture.lostShapes, listed);
    const auto corners = [](double CPicturePoint::*coordinate) {
        return [coordinate](const CLostShape& shape) {
            std::vector<double> values;
            for (const CPicturePoint& corner : shape.corners) {
                values.push_back(corner.*coordinate);
            }
            return values;
        };
    };
    AddColumn(columns, "lost.finding", shapes,
              [&](const CLostShape& shape) { return listed.placeOfFinding[shape.finding]; });
    AddColumn(columns, "lost.points", shapes,
              [](const CLostShape& shape) { return static_cast<std::int32_t>(shape.corners.size()); });
    AddRows(columns, "lost.x", shapes, corners(&CPicturePoint::x));
    AddRows(columns, "lost.y", shapes, corners(&CPicturePoint::y));
    AddRows(columns, "lost.z", shapes, corners(&CPicturePoint::z));
}

void AddLostLoads(CColumnBytes& columns, const CPicture& picture, const CListedFindings& listed)
{
    const std::vector<CLostLoad> loads = Listed(picture.lostLoads, listed);
    AddColumn(columns, "lostLoad.finding", loads,
              [&](const CLostLoad& load) { return listed.placeOfFinding[load.finding]; });
    AddRows(columns, "lostLoad.ends", loads, [](const CLostLoad& load) {
        return std::array{load.from.x, load.from.y, load.from.z, load.to.x, load.to.y, load.to.z};
    });
    AddRows(columns, "lostLoad.values", loads, [](const CLostLoad& load) {
        return std::array{load.valueFrom, load.valueTo};
    });
}

}  // namespace

void AddFindings(CColumnBytes& columns, const CPicture& picture)
{
    const CListedFindings listed = ListedFindings(picture.source.findings, MostFindings(picture));
    AddListed(columns, picture, listed);
    AddLostShapes(columns, picture, listed);
    AddLostLoads(columns, picture, listed);
}

}  // namespace satwecvt
