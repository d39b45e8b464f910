#pragma once

#include <cstddef>
#include <cstdint>

namespace satwecvt {

/// A material; find-or-add compares all three fields.
struct T_SATWE_MATL_D {
    std::int32_t type = 0;        // kConcrete, kSteel or kComposite
    std::int32_t grade = 0;       // concrete and composite: N of "CN", 0 for the default; steel: the steel grade code
    std::int32_t steelGrade = 0;  // composite: the steel grade code

    static constexpr std::int32_t kConcrete = 0;
    static constexpr std::int32_t kSteel = 1;
    static constexpr std::int32_t kComposite = 2;

    bool operator==(const T_SATWE_MATL_D&) const = default;
};

struct CMaterialHash {
    std::size_t operator()(const T_SATWE_MATL_D& material) const noexcept;
};

}  // namespace satwecvt
