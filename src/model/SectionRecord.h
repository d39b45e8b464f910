#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace satwecvt {

/// A section definition: a line of ten numbers and a line of four. Two sections are the same when every field is
/// exactly equal.
struct T_SATWE_SECT_D {
    std::int32_t kind = 0;           // line A, 2: shape, 0 to 14 are written
    std::int32_t param1 = 0;         // line A, 3: 5 and 6 choose between concrete and steel
    std::int32_t param2 = 0;         // line A, 4: part of the identity only
    std::array<double, 10> dims{};   // line A, 5 to 10, then line B, 1 to 4: dimensions, meaning by kind
    std::int32_t concreteGrade = 0;  // composite kinds: grades of the element that uses the section
    std::int32_t steelGrade = 0;

    bool operator==(const T_SATWE_SECT_D&) const = default;

    /// Composite sections (kinds 12 to 15) are told apart by the grades of the elements that use them.
    constexpr bool IsComposite() const noexcept { return kind >= 12 && kind <= 15; }
};

struct CSectionHash {
    std::size_t operator()(const T_SATWE_SECT_D& section) const noexcept;
};

}  // namespace satwecvt
