// Find-or-add numbering: entries get the numbers 1, 2, 3, ... in the order of their first use, and equal entries share
// one number.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace satwecvt {

/// False for what holds a NaN, which equals nothing.
template <class Entry>
bool EqualsItself(const Entry& entry)
{
    const Entry& same = entry;
    return entry == same;
}

template <class Entry, class Hash>
class CNumberedTable {
public:
    /// The number of an entry, counted from 1; appends the entry when no equal one is there. Equality is exact: an
    /// entry that holds a NaN equals nothing, not even itself, and gets a new number each time.
    std::int32_t FindOrAdd(const Entry& entry)
    {
        if (last != 0 && entries[static_cast<std::size_t>(last) - 1] == entry) {
            return last;  // members that follow each other mostly share their entries
        }
        const auto next = static_cast<std::int32_t>(entries.size() + 1);
        if (EqualsItself(entry)) {
            const auto [found, isNew] = numbers.try_emplace(entry, next);
            if (!isNew) {
                return last = found->second;
            }
        }
        entries.push_back(entry);
        return last = next;
    }

    /// All entries; the one with number n stands at n - 1.
    const std::vector<Entry>& Entries() const noexcept { return entries; }

private:
    std::vector<Entry> entries;
    std::unordered_map<Entry, std::int32_t, Hash> numbers;
    std::int32_t last = 0;  // the number handed out last; 0 before the first
};

}  // namespace satwecvt
