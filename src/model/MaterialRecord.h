#pragma once

#include <cstddef>
#include <cstdint>

namespace satwecvt {

enum class EMaterialType : std::int32_t { Concrete = 0, Steel = 1, Composite = 2 };

/// A material; find-or-add compares all three fields.
struct T_SATWE_MATL_D {
    EMaterialType type = EMaterialType::Concrete;
    std::int32_t grade = 0;       // concrete and composite: N of "CN", 0 for the default; steel: the steel grade code
    std::int32_t steelGrade = 0;  // composite: the steel grade code

    bool operator==(const T_SATWE_MATL_D&) const = default;
};

struct CMaterialHash {
    std::size_t operator()(const T_SATWE_MATL_D& material) const noexcept;
};

}  // namespace satwecvt
