#pragma once

#include "model/Int32.h"
#include "model/InvalidArgument.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace satwecvt {

/// The numbers of one line, counted from 1 as the tables of the format count them.
class CLineNumbers {
public:
    /// The numbers themselves, for the parser to fill.
    std::vector<double>& Values() noexcept { return values; }

    std::size_t Count() const noexcept { return values.size(); }

    /// Fails with the invalid-argument failure when the line has fewer numbers.
    void Require(std::size_t count) const
    {
        if (values.size() < count) {
            throw CInvalidArgument("too few numbers");
        }
    }

    /// A number as it is; fails like `Require` when the line does not have it.
    double Real(std::size_t position) const
    {
        Require(position);
        return values[position - 1];
    }

    /// A number truncated to an integer; fails like `Require` when the line does not have it.
    std::int32_t Integer(std::size_t position) const { return TruncateToInt32(Real(position)); }

    /// The same for a number that may be missing: it is 0 then.
    double RealOr0(std::size_t position) const noexcept
    {
        return position <= values.size() ? values[position - 1] : 0.0;
    }
    std::int32_t IntegerOr0(std::size_t position) const noexcept { return TruncateToInt32(RealOr0(position)); }

private:
    std::vector<double> values;
};

}  // namespace satwecvt
