#pragma once

#include <cstdint>

namespace satwecvt {

/// How much of each kind the model text file and the message log have received, for a program's summary.
struct CWrittenCounts {
    std::int64_t stories = 0;  // whose elements were written
    std::int64_t nodes = 0;
    std::int64_t beams = 0;    // element lines
    std::int64_t columns = 0;  // element lines: two for a split column
    std::int64_t braces = 0;   // element lines
    std::int64_t walls = 0;    // element lines
    std::int64_t plates = 0;   // element lines: one for each triangle
    std::int64_t materials = 0;
    std::int64_t sections = 0;
    std::int64_t thicknesses = 0;
    std::int64_t supports = 0;
    std::int64_t releases = 0;
    std::int64_t offsets = 0;
    std::int64_t nodalLoads = 0;     // lines of both load cases
    std::int64_t beamLoads = 0;      // lines of both load cases
    std::int64_t pressureLoads = 0;  // lines of both load cases
    std::int64_t warnings = 0;       // lines of the message log
};

}  // namespace satwecvt
