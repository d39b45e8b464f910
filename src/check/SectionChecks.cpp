#include "check/SectionChecks.h"

#include "check/LookFinding.h"
#include "model/ElasticRatio.h"
#include "model/MemberMaterial.h"
#include "model/SteelGrade.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace satwecvt {

namespace {

/// Counts the members of each section, and tells those without one.
class CSectionUses {
public:
    CSectionUses(const CSatweModel& satweModel, CFindingListener& findingListener)
        : model(satweModel),
          listener(findingListener),
          uses(satweModel.inputSections.Count(), 0)
    {}

    template <class Member>
    void Add(const CRecordTable<Member>& members, EObject kind, std::uint32_t level)
    {
        const T_SATWE_SECT_D* const sections = model.inputSections.Records().data();
        std::uint32_t record = 0;
        for (const Member& member : members.Records()) {
            if (const T_SATWE_SECT_D* section = model.inputSections.Find(member.c3)) {
                ++uses[static_cast<std::size_t>(section - sections)];
            } else {
                CFinding finding = ElementFinding(EFinding::SectionMissing, model, {kind, level, record, member.seq});
                finding.values[0] = member.c3;
                listener.Tell(finding);
            }
            ++record;
        }
    }

    void TellKinds() const
    {
        for (std::size_t i = 0; i < uses.size(); ++i) {
            const T_SATWE_SECT_D& section = model.inputSections.At(i);
            if (uses[i] != 0 && !section.HasLines()) {
                CFinding finding = SectionFinding(EFinding::SectionKind, section);
                finding.values = {static_cast<double>(section.kind), static_cast<double>(uses[i])};
                listener.Tell(finding);
            }
        }
    }

private:
    const CSatweModel& model;
    CFindingListener& listener;
    std::vector<std::int64_t> uses;  // by the position of the section
};

/// How many members of some kinds are steel, alone or within concrete, and how many are both.
struct CMaterialCounts {
    std::int64_t steel = 0;
    std::int64_t composite = 0;

    template <class Member, class ChooseMaterial>
    void Add(const CSatweModel& model, const CRecordTable<Member>& members, ChooseMaterial materialOf)
    {
        for (const Member& member : members.Records()) {
            const EMaterialType type = materialOf(model.InputSection(member.c3), CMemberGrades{}).type;
            steel += type != EMaterialType::Concrete ? 1 : 0;
            composite += type == EMaterialType::Composite ? 1 : 0;
        }
    }
};

bool IsKnownSteel(std::int32_t grade)
{
    return grade == 0 || !SteelNameOf(grade).empty();
}

bool IsKnownConcrete(std::int32_t grade)
{
    return grade == 0 || ElasticRatioOf(grade);
}

/// Tells a grade that this many members have, unless it is none of theirs.
void TellGrade(const T_SATWE_STIF_D& story, std::int32_t grade, std::int64_t members, EMaterialType type,
               CFindingListener& listener)
{
    const bool isConcrete = type == EMaterialType::Concrete;
    if (members != 0 && !(isConcrete ? IsKnownConcrete(grade) : IsKnownSteel(grade))) {
        CFinding finding = StoryFinding(EFinding::GradeUnknown, story);
        finding.values = {static_cast<double>(grade), static_cast<double>(members), isConcrete ? 1.0 : 0.0};
        listener.Tell(finding);
    }
}

/// Beams and braces share a grade of the story; columns have one of their own, which may be the same.
void TellGradesOf(const CSatweModel& model, const T_SATWE_STIF_D& story, CFindingListener& listener)
{
    CMaterialCounts beams;
    beams.Add(model, story.beams, BeamOrColumnMaterial);
    beams.Add(model, story.braces, BraceMaterial);
    CMaterialCounts columns;
    columns.Add(model, story.columns, BeamOrColumnMaterial);
    TellGrade(story, story.SteelGrade(), beams.steel + columns.steel, EMaterialType::Steel, listener);
    if (story.BeamGrade() == story.ColumnGrade()) {
        beams.composite += columns.composite;
        columns.composite = 0;
    }
    TellGrade(story, story.BeamGrade(), beams.composite, EMaterialType::Concrete, listener);
    TellGrade(story, story.ColumnGrade(), columns.composite, EMaterialType::Concrete, listener);
}

}  // namespace

void TellReplacedSections(const CSatweModel& model, CFindingListener& listener)
{
    for (const T_SATWE_SECT_D& section : model.inputSections.Replaced()) {
        const T_SATWE_SECT_D* const later = model.inputSections.Find(section.number);
        if (!(*later == section)) {
            CFinding finding = SectionFinding(EFinding::SectionNumberTwice, section);
            finding.values[0] = later->line;
            listener.Tell(finding);
        }
    }
}

void TellSections(const CSatweModel& model, CFindingListener& listener)
{
    CSectionUses uses(model, listener);
    std::uint32_t level = kModelLevel;
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        ++level;
        uses.Add(story.beams, EObject::Beam, level);
        uses.Add(story.columns, EObject::Column, level);
        uses.Add(story.braces, EObject::Brace, level);
    }
    uses.TellKinds();
}

void TellGrades(const CSatweModel& model, CFindingListener& listener)
{
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        const bool allAreKnown = IsKnownSteel(story.SteelGrade()) && IsKnownConcrete(story.BeamGrade()) &&
                                 IsKnownConcrete(story.ColumnGrade());
        if (!allAreKnown) {
            TellGradesOf(model, story, listener);
        }
    }
}

}  // namespace satwecvt
