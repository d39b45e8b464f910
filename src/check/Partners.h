// Which earlier element each element of a list has a doubt with: the earliest one, so that there are no more findings
// than elements, and each pair is told at its later one.
#pragma once

#include "check/FrameList.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace satwecvt {

class CPartners {
public:
    explicit CPartners(std::size_t elements) : elementCount(elements) {}

    /// Takes in a pair, by positions in the list.
    void Add(std::uint32_t a, std::uint32_t b)
    {
        if (earliest.empty()) {
            earliest.assign(elementCount, kNone);
        }
        std::uint32_t& partner = earliest[(std::max)(a, b)];
        partner = (std::min)({partner, a, b});
    }

    /// The earliest partner of an element; `kNone` without one.
    std::uint32_t Of(std::uint32_t element) const noexcept { return earliest.empty() ? kNone : earliest[element]; }

    /// Tells those of the frame elements, if that is the list.
    void Tell(EFinding code, const CSatweModel& model, const CFrameList& frames, CFindingListener& listener) const;

private:
    std::size_t elementCount;
    std::vector<std::uint32_t> earliest;  // by element; none before the first pair, as in most buildings
};

}  // namespace satwecvt
