// The resultant of a load as the load file has it:
//
//   type           downward                          x, y
//   1              v0
//   2              (v0 + v1) / 2 x (v3 - v2)
//   3              v0 x v2
//   4              v0 x (L - v1)
//   11             v0
//   12             v0                                v1, v2
//   21             v0
//   22             v0 x L
//
// There is none where a load starts or lies in front of its beam, or ends in front of its start; for a trapezoid whose
// sloping parts are together longer than the beam, which has two readings; for types 4 and 21 on what has no length,
// and for 4 and 22 on what is not there; for other types; where a force is too large to be summed; and for types 2, 3,
// 4, 21 and 22 where the length is not finite. Distances are compared with a millionth of the length to spare, as
// findings are told.
#pragma once

#include "check/LoadedObject.h"

#include <optional>

namespace satwecvt {

std::optional<CBoundedForce> RecordForce(const T_SATWE_STLD_D& load, const CLoadedObject& object);

}  // namespace satwecvt
