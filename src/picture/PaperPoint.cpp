#include "picture/PaperPoint.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace satwecvt {

std::int32_t PaperLength(double millimetres) noexcept
{
    constexpr double kMost = 1e8;
    const double rounded = std::floor(millimetres * 100.0 + 0.5);
    return rounded > -kMost ? static_cast<std::int32_t>(std::min(rounded, kMost)) : static_cast<std::int32_t>(-kMost);
}

void AppendMillimetres(std::string& text, std::int32_t hundredths)
{
    const std::int32_t size = std::abs(hundredths);
    const std::int32_t rest = size % 100;
    text += hundredths < 0 ? "-" : "";
    if (size >= 100 || rest == 0) {
        text += std::to_string(size / 100);
    }
    if (rest != 0) {
        text += '.';
        text += static_cast<char>('0' + rest / 10);
    }
    if (rest % 10 != 0) {
        text += static_cast<char>('0' + rest % 10);
    }
}

}  // namespace satwecvt
