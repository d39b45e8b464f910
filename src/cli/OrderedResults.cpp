#include "cli/OrderedResults.h"

#include <ostream>
#include <utility>

namespace satwecvt {

COrderedResults::COrderedResults(std::ostream& terminal, CBatchRecord& batchRecord)
    : out(terminal),
      record(batchRecord),
      slots(kMostWaiting)
{}

void COrderedResults::Put(std::size_t number, CPairResult result)
{
    std::unique_lock lock(mutex);
    told.wait(lock, [&] { return HasRoomFor(number); });
    CSlot& slot = SlotOf(number);
    waitingBytes += result.line.size() + result.record.size();
    slot.result = std::move(result);
    slot.isFilled = true;
    while (SlotOf(next).isFilled) {
        TellNext();
    }
    told.notify_all();
}

/// The next one in turn always finds room, so somebody always gets on.
bool COrderedResults::HasRoomFor(std::size_t number) const noexcept
{
    return number == next || (number - next < kMostWaiting && waitingBytes < kMostBytes);
}

void COrderedResults::TellNext()
{
    CSlot& slot = SlotOf(next);
    const CPairResult result = std::move(slot.result);
    slot.isFilled = false;
    waitingBytes -= result.line.size() + result.record.size();
    ++next;
    totals.Add(result);
    out << result.line << std::flush;
    record.Write(result.record);
}

}  // namespace satwecvt
