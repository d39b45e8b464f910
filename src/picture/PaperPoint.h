// Places on a sheet of paper, in hundredths of a millimetre to the right of its upper left corner and below it. They
// are integers, so that every system writes the same digits.
#pragma once

#include <cstdint>
#include <string>

namespace satwecvt {

struct CPaperPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;

    friend bool operator==(const CPaperPoint&, const CPaperPoint&) = default;
};

/// Hundredths of a millimetre, rounded. What is longer than any sheet counts as the longest length that fits.
std::int32_t PaperLength(double millimetres) noexcept;

/// Appends a length in millimetres: 1250 is "12.5", 5 is ".05".
void AppendMillimetres(std::string& text, std::int32_t hundredths);

}  // namespace satwecvt
