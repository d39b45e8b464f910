// The part of the plan, in lengths of the model, that something takes.
#pragma once

#include <algorithm>

namespace satwecvt {

struct CPlanPoint {
    double x = 0.0;
    double y = 0.0;
};

struct CPlanBox {
    CPlanPoint low;
    CPlanPoint high;
    bool isEmpty = true;

    /// Takes in what is within `reach` of a point.
    void Add(CPlanPoint point, double reach = 0.0)
    {
        const CPlanBox grown{{point.x - reach, point.y - reach}, {point.x + reach, point.y + reach}, false};
        if (isEmpty) {
            *this = grown;
        } else {
            low = {(std::min)(low.x, grown.low.x), (std::min)(low.y, grown.low.y)};
            high = {(std::max)(high.x, grown.high.x), (std::max)(high.y, grown.high.y)};
        }
    }

    double Width() const noexcept { return high.x - low.x; }
    double Height() const noexcept { return high.y - low.y; }
};

}  // namespace satwecvt
