#include "check/RowSums.h"

#include <cmath>

namespace satwecvt {

namespace {

bool IsNear(const CBounded& a, const CBounded& b)
{
    return std::abs(a.value - b.value) <= a.bound + b.bound;
}

bool IsNear(const CBoundedForce& a, const CBoundedForce& b)
{
    return IsNear(a.x, b.x) && IsNear(a.y, b.y) && IsNear(a.z, b.z);
}

CForceSum SumOf(const CLineSum& sum)
{
    return {sum.count, sum.force.x.value, sum.force.y.value, sum.force.z.value};
}

}  // namespace

void CRowSums::AddLines(const CLineSum& lines, const std::optional<CBoundedForce>& expected)
{
    model.count += lines.count;
    if (expected || lines.force.IsFinite()) {
        model.force += lines.force;
    }
    if (expected && !IsNear(*expected, lines.force)) {
        ++off;
    }
}

bool CRowSums::IsEmpty() const noexcept
{
    return read.count == 0 && notSummed == 0 && model.count == 0 && off == 0;
}

CBalanceRow CRowSums::Row(std::optional<std::int32_t> story, std::int32_t loadCase) const
{
    CBoundedForce left = read.force;
    left += -lost.force;
    left += -model.force;
    CBalanceRow row;
    row.story = story;
    row.loadCase = loadCase;
    row.read = SumOf(read);
    row.model = SumOf(model);
    row.lost = SumOf(lost);
    row.notSummed = notSummed;
    row.off = off;
    row.roundingBound = {left.x.bound, left.y.bound, left.z.bound};
    return row;
}

}  // namespace satwecvt
