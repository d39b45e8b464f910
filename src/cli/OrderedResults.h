// The results of conversions that end in any order, told in the order in which they were begun.
#pragma once

#include "cli/BatchRecord.h"
#include "cli/PairResult.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <mutex>
#include <vector>

namespace satwecvt {

/// The sums over the pairs of a batch.
struct CBatchTotals {
    std::int64_t ok = 0;
    std::int64_t refused = 0;
    std::int64_t failed = 0;
    std::int64_t cancelled = 0;
    std::int64_t losses = 0;
    std::int64_t doubts = 0;
    std::int64_t notes = 0;
    EExitCode exitCode = EExitCode::Written;  // the worst

    void Add(const CPairResult& result);
    std::int64_t Begun() const noexcept { return ok + refused + failed + cancelled; }
};

/// The worse of two exit codes: a cancel before an output that is not whole, before a pair that was not converted,
/// before one that was refused.
EExitCode Worse(EExitCode a, EExitCode b);

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
