// Records under the integer keys that the input files give them.
//
// Records arrive in file order and are read in key order or by key, so the table is an array of records: appended to
// while a block is read, put in order once by `SortByKey`. Files list their keys in ascending, mostly consecutive
// order; then the first key tells all of them and a look-up is one subtraction. Otherwise a second array holds the
// keys.
#pragma once

#include "model/InvalidArgument.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
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

    std::size_t Count() const noexcept { return records.size(); }

    /// The keys in ascending order.
    std::vector<std::int32_t> Keys() const
    {
        std::vector<std::int32_t> all(keys);
        if (all.empty()) {
            all.reserve(records.size());
            for (std::int64_t key = firstKey; all.size() < records.size(); ++key) {
                all.push_back(static_cast<std::int32_t>(key));
            }
        }
        return all;
    }

    /// The records in ascending order of their keys.
    const std::vector<Record>& Records() const noexcept { return records; }

    /// The record at a position of the ascending order, counted from 0. A position that the table does not have is the
    /// invalid-argument failure: a count promised more records than there are.
    const Record& At(std::int64_t position) const { return records[CheckedIndex(position)]; }

    /// The key at a position of the ascending order; fails like `At`.
    std::int32_t KeyAt(std::int64_t position) const
    {
        const std::size_t index = CheckedIndex(position);
        return keys.empty() ? static_cast<std::int32_t>(firstKey + static_cast<std::int64_t>(index)) : keys[index];
    }

    /// The record of a key, or null when the table does not have it.
    const Record* Find(std::int32_t key) const noexcept
    {
        if (!keys.empty()) {
            return FindAmongKeys(key);
        }
        const std::int64_t position = std::int64_t{key} - firstKey;
        const bool isThere = position >= 0 && position < static_cast<std::int64_t>(records.size());
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
        const auto found = std::lower_bound(keys.begin(), keys.end(), key);
        const bool isThere = found != keys.end() && *found == key;
        return isThere ? &records[static_cast<std::size_t>(found - keys.begin())] : nullptr;
    }

    std::size_t CheckedIndex(std::int64_t position) const
    {
        if (position < 0 || static_cast<std::uint64_t>(position) >= records.size()) {
            throw CInvalidArgument("a count promises more records than there are; two of them may have one key");
        }
        return static_cast<std::size_t>(position);
    }

    void RebuildInOrder()
    {
        std::vector<std::size_t> order(keys.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::sort(order.begin(), order.end(),
                  [this](std::size_t a, std::size_t b) { return keys[a] != keys[b] ? keys[a] < keys[b] : a < b; });
        CRecordTable ordered;
        ordered.Reserve(keys.size());
        for (std::size_t i = 0; i < order.size(); ++i) {
            const bool replacedByNext = i + 1 < order.size() && keys[order[i]] == keys[order[i + 1]];
            if (!replacedByNext) {
                ordered.Insert(keys[order[i]], std::move(records[order[i]]));
            }
        }
        *this = std::move(ordered);
    }

    std::vector<Record> records;
    std::vector<std::int32_t> keys;  // of the records; none while they are consecutive from `firstKey` on
    std::int32_t firstKey = 0;
    bool inOrder = true;
};

}  // namespace satwecvt
