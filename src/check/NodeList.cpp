#include "check/NodeList.h"

#include <algorithm>

namespace satwecvt {

namespace {

bool IsBelow(const CListedNode& a, const CListedNode& b)
{
    return a.record->number < b.record->number;
}

}  // namespace

CNodeList::CNodeList(const CSatweModel& model)
{
    std::size_t total = model.nodes.Count();
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        total += story.nodes.Count();
    }
    nodes.reserve(total);
    std::uint32_t level = kModelLevel;
    Add(model.nodes, level);
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        Add(story.nodes, ++level);
    }
    SortByNumber();
    MakePositions();
}

void CNodeList::Add(const CRecordTable<T_SATWE_STND_D>& table, std::uint32_t level)
{
    for (const T_SATWE_STND_D& node : table.Records()) {
        nodes.push_back({&node, level});
    }
}

void CNodeList::SortByNumber()
{
    const auto isNotBelow = [](const CListedNode& a, const CListedNode& b) { return !IsBelow(a, b); };
    if (std::adjacent_find(nodes.begin(), nodes.end(), isNotBelow) == nodes.end()) {
        return;  // as files mostly have them
    }
    std::stable_sort(nodes.begin(), nodes.end(), IsBelow);
    std::size_t kept = 0;
    for (std::size_t first = 0; first < nodes.size();) {
        std::size_t last = first;
        while (last + 1 < nodes.size() && !IsBelow(nodes[first], nodes[last + 1])) {
            ++last;
        }
        for (; first < last; ++first) {
            replaced.push_back({nodes[first], nodes[last].record});
        }
        nodes[kept++] = nodes[first++];
    }
    nodes.resize(kept);
}

void CNodeList::MakePositions()
{
    if (nodes.empty()) {
        return;
    }
    firstNumber = nodes.front().record->number;
    span = nodes.back().record->number - firstNumber;
    const auto count = static_cast<std::int64_t>(nodes.size());
    isDense = span / 8 <= count;
    if (!isDense || span + 1 == count) {
        return;
    }
    positions.assign(static_cast<std::size_t>(span) + 1, kNone);
    std::uint32_t position = 0;
    for (const CListedNode& node : nodes) {
        positions[static_cast<std::size_t>(node.record->number - firstNumber)] = position++;
    }
}

std::uint32_t CNodeList::Search(std::int32_t number) const noexcept
{
    const auto found =
        std::lower_bound(nodes.begin(), nodes.end(), number,
                         [](const CListedNode& node, std::int32_t wanted) { return node.record->number < wanted; });
    const bool isThere = found != nodes.end() && found->record->number == number;
    return isThere ? static_cast<std::uint32_t>(found - nodes.begin()) : kNone;
}

}  // namespace satwecvt
