// Which material a frame element gets.
#pragma once

#include "model/MaterialRecord.h"
#include "model/SectionRecord.h"

#include <cstdint>

namespace satwecvt {

/// The grades that a story gives to one of its member kinds.
struct CMemberGrades {
    std::int32_t concrete;  // of the member kind
    std::int32_t steel;
};

constexpr T_SATWE_MATL_D ConcreteMaterial(const CMemberGrades& grades)
{
    return {EMaterialType::Concrete, grades.concrete, 0};
}

constexpr T_SATWE_MATL_D SteelMaterial(const CMemberGrades& grades)
{
    return {EMaterialType::Steel, grades.steel, 0};
}

constexpr T_SATWE_MATL_D CompositeMaterial(const CMemberGrades& grades)
{
    return {EMaterialType::Composite, grades.concrete, grades.steel};
}

/// A beam or column is steel when its section is marked so, and concrete otherwise.
constexpr T_SATWE_MATL_D BeamOrColumnMaterial(const T_SATWE_SECT_D& section, const CMemberGrades& grades)
{
    if (section.IsComposite()) {
        return CompositeMaterial(grades);
    }
    return section.param1 == kSteelMark ? SteelMaterial(grades) : ConcreteMaterial(grades);
}

/// A brace is concrete when its section is marked so, and steel otherwise: the other way round than a beam, so that a
/// section with neither mark gives concrete beams and steel braces.
constexpr T_SATWE_MATL_D BraceMaterial(const T_SATWE_SECT_D& section, const CMemberGrades& grades)
{
    if (section.IsComposite()) {
        return CompositeMaterial(grades);
    }
    return section.param1 == kConcreteMark ? ConcreteMaterial(grades) : SteelMaterial(grades);
}

}  // namespace satwecvt
