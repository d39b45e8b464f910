// What every fuzz program defines: one input, given to the code and to what it is held against. A finding ends the
// program, as `Fail` does it. The fuzzer calls it with inputs of its own, a replay with those of the corpus.
#pragma once

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
