#include "check/FrameList.h"

#include <algorithm>

namespace satwecvt {

CFrameList::CFrameList(const CSatweModel& model, const CNodeList& nodeList) : nodes(nodeList)
{
    std::size_t total = 0;
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        total += story.beams.Count() + 2 * story.columns.Count() + story.braces.Count();
    }
    frames.reserve(total);
    std::uint32_t level = kModelLevel;
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        AddStory(story, ++level);
    }
    PlaceMissingEnds();
    SortByElement();
}

void CFrameList::AddStory(const T_SATWE_STIF_D& story, std::uint32_t level)
{
    std::uint32_t record = 0;
    for (const T_SATWE_STBM_D& beam : story.beams.Records()) {
        Add({EObject::Beam, level, record++, beam.seq}, beam.nodeI, beam.nodeJ);
    }
    record = 0;
    for (const T_SATWE_STCL_D& column : story.columns.Records()) {
        const bool isSplit = column.hasExtra != 0;
        Add({EObject::Column, level, record, column.seq}, column.nodeI, isSplit ? column.extraValue : column.nodeJ);
        if (isSplit) {
            Add({EObject::Column, level, record, WrappedSum(column.seq, 1)}, column.extraValue, column.nodeJ);
        }
        ++record;
    }
    record = 0;
    for (const T_SATWE_STBR_D& brace : story.braces.Records()) {
        Add({EObject::Brace, level, record++, brace.seq}, brace.nodeI, brace.nodeJ);
    }
}

void CFrameList::Add(const CElementName& name, std::int32_t numberI, std::int32_t numberJ)
{
    const std::size_t end = 2 * frames.size();
    frames.push_back({FindEnd(WrappedAbs(numberI), end), FindEnd(WrappedAbs(numberJ), end + 1), name});
}

std::uint32_t CFrameList::FindEnd(std::int32_t number, std::size_t end)
{
    const std::uint32_t position = nodes.Find(number);
    if (position == kNone) {
        missingEnds.push_back({number, end});
    }
    return position;
}

void CFrameList::PlaceMissingEnds()
{
    for (const CMissingEnd& missing : missingEnds) {
        missingNumbers.push_back(missing.number);
    }
    std::sort(missingNumbers.begin(), missingNumbers.end());
    missingNumbers.erase(std::unique(missingNumbers.begin(), missingNumbers.end()), missingNumbers.end());
    for (const auto& [number, end] : missingEnds) {
        const auto found = std::lower_bound(missingNumbers.begin(), missingNumbers.end(), number);
        const auto behind = static_cast<std::size_t>(found - missingNumbers.begin());
        CFrame& frame = frames[end / 2];
        (end % 2 == 0 ? frame.nodeI : frame.nodeJ) = static_cast<std::uint32_t>(nodes.Count() + behind);
    }
    missingEnds = {};
}

void CFrameList::SortByElement()
{
    const auto isBelow = [](const CFrame& a, const CFrame& b) { return a.name.element < b.name.element; };
    if (!std::is_sorted(frames.begin(), frames.end(), isBelow)) {
        std::stable_sort(frames.begin(), frames.end(), isBelow);
    }
}

}  // namespace satwecvt
