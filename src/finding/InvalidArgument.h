// The one failure of bad content: a line with too few numbers, a count that promises more records than there are,
// a wall or vertex that does not exist. It ends the conversion.
#pragma once

#include <stdexcept>

namespace satwecvt {

/// Thrown where a number, record or index that the input promises is not there; what() says which, for the log of a
/// program, never for a message box.
class CInvalidArgument : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

}  // namespace satwecvt
