#pragma once

#include <cstdint>
#include <string>

namespace satwecvt {

/// Where and why the reading of a file stopped before its end was due. No message box tells it; a program can.
struct CReadStop {
    std::string path;       // empty: the reading did not stop early
    std::int64_t line = 0;  // counted from 1; 0 when the file could not be opened
    std::string block;      // in words, such as "beam lines of story block 2"
    std::string reason;
};

}  // namespace satwecvt
