// Records under the integer keys that the input files give them.
//
// Records arrive in file order and are read in key order or by key, so the table is an array of records: appended to
// while a block is read, put in order once by `SortByKey`. Files list their keys in ascending, mostly consecutive
// order; then the first key tells all of them and a look-up is one subtraction. Otherwise a second array holds the
// keys. Of several records with one key the last one counts; the others are kept aside, behind those that count.
#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

namespace satwecvt {

template <class Record>
class CRecordTable {
public:
    /// Makes room for that many records in all.
    void Reserve(std::size_t count) { records.reserve(count); }

    /// Stores a record under a key. Of several records with one key the last stays, once `SortByKey` has run.
    void Insert(std::int32_t key, Record record)
    {
        assert(replacedCount == 0);
        if (records.empty()) {
            firstKey = key;
        } else if (!keys.empty() || key != firstKey + static_cast<std::int64_t>(records.size())) {
            AppendKey(key);
        }
        records.push_back(std::move(record));
    }

    /// Puts the records in ascending order of their keys. Has to run after the last `Insert` and before anything else
    /// is asked.
    void SortByKey()
    {
        if (!inOrder) {
            RebuildInOrder();
            inOrder = true;
        }
    }

    std::size_t Count() const noexcept { return records.size() - replacedCount; }

    /// The keys in ascending order.
    std::vector<std::int32_t> Keys() const
    {
        std::vector<std::int32_t> all;
        all.reserve(Count());
        for (std::size_t position = 0; position < Count(); ++position) {
            all.push_back(KeyAt(position));
        }
        return all;
    }

    /// The records in ascending order of their keys.
    std::span<const Record> Records() const noexcept { return {records.data(), Count()}; }

    /// The record at a position of the ascending order, counted from 0; the table has to have it.
    const Record& At(std::size_t position) const noexcept
    {
        assert(position < Count());
        return records[position];
    }

    /// The key at a position of the ascending order, counted from 0; the table has to have it.
    std::int32_t KeyAt(std::size_t position) const noexcept
    {
        assert(position < Count());
        return keys.empty() ? static_cast<std::int32_t>(firstKey + static_cast<std::int64_t>(position))
                            : keys[position];
    }

    /// The records whose key a later record has taken over, in ascending order of their keys.
    std::span<const Record> Replaced() const noexcept { return {records.data() + Count(), replacedCount}; }

    /// The key of a record among `Replaced`, by its position there.
    std::int32_t KeyOfReplaced(std::size_t position) const noexcept { return keys[Count() + position]; }

    /// The record of a key, or null when the table does not have it.
    const Record* Find(std::int32_t key) const noexcept
    {
        if (!keys.empty()) {
            return FindAmongKeys(key);
        }
        const std::int64_t position = std::int64_t{key} - firstKey;
        const bool isThere = position >= 0 && position < static_cast<std::int64_t>(Count());
        return isThere ? &records[static_cast<std::size_t>(position)] : nullptr;
    }

private:
    void AppendKey(std::int32_t key)
    {
        if (keys.empty()) {
            keys = Keys();
        }
        inOrder = inOrder && keys.back() < key;
        keys.push_back(key);
    }

    const Record* FindAmongKeys(std::int32_t key) const noexcept
    {
        const auto end = keys.begin() + static_cast<std::ptrdiff_t>(Count());
        const auto found = std::lower_bound(keys.begin(), end, key);
        const bool isThere = found != end && *found == key;
        return isThere ? &records[static_cast<std::size_t>(found - keys.begin())] : nullptr;
    }

    void RebuildInOrder()
    {
        std::vector<std::size_t> order(keys.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::sort(order.begin(), order.end(),
                  [this](std::size_t a, std::size_t b) { return keys[a] != keys[b] ? keys[a] < keys[b] : a < b; });
        const auto counts = [&](std::size_t i) {
            return i + 1 == order.size() || keys[order[i]] != keys[order[i + 1]];
        };
        CRecordTable ordered;
        ordered.Reserve(keys.size());
        for (std::size_t i = 0; i < order.size(); ++i) {
            if (counts(i)) {
                ordered.Insert(keys[order[i]], std::move(records[order[i]]));
            }
        }
        for (std::size_t i = 0; i < order.size(); ++i) {
            if (!counts(i)) {
                ordered.PutAside(keys[order[i]], std::move(records[order[i]]));
            }
        }
        *this = std::move(ordered);
    }

    void PutAside(std::int32_t key, Record record)
    {
        if (keys.empty()) {
            keys = Keys();
        }
        keys.push_back(key);
        records.push_back(std::move(record));
        ++replacedCount;
    }

    std::vector<Record> records;
    std::vector<std::int32_t> keys;  // of the records; none while they are consecutive from `firstKey` on
    std::size_t replacedCount = 0;   // how many of the records, at the end, a later one has replaced
    std::int32_t firstKey = 0;
    bool inOrder = true;
};

}  // namespace satwecvt
