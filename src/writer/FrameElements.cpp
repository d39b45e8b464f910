#include "writer/FrameElements.h"

#include "model/Int32.h"
#include "writer/WriteLine.h"

#include <array>
#include <cstddef>

namespace satwecvt {

namespace {

/// The grades that a story gives to one of its member kinds.
struct CMemberGrades {
    std::int32_t concrete;  // of the member kind
    std::int32_t steel;
};

/// The property numbers of a frame element.
struct CFrameProperties {
    std::int32_t material;
    std::int32_t section;
};

constexpr T_SATWE_MATL_D Concrete(const CMemberGrades& grades)
{
    return {T_SATWE_MATL_D::kConcrete, grades.concrete, 0};
}

constexpr T_SATWE_MATL_D Steel(const CMemberGrades& grades)
{
    return {T_SATWE_MATL_D::kSteel, grades.steel, 0};
}

constexpr T_SATWE_MATL_D Composite(const CMemberGrades& grades)
{
    return {T_SATWE_MATL_D::kComposite, grades.concrete, grades.steel};
}

/// A beam or column is steel when its section's parameter is 5, and concrete otherwise.
constexpr T_SATWE_MATL_D BeamOrColumnMaterial(const T_SATWE_SECT_D& section, const CMemberGrades& grades)
{
    if (section.IsComposite()) {
        return Composite(grades);
    }
    return section.param1 == 5 ? Steel(grades) : Concrete(grades);
}

/// A brace is concrete when its section's parameter is 6, and steel otherwise: the other way round than a beam, so that
/// a parameter which is neither 5 nor 6 gives concrete beams and steel braces.
constexpr T_SATWE_MATL_D BraceMaterial(const T_SATWE_SECT_D& section, const CMemberGrades& grades)
{
    if (section.IsComposite()) {
        return Composite(grades);
    }
    return section.param1 == 6 ? Concrete(grades) : Steel(grades);
}

/// Numbers the properties of a story's members of one kind. They depend on the input section alone, so the numbers of
/// the sections met last are kept: finding them again in the model takes longer than writing the member.
class CPropertyNumbers {
public:
    using CChooseMaterial = T_SATWE_MATL_D (*)(const T_SATWE_SECT_D& section, const CMemberGrades& grades);

    CPropertyNumbers(CSatweModel& satweModel, const CMemberGrades& memberGrades, CChooseMaterial materialOf)
        : model(satweModel),
          grades(memberGrades),
          chooseMaterial(materialOf)
    {}

    CFrameProperties Of(std::int32_t inputSection)
    {
        CKept& kept = keptSections[static_cast<std::uint32_t>(inputSection) % kKept];
        if (kept.properties.section != 0 && kept.inputSection == inputSection) {
            return kept.properties;
        }
        const T_SATWE_SECT_D section = model.InputSection(inputSection);
        const T_SATWE_MATL_D material = chooseMaterial(section, grades);
        const CFrameProperties properties{model.FindOrAddMaterial(material.type, material.grade, material.steelGrade),
                                          model.FindOrAddSection(inputSection, grades.concrete, grades.steel)};
        if (EqualsItself(section)) {  // otherwise it gets a new number each time
            kept = {inputSection, properties};
        }
        return properties;
    }

private:
    struct CKept {
        std::int32_t inputSection = 0;
        CFrameProperties properties{};
    };

    static constexpr std::size_t kKept = 64;

    CSatweModel& model;
    CMemberGrades grades;
    CChooseMaterial chooseMaterial;
    std::array<CKept, kKept> keptSections{};  // none has the section number 0
};

void WriteFrameLine(COutputFile& modelFile, std::int32_t element, const CFrameProperties& properties,
                    std::int32_t nodeI, std::int32_t nodeJ, double angle)
{
    WriteLine(modelFile, "  %d, BEAM, %d, %d, %d, %d, %g\n", element, properties.material, properties.section,
              WrappedAbs(nodeI), WrappedAbs(nodeJ), angle);
}

/// The last decimal digit of a release code, whatever its sign.
constexpr std::int32_t LastDigit(std::int32_t code)
{
    return code % 10 < 0 ? -(code % 10) : code % 10;
}

/// The releases of a split column: each moves to the piece that owns the end.
void AddSplitReleases(std::vector<T_SATWE_BMER_D>& releases, std::int32_t seq, std::int32_t digit)
{
    const bool releasesFirstEnd = digit == 2 || digit == 4;
    const bool releasesSecondEnd = digit == 3 || digit == 4;
    if (releasesFirstEnd) {
        releases.push_back({seq, 2});
    }
    if (releasesSecondEnd) {
        releases.push_back({WrappedSum(seq, 1), 3});
    }
}

}  // namespace

void WriteBeams(CElementOutput& output, const T_SATWE_STIF_D& story)
{
    const CMemberGrades grades{TruncateToInt32(story.storyValues[1]), story.storyExtra};
    CPropertyNumbers numbers(output.model, grades, BeamOrColumnMaterial);
    for (std::int32_t i = 0; i < story.beamCount; ++i) {
        const T_SATWE_STBM_D& beam = story.beams.At(i);
        const CFrameProperties properties = numbers.Of(beam.c3);
        if (LastDigit(beam.c4) > 1) {
            output.model.releases.push_back({beam.seq, LastDigit(beam.c4)});
        }
        if (beam.extra != 0) {
            output.model.offsets.push_back({beam.seq, story.beamExtras[beam.extra - 1]});
        }
        WriteFrameLine(output.modelFile, beam.seq, properties, beam.nodeI, beam.nodeJ, beam.d6);
        ++output.counts.beams;
    }
}

void WriteColumns(CElementOutput& output, const T_SATWE_STIF_D& story)
{
    const CMemberGrades grades{TruncateToInt32(story.storyValues[2]), story.storyExtra};
    CPropertyNumbers numbers(output.model, grades, BeamOrColumnMaterial);
    for (std::int32_t i = 0; i < story.columnCount; ++i) {
        const T_SATWE_STCL_D& column = story.columns.At(i);
        const CFrameProperties properties = numbers.Of(column.c3);
        const std::int32_t digit = LastDigit(column.c4);
        if (column.hasExtra != 0) {
            AddSplitReleases(output.model.releases, column.seq, digit);
            WriteFrameLine(output.modelFile, column.seq, properties, column.nodeI, column.extraValue, column.d6);
            WriteFrameLine(output.modelFile, WrappedSum(column.seq, 1), properties, column.extraValue, column.nodeJ,
                           column.d6);
            output.counts.columns += 2;
            continue;
        }
        if (digit > 1) {
            output.model.releases.push_back({column.seq, digit});
        }
        WriteFrameLine(output.modelFile, column.seq, properties, column.nodeI, column.nodeJ, column.d6);
        ++output.counts.columns;
    }
}

void WriteBraces(CElementOutput& output, const T_SATWE_STIF_D& story)
{
    const CMemberGrades grades{TruncateToInt32(story.storyValues[1]), story.storyExtra};
    CPropertyNumbers numbers(output.model, grades, BraceMaterial);
    for (std::int32_t i = 0; i < story.braceCount; ++i) {
        const T_SATWE_STBR_D& brace = story.braces.At(i);
        const CFrameProperties properties = numbers.Of(brace.c3);
        if (brace.c4 > 1) {
            output.model.releases.push_back({brace.seq, brace.c4});
        }
        WriteFrameLine(output.modelFile, brace.seq, properties, brace.nodeI, brace.nodeJ, brace.d6);
        ++output.counts.braces;
    }
}

}  // namespace satwecvt
