// What stands around the module: a worker of a page, or a test. host.js leads there.
#pragma once

#include <cstddef>
#include <cstdint>

extern "C" {

/// Reads up to `size` bytes of input 0, the structure file, or 1, the load file, from an offset on. Returns how many,
/// 0 at the end of the file, or -1.
std::ptrdiff_t satwecvt_read_input(int input, double offset, char* to, std::size_t size);

/// Tells how far a conversion has come; the stage is UTF-8 text of a length.
void satwecvt_tell_progress(std::int32_t line, std::int32_t total, const char* stage, std::size_t length);
}
