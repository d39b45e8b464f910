#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace satwecvt {

/// Thrown where a text is no model text file; what() is the number of the line and a sentence, as
/// "line 17: no element is '  1, BEAM, 1'".
class CModelFileError : public std::runtime_error {
public:
    CModelFileError(std::int64_t line, const std::string& sentence)
        : std::runtime_error("line " + std::to_string(line) + ": " + sentence),
          lineNumber(line)
    {}

    /// The number of the line, counted from 1.
    std::int64_t Line() const noexcept { return lineNumber; }

private:
    std::int64_t lineNumber;
};

}  // namespace satwecvt
