// The results of conversions that end in any order, told in the order in which they were begun.
#pragma once

#include "cli/BatchRecord.h"
#include "cli/BatchTotals.h"
#include "cli/PairResult.h"

#include <condition_variable>
#include <cstddef>
#include <iosfwd>
#include <mutex>
#include <vector>

namespace satwecvt {

class COrderedResults {
public:
    /// Lines for the terminal go to `out`. Both have to outlive the object.
    COrderedResults(std::ostream& out, CBatchRecord& record);

    /// Takes the result of the pair with this number, counted from 0, from any thread, and tells it when all before it
    /// have been told. As long as too much waits to be told, it holds up whoever is ahead of the others; numbers have
    /// to be begun in their order.
    void Put(std::size_t number, CPairResult result);

    const CBatchTotals& Totals() const noexcept { return totals; }

private:
    static constexpr std::size_t kMostWaiting = 4096;      // results, whose places stand ready
    static constexpr std::size_t kMostBytes = 32U << 20U;  // of their texts

    struct CSlot {
        bool isFilled = false;
        CPairResult result;
    };

    CSlot& SlotOf(std::size_t number) noexcept { return slots[number % kMostWaiting]; }
    bool HasRoomFor(std::size_t number) const noexcept;
    void TellNext();

    std::ostream& out;
    CBatchRecord& record;
    std::mutex mutex;
    std::condition_variable told;
    std::vector<CSlot> slots;
    std::size_t next = 0;          // the number that is told next
    std::size_t waitingBytes = 0;  // of the texts in the slots
    CBatchTotals totals;
};

}  // namespace satwecvt
