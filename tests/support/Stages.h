#pragma once

#include <string>
#include <vector>

namespace satwecvt {

/// What the status line of the progress window says, one after the other, in a conversion that ends well.
inline const std::vector<std::string> kStages = {
    "!!! Read Data File !!!",
    "!!! Write Data File : Node !!!",
    "!!! Write Data File : Element !!!",
    "!!! Write Data File : Material !!!",
    "!!! Write Data File : Section !!!",
    "!!! Write Data File : Thickness !!!",
    "!!! Write Data File : Support !!!",
    "!!! Write Data File : Beam End Release !!!",
    "!!! Write Data File : Beam End Offset !!!",
    "!!! Write Data File : Load Case !!!",
    "!!! Write File : Static Load !!!",
};

}  // namespace satwecvt
