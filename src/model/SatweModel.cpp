#include "model/SatweModel.h"

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

}  // namespace

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

std::int32_t CSatweModel::FindOrAddMaterial(std::int32_t type, std::int32_t grade, std::int32_t steelGrade)
{
    return materials.FindOrAdd({type, grade, steelGrade});
}

std::int32_t CSatweModel::FindOrAddSection(std::int32_t inputSection, std::int32_t concreteGrade,
                                           std::int32_t steelGrade)
{
    T_SATWE_SECT_D section = InputSection(inputSection);
    if (section.IsComposite()) {
        section.concreteGrade = concreteGrade;
        section.steelGrade = steelGrade;
    }
    return sections.FindOrAdd(section);
}

std::int32_t CSatweModel::FindOrAddThickness(double value)
{
    return thicknesses.FindOrAdd(value);
}

T_SATWE_SECT_D CSatweModel::InputSection(std::int32_t inputSection) const
{
    const T_SATWE_SECT_D* section = inputSections.Find(inputSection);
    return section != nullptr ? *section : T_SATWE_SECT_D{};
}

}  // namespace satwecvt
