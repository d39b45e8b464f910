#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace satwecvt {

/// The shapes of sections. A record may hold any other number, which has no lines in the model text file.
enum class ESectionKind : std::int32_t {
    ByValues = 0,
    Rectangle = 1,
    H = 2,
    SolidCircle = 3,
    SolidCircle4 = 4,
    Channel = 5,
    Cross = 6,
    Box = 7,
    Pipe = 8,
    DoubleChannel = 9,
    CrossedH = 10,
    Rectangle11 = 11,
    FilledPipe = 12,
    EncasedH = 13,
    EncasedBox = 14,
    Composite15 = 15,  // composite, without lines
};

/// The marks that choose between concrete and steel.
inline constexpr std::int32_t kSteelMark = 5;
inline constexpr std::int32_t kConcreteMark = 6;

/// A section definition: a line of ten numbers and a line of four. Two sections are the same when every field but the
/// line is exactly equal.
struct T_SATWE_SECT_D {
    ESectionKind kind{};             // line A, 2
    std::int32_t param1 = 0;         // line A, 3: `kSteelMark` or `kConcreteMark`
    std::int32_t param2 = 0;         // line A, 4: part of the identity only
    std::array<double, 10> dims{};   // line A, 5 to 10, then line B, 1 to 4: dimensions, meaning by kind
    std::int32_t concreteGrade = 0;  // composite kinds: grades of the element that uses the section
    std::int32_t steelGrade = 0;
    std::int32_t line = 0;    // where line A stands in the structure file
    std::int32_t number = 0;  // line A, 1: what members name it by; no part of the identity

    /// Whether sections of the kind have lines in the model text file.
    constexpr bool HasLines() const noexcept
    {
        return kind >= ESectionKind::ByValues && kind <= ESectionKind::EncasedBox;
    }

    /// Composite sections are told apart by the grades of the elements that use them.
    constexpr bool IsComposite() const noexcept
    {
        return kind >= ESectionKind::FilledPipe && kind <= ESectionKind::Composite15;
    }
};

bool operator==(const T_SATWE_SECT_D& a, const T_SATWE_SECT_D& b) noexcept;

struct CSectionHash {
    std::size_t operator()(const T_SATWE_SECT_D& section) const noexcept;
};

}  // namespace satwecvt
