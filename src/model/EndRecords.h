#pragma once

#include <array>
#include <cstdint>

namespace satwecvt {

/// An end release of a frame element.
struct T_SATWE_BMER_D {
    std::int32_t element = 0;  // output element number
    std::int32_t code = 0;     // 2 hinge at end i, 3 at end j, 4 at both; others are kept but not written
};

/// The rigid end offsets of a frame element: along the global X, Y and Z axes, of end i and then of end j.
struct T_SATWE_BEOF_D {
    std::int32_t element = 0;                    // output element number
    const std::array<double, 6>* rgd = nullptr;  // in the model, which keeps them
};

}  // namespace satwecvt
