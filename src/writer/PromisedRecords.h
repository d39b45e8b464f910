// Counts of the input promise records, and the writers go by them. Where two records have one key there are fewer than
// promised: that is the invalid-argument failure, with both lines.
#pragma once

#include "finding/InvalidArgument.h"
#include "model/RecordTable.h"
#include "model/StoryRecord.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace satwecvt {

/// Two records with one key.
struct CKeyTwice {
    std::int32_t key;
    std::int32_t replacedLine;
    std::int32_t line;
};

/// The failure of a table whose count promises more than it holds. `story` is null for what belongs to no story,
/// `twice` when no key stands twice.
CInvalidArgument TooFewRecords(EObject object, const T_SATWE_STIF_D* story, const CKeyTwice* twice);

/// The records of a table that a count of the input promises, in the order of their keys.
template <class Record>
class CPromisedRecords {
public:
    /// `ownerStory` is null for what belongs to no story.
    CPromisedRecords(const CRecordTable<Record>& recordTable, EObject objects, const T_SATWE_STIF_D* ownerStory)
        : table(recordTable),
          records(recordTable.Records()),
          object(objects),
          story(ownerStory)
    {}

    /// The record at a position below the count.
    const Record& operator[](std::int32_t position) const
    {
        const auto index = static_cast<std::size_t>(position);
        if (index >= records.size()) {
            Fail();
        }
        return records[index];
    }

    /// The key of a record that is there.
    std::int32_t KeyAt(std::int32_t position) const noexcept { return table.KeyAt(static_cast<std::size_t>(position)); }

private:
    [[noreturn]] void Fail() const
    {
        if (table.Replaced().empty()) {
            throw TooFewRecords(object, story, nullptr);
        }
        const std::int32_t key = table.KeyOfReplaced(0);
        const CKeyTwice twice{key, table.Replaced().front().line, table.Find(key)->line};
        throw TooFewRecords(object, story, &twice);
    }

    const CRecordTable<Record>& table;
    std::span<const Record> records;
    EObject object;
    const T_SATWE_STIF_D* story;
};

}  // namespace satwecvt
