#pragma once

#include <cstdint>

namespace satwecvt {

/// A node, one line of six numbers: key, number, a flag that nothing reads, x, y, z.
struct T_SATWE_STND_D {
    std::int32_t number = 0;  // 2: the node's number in the model text file; members refer to it
    std::int32_t line = 0;    // where it stands in the structure file
    double x = 0.0;           // 4: coordinates in the unit of the input, written unscaled
    double y = 0.0;           // 5
    double z = 0.0;           // 6
};

}  // namespace satwecvt
