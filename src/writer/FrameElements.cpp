#include "writer/FrameElements.h"

#include "model/Int32.h"
#include "model/MemberMaterial.h"
#include "text/WriteLine.h"
#include "writer/PromisedRecords.h"

#include <array>
#include <cstddef>

namespace satwecvt {

namespace {

/// The property numbers of a frame element.
struct CFrameProperties {
    std::int32_t material;
    std::int32_t section;
};

/// Numbers the properties of a story's members of one kind. They depend on the input section alone, so the numbers of
/// the sections met last are kept: finding them again in the tables takes longer than writing the member.
class CPropertyNumbers {
public:
    using CChooseMaterial = T_SATWE_MATL_D (*)(const T_SATWE_SECT_D& section, const CMemberGrades& grades);

    CPropertyNumbers(CElementOutput& output, const CMemberGrades& memberGrades, CChooseMaterial materialOf)
        : model(output.model),
          tables(output.tables),
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
        const CFrameProperties properties{tables.FindOrAddMaterial(material.type, material.grade, material.steelGrade),
                                          tables.FindOrAddSection(inputSection, grades.concrete, grades.steel)};
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

    const CSatweModel& model;
    CConversionTables& tables;
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

/// Adds the offsets of a beam whose extra line was read.
void AddOffsets(std::vector<T_SATWE_BEOF_D>& offsets, const T_SATWE_STIF_D& story, const T_SATWE_STBM_D& beam)
{
    if (const auto* rgd = story.OffsetsOf(beam)) {
        offsets.push_back({beam.seq, rgd});
    }
}

}  // namespace

void WriteBeams(CElementOutput& output, const T_SATWE_STIF_D& story)
{
    const CMemberGrades grades{story.BeamGrade(), story.SteelGrade()};
    CPropertyNumbers numbers(output, grades, BeamOrColumnMaterial);
    const CPromisedRecords beams(story.beams, EObject::Beam, &story);
    for (std::int32_t i = 0; i < story.beamCount; ++i) {
        const T_SATWE_STBM_D& beam = beams[i];
        const CFrameProperties properties = numbers.Of(beam.c3);
        if (LastDigit(beam.c4) > 1) {
            output.tables.releases.push_back({beam.seq, LastDigit(beam.c4)});
        }
        if (beam.HasExtra()) {
            AddOffsets(output.tables.offsets, story, beam);
        }
        WriteFrameLine(output.modelFile, beam.seq, properties, beam.nodeI, beam.nodeJ, beam.d6);
        ++output.counts.beams;
    }
}

void WriteColumns(CElementOutput& output, const T_SATWE_STIF_D& story)
{
    const CMemberGrades grades{story.ColumnGrade(), story.SteelGrade()};
    CPropertyNumbers numbers(output, grades, BeamOrColumnMaterial);
    const CPromisedRecords columns(story.columns, EObject::Column, &story);
    for (std::int32_t i = 0; i < story.columnCount; ++i) {
        const T_SATWE_STCL_D& column = columns[i];
        const CFrameProperties properties = numbers.Of(column.c3);
        const std::int32_t digit = LastDigit(column.c4);
        if (column.hasExtra != 0) {
            AddSplitReleases(output.tables.releases, column.seq, digit);
            WriteFrameLine(output.modelFile, column.seq, properties, column.nodeI, column.extraValue, column.d6);
            WriteFrameLine(output.modelFile, WrappedSum(column.seq, 1), properties, column.extraValue, column.nodeJ,
                           column.d6);
            output.counts.columns += 2;
            continue;
        }
        if (digit > 1) {
            output.tables.releases.push_back({column.seq, digit});
        }
        WriteFrameLine(output.modelFile, column.seq, properties, column.nodeI, column.nodeJ, column.d6);
        ++output.counts.columns;
    }
}

void WriteBraces(CElementOutput& output, const T_SATWE_STIF_D& story)
{
    const CMemberGrades grades{story.BraceGrade(), story.SteelGrade()};
    CPropertyNumbers numbers(output, grades, BraceMaterial);
    const CPromisedRecords braces(story.braces, EObject::Brace, &story);
    for (std::int32_t i = 0; i < story.braceCount; ++i) {
        const T_SATWE_STBR_D& brace = braces[i];
        const CFrameProperties properties = numbers.Of(brace.c3);
        if (brace.c4 > 1) {
            output.tables.releases.push_back({brace.seq, brace.c4});
        }
        WriteFrameLine(output.modelFile, brace.seq, properties, brace.nodeI, brace.nodeJ, brace.d6);
        ++output.counts.braces;
    }
}

}  // namespace satwecvt
