// Findings of the block writers, about members of a story and about loads.
#pragma once

#include "model/LoadRecord.h"
#include "model/StoryRecord.h"
#include "satwecvt/Finding.h"

#include <cstdint>

namespace satwecvt {

/// What a distance may be off, as a part of the loaded member's length, without a word: numbers of input files are
/// rounded.
inline constexpr double kLengthToSpare = 1e-6;

/// A finding about a member of a story, whose line and element number are given.
CFinding MemberFinding(EFinding code, const T_SATWE_STIF_D& story, EObject object, std::int32_t key, std::int32_t line,
                       std::int32_t element);

/// A finding about a load. `object` is what it acts on; `story` is null when the model does not have it.
CFinding LoadFinding(EFinding code, const T_SATWE_STLD_D& load, EObject object, const T_SATWE_STIF_D* story);

}  // namespace satwecvt
