// The one failure of bad content: a line with too few numbers, a count that promises more records than there are, a
// wall or vertex that does not exist. It ends the conversion.
#pragma once

#include "satwecvt/Finding.h"

#include <stdexcept>
#include <string>

namespace satwecvt {

/// Thrown where a number, record or index that the input promises is not there; what() says which, in words that stand
/// behind the place, as in "a force on wall 17 of story 3, which does not exist".
class CInvalidArgument : public std::invalid_argument {
public:
    CInvalidArgument(const CPlace& where, const std::string& what) : std::invalid_argument(what), place(where) {}

    /// The line that cannot be converted.
    const CPlace& Place() const noexcept { return place; }

private:
    CPlace place;
};

}  // namespace satwecvt
