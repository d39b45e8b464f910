// Find-or-add numbering: entries get the numbers 1, 2, 3, ... in the order of their first use, and equal entries share
// one number.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
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
        if (last != 0 && entries[Index(last)] == entry) {
            return last;  // members that follow each other mostly share their entries
        }
        if (!EqualsItself(entry)) {
            return last = Append(entry);
        }
        if (slots.size() < 2 * (entries.size() + 1)) {
            MakeSlots();
        }
        std::int32_t& slot = SlotOf(entry);
        if (slot == 0) {
            slot = Append(entry);
        }
        return last = slot;
    }

    /// All entries; the one with number n stands at n - 1.
    const std::vector<Entry>& Entries() const noexcept { return entries; }

private:
    static std::size_t Index(std::int32_t number) noexcept { return static_cast<std::size_t>(number) - 1; }

    std::int32_t Append(const Entry& entry)
    {
        entries.push_back(entry);
        return static_cast<std::int32_t>(entries.size());
    }

    /// The slot that holds the number of an entry, or the empty one that is to hold it.
    std::int32_t& SlotOf(const Entry& entry) noexcept
    {
        std::size_t at = Hash{}(entry) % slots.size();
        while (slots[at] != 0 && !(entries[Index(slots[at])] == entry)) {
            at = at + 1 < slots.size() ? at + 1 : 0;
        }
        return slots[at];
    }

    /// Twice as many slots as before, so that at least half of them stay empty.
    void MakeSlots()
    {
        constexpr std::size_t kFewest = 16;
        slots.assign((std::max)(kFewest, 4 * entries.size()), 0);
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (EqualsItself(entries[i])) {
                SlotOf(entries[i]) = static_cast<std::int32_t>(i + 1);
            }
        }
    }

    std::vector<Entry> entries;
    std::vector<std::int32_t> slots;  // a hash table of the numbers of the entries that can be found; 0: empty
    std::int32_t last = 0;            // the number handed out last; 0 before the first
};

}  // namespace satwecvt
