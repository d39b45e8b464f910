#pragma once

namespace satwecvt {

/// What `--version` prints: the version, the compiler, and the ABI, each in a line.
extern const char* const kBuildText;

}  // namespace satwecvt
