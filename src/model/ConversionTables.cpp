#include "model/ConversionTables.h"

#include <type_traits>

namespace satwecvt {

namespace {

/// Mixes one field into the hash of a record.
void Combine(std::size_t& hash, std::size_t field) noexcept
{
    constexpr std::size_t kGoldenRatio = ~std::size_t{0} / 1618 * 1000 | 1U;
    hash = (hash ^ field) * kGoldenRatio;
    hash ^= hash >> (sizeof(hash) * 4);
}

void Combine(std::size_t& hash, std::int32_t field) noexcept
{
    Combine(hash, std::hash<std::int32_t>{}(field));
}

template <class Enum>
requires std::is_enum_v<Enum>
void Combine(std::size_t& hash, Enum field) noexcept
{
    Combine(hash, static_cast<std::int32_t>(field));
}

}  // namespace

bool operator==(const T_SATWE_SECT_D& a, const T_SATWE_SECT_D& b) noexcept
{
    return a.kind == b.kind && a.param1 == b.param1 && a.param2 == b.param2 && a.dims == b.dims &&
           a.concreteGrade == b.concreteGrade && a.steelGrade == b.steelGrade;
}

std::size_t CMaterialHash::operator()(const T_SATWE_MATL_D& material) const noexcept
{
    std::size_t hash = 0;
    Combine(hash, material.type);
    Combine(hash, material.grade);
    Combine(hash, material.steelGrade);
    return hash;
}

std::size_t CSectionHash::operator()(const T_SATWE_SECT_D& section) const noexcept
{
    std::size_t hash = 0;
    Combine(hash, section.kind);
    Combine(hash, section.param1);
    Combine(hash, section.param2);
    for (const double dim : section.dims) {
        Combine(hash, std::hash<double>{}(dim));  // equal for 0.0 and -0.0, as the comparison is
    }
    Combine(hash, section.concreteGrade);
    Combine(hash, section.steelGrade);
    return hash;
}

std::int32_t CConversionTables::FindOrAddMaterial(EMaterialType type, std::int32_t grade, std::int32_t steelGrade)
{
    return materials.FindOrAdd({type, grade, steelGrade});
}

std::int32_t CConversionTables::FindOrAddSection(std::int32_t inputSection, std::int32_t concreteGrade,
                                                 std::int32_t steelGrade)
{
    T_SATWE_SECT_D section = model.InputSection(inputSection);
    if (section.IsComposite()) {
        section.concreteGrade = concreteGrade;
        section.steelGrade = steelGrade;
    }
    return sections.FindOrAdd(section);
}

std::int32_t CConversionTables::FindOrAddThickness(double value)
{
    return thicknesses.FindOrAdd(value);
}

}  // namespace satwecvt
