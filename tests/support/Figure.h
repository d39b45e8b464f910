#pragma once

#include <cstdint>
#include <iostream>
#include <string_view>

namespace satwecvt {

/// Prints how often a test has done something, on a line that the scripts pick out of the output of all tests.
inline void PrintFigure(std::uint64_t count, std::string_view what)
{
    std::cout << "figure: " << count << " " << what << std::endl;
}

}  // namespace satwecvt
