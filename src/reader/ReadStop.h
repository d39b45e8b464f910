#pragma once

#include <cstdint>
#include <string>

namespace satwecvt {

/// Where and why the reading of a file stopped before its end was due. No message box tells it; a program can.
struct CReadStop {
    std::string path;
    std::int64_t line = 0;  // counted from 1; 0 when not even the first was read
    std::string block;      // in words, such as "beam lines of story block 2"; empty when the file could not be opened
    std::string reason;
};

}  // namespace satwecvt
