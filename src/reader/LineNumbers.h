#pragma once

#include "finding/InvalidArgument.h"
#include "model/Int32.h"

#include <cassert>
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
        return values[position - 1];
    }

    /// A number truncated to an integer; the line has to have it.
    std::int32_t Integer(std::size_t position) const noexcept { return TruncateToInt32(Real(position)); }

    /// The same for a number that may be missing: it is 0 then.
    double RealOr0(std::size_t position) const noexcept
    {
        return position <= values.size() ? values[position - 1] : 0.0;
    }
    std::int32_t IntegerOr0(std::size_t position) const noexcept { return TruncateToInt32(RealOr0(position)); }

private:
    [[noreturn]] void FailForNumbers(std::size_t count, std::string_view what) const
    {
        throw CInvalidArgument({}, std::string(what) + " needs " + std::to_string(count) + " numbers, this line has " +
                                       std::to_string(values.size()));
    }

    std::vector<double> values;
};

}  // namespace satwecvt
