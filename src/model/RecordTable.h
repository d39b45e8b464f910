// Records under the integer keys that the input files give them.
//
// Records arrive in file order and are read in key order or by key, so the table is two parallel arrays: appended to
// while a block is read, put in order once by `SortByKey`. Files list their keys in ascending, mostly consecutive
// order; then sorting is one comparison per record and a look-up is one subtraction.
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
    void Reserve(std::size_t count)
    {
        keys.reserve(count);
        records.reserve(count);
    }

    /// Stores a record under a key. Of several records with one key the last stays, once `SortByKey` has run.
    void Insert(std::int32_t key, Record record)
    {
        inOrder = inOrder && (keys.empty() || keys.back() < key);
        keys.push_back(key);
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

    std::size_t Count() const noexcept { return keys.size(); }

    /// The keys in ascending order.
    const std::vector<std::int32_t>& Keys() const noexcept { return keys; }

    /// The records in ascending order of their keys.
    const std::vector<Record>& Records() const noexcept { return records; }

    /// The record at a position of the ascending order, counted from 0. A position that the table does not have is the
    /// invalid-argument failure: a count promised more records than there are.
    const Record& At(std::int64_t position) const { return records[CheckedIndex(position)]; }

    /// The key at a position of the ascending order; fails like `At`.
    std::int32_t KeyAt(std::int64_t position) const { return keys[CheckedIndex(position)]; }

    /// The record of a key, or null when the table does not have it.
    const Record* Find(std::int32_t key) const noexcept
    {
        if (keys.empty() || key < keys.front() || key > keys.back()) {
            return nullptr;
        }
        const auto offset = static_cast<std::size_t>(std::int64_t{key} - keys.front());
        if (offset < keys.size() && keys[offset] == key) {
            return &records[offset];
        }
        const auto found = std::lower_bound(keys.begin(), keys.end(), key);
        return *found == key ? &records[static_cast<std::size_t>(found - keys.begin())] : nullptr;
    }

private:
    std::size_t CheckedIndex(std::int64_t position) const
    {
        if (position < 0 || static_cast<std::uint64_t>(position) >= keys.size()) {
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
        ordered.keys.reserve(keys.size());
        ordered.records.reserve(keys.size());
        for (std::size_t i = 0; i < order.size(); ++i) {
            const bool replacedByNext = i + 1 < order.size() && keys[order[i]] == keys[order[i + 1]];
            if (!replacedByNext) {
                ordered.keys.push_back(keys[order[i]]);
                ordered.records.push_back(std::move(records[order[i]]));
            }
        }
        *this = std::move(ordered);
    }

    std::vector<std::int32_t> keys;
    std::vector<Record> records;  // records[i] stands under keys[i]
    bool inOrder = true;
};

}  // namespace satwecvt
