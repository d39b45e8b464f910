#pragma once

#include "finding/InvalidArgument.h"
#include "model/Int32.h"

#include <cassert>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

/// The numbers of one line, counted from 1 as the tables of the format count them.
class CLineNumbers {
public:
    /// The numbers themselves, for the parser to fill.
    std::vector<double>& Values() noexcept { return values; }

    /// The first number of the line that was used and does not fit: infinite, none, or beyond an integer's 32 bits.
    struct COutOfRange {
        std::size_t position = 0;  // 0: all fit
        double usedAs = 0.0;
    };
    const COutOfRange& OutOfRange() const noexcept { return outOfRange; }

    /// Has every number looked at that is used, until the next `Reset`: those of a usual line are finite.
    void WatchReals() noexcept { watchesReals = hasDoubt = true; }
    void Reset() noexcept
    {
        watchesReals = hasDoubt = false;
        outOfRange = {};
    }

    /// Whether there is anything to reset.
    bool HasDoubt() const noexcept { return hasDoubt; }

    std::size_t Count() const noexcept { return values.size(); }

    /// Fails with the invalid-argument failure when the line has fewer numbers than `what` needs.
    void Require(std::size_t count, std::string_view what) const { RequireFirst(count, count, what); }

    /// Fails when the line has fewer numbers than the first `count` of those that `what` needs.
    void RequireFirst(std::size_t count, std::size_t needed, std::string_view what) const
    {
        if (values.size() < count) {
            FailForNumbers(needed, what);
        }
    }

    /// A number as it is; the line has to have it.
    double Real(std::size_t position) const noexcept
    {
        assert(position <= values.size());
        const double number = values[position - 1];
        if (watchesReals && !std::isfinite(number)) {
            NoteOutOfRange(position, number);
        }
        return number;
    }

    /// A number truncated to an integer; the line has to have it.
    std::int32_t Integer(std::size_t position) const noexcept
    {
        assert(position <= values.size());
        const double number = values[position - 1];
        const std::int32_t integer = TruncateToInt32(number);
        if (!FitsInt32(number)) {
            NoteOutOfRange(position, integer);
        }
        return integer;
    }

    /// The same for a number that may be missing: it is 0 then.
    double RealOr0(std::size_t position) const noexcept { return position <= values.size() ? Real(position) : 0.0; }
    std::int32_t IntegerOr0(std::size_t position) const noexcept
    {
        return position <= values.size() ? Integer(position) : 0;
    }

private:
    [[noreturn]] void FailForNumbers(std::size_t count, std::string_view what) const
    {
        throw CInvalidArgument({}, std::string(what) + " needs " + std::to_string(count) + " numbers, this line has " +
                                       std::to_string(values.size()));
    }

    void NoteOutOfRange(std::size_t position, double usedAs) const noexcept
    {
        hasDoubt = true;
        if (outOfRange.position == 0) {
            outOfRange = {position, usedAs};
        }
    }

    std::vector<double> values;
    mutable COutOfRange outOfRange;  // noted by whoever uses the number
    mutable bool hasDoubt = false;
    bool watchesReals = false;
};

}  // namespace satwecvt
