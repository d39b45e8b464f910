// The materials, sections and thicknesses, and that the elements' numbers lead to them.
#include "Finding.h"
#include "ModelChecker.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace satwecvt {

namespace {

/// The elastic ratio of a composite section by the name of its concrete, as it is printed.
double ElasticRatio(std::string_view concrete)
{
    constexpr struct {
        std::string_view concrete;
        double ratio;
    } kRatios[] = {{"C15", 9.29771}, {"C20", 8.10641}, {"C25", 7.39146}, {"C35", 6.57454}, {"C40", 6.31921},
                   {"C45", 6.12057}, {"C50", 5.96168}, {"C55", 5.83173}, {"C60", 5.72349}, {"C65", 5.6318},
                   {"C70", 5.55331}, {"C75", 5.48514}, {"C80", 5.42562}};
    const auto* const row = std::find_if(std::begin(kRatios), std::end(kRatios),
                                         [concrete](const auto& entry) { return entry.concrete == concrete; });
    return row != std::end(kRatios) ? row->ratio : 6.91484;
}

}  // namespace

/// A skipped triangle may have taken a number, so there may be materials without elements. Grade 0 is written as C30.
void CModelChecker::CheckMaterials() const
{
    int composites = 0;
    for (std::size_t i = 0; i < model.materials.size(); ++i) {
        const CMaterial& material = model.materials[i];
        Expect(material.number == static_cast<std::int32_t>(i + 1), "the materials are not numbered from 1 on");
        Expect(material.type != EMaterial::Concrete || material.concrete != "C0", "a concrete has a wrong name");
        if (material.type == EMaterial::Composite) {
            ++composites;
            Expect(material.name == "SRC" + std::to_string(composites), "a composite has the name of another");
        }
    }
}

/// Sections of shapes that have no lines leave gaps in the numbers.
void CModelChecker::CheckSections()
{
    for (const CSection& section : model.sections) {
        const bool isLast = ratioOfSection.empty() || ratioOfSection.rbegin()->first < section.number;
        Expect(section.number >= 1 && isLast, "the section numbers do not rise");
        ratioOfSection[section.number] = section.composite[0];
        if (section.type == ESection::Value) {
            Expect(IsSameNumber(section.values[0], section.values[1]), "a square has two side lengths");
        }
        if (section.type == ESection::Composite) {
            const auto& [ratio, density, poissonOfSteel, poissonOfConcrete] = section.composite;
            Expect(density == 3.0792 && poissonOfSteel == 0.3 && poissonOfConcrete == 0.2,
                   "a composite has other properties");
        }
    }
}

void CModelChecker::CheckThicknesses() const
{
    for (std::size_t i = 0; i < model.thicknesses.size(); ++i) {
        Expect(model.thicknesses[i].number == static_cast<std::int32_t>(i + 1),
               "the thicknesses are not numbered from 1 on");
    }
}

const CMaterial* CModelChecker::WrittenMaterial(std::int32_t number) const
{
    const bool isThere = number >= 1 && number <= std::ssize(model.materials);
    return isThere ? &model.materials[static_cast<std::size_t>(number) - 1] : nullptr;
}

/// Every beam's section counts from its first use, so a number is new only when it is the next one. A section is
/// composite where the material is, and both are of the same concrete.
void CModelChecker::CheckFrameProperties()
{
    std::int32_t lastSection = 0;
    for (const CFrameElement& beam : model.frameElements) {
        const CMaterial* const material = WrittenMaterial(beam.material);
        Expect(material != nullptr, "a beam's material is not written");
        Expect(beam.section >= 1 && beam.section <= lastSection + 1, "a section was passed over");
        lastSection = std::max(lastSection, beam.section);
        const double ratio = material->type == EMaterial::Composite ? ElasticRatio(material->concrete) : 0.0;
        const auto section = ratioOfSection.find(beam.section);
        if (section != ratioOfSection.end() && section->second != ratio) {
            Fail("the material and section of element " + std::to_string(beam.number) + " do not fit");
        }
    }
    Expect(ratioOfSection.empty() || ratioOfSection.rbegin()->first <= lastSection, "a section is of no beam");
    found.sections = lastSection;
}

void CModelChecker::CheckPlanarProperties() const
{
    for (const CPlanarElement& planar : model.planarElements) {
        const CMaterial* const material = WrittenMaterial(planar.material);
        Expect(material != nullptr && material->type == EMaterial::Concrete,
               "a wall's or plate's material is no concrete that is written");
        Expect(planar.thickness >= 1 && planar.thickness <= std::ssize(model.thicknesses),
               "a thickness is not written");
    }
}

}  // namespace satwecvt
