#include "check/LookFinding.h"

namespace satwecvt {

namespace {

template <class Record>
void NameRecord(CFinding& finding, const CRecordTable<Record>& table, std::uint32_t record)
{
    finding.key = table.KeyAt(record);
    finding.place.line = table.At(record).line;
}

}  // namespace

CFinding StoryFinding(EFinding code, const T_SATWE_STIF_D& story)
{
    CFinding finding = MakeFinding(code, {ESource::StructureFile, story.line});
    finding.object = EObject::Story;
    finding.story = story.key;
    finding.storyNo = story.storyNo;
    return finding;
}

CFinding NodeFinding(EFinding code, const CSatweModel& model, const CListedNode& node)
{
    CFinding finding = MakeFinding(code, {ESource::StructureFile, node.record->line});
    finding.object = EObject::Node;
    finding.key = node.record->number;
    if (node.level != kModelLevel) {
        finding.story = StoryOf(model, node.level).key;
        finding.storyNo = StoryOf(model, node.level).storyNo;
    }
    return finding;
}

CFinding SectionFinding(EFinding code, const T_SATWE_SECT_D& section)
{
    CFinding finding = MakeFinding(code, {ESource::StructureFile, section.line});
    finding.object = EObject::Section;
    finding.key = section.number;
    return finding;
}

CFinding ElementFinding(EFinding code, const CSatweModel& model, const CElementName& name)
{
    const T_SATWE_STIF_D& story = StoryOf(model, name.level);
    CFinding finding = StoryFinding(code, story);
    finding.object = name.kind;
    finding.element = name.element;
    switch (name.kind) {
    case EObject::Beam:
        NameRecord(finding, story.beams, name.record);
        break;
    case EObject::Column:
        NameRecord(finding, story.columns, name.record);
        break;
    case EObject::Brace:
        NameRecord(finding, story.braces, name.record);
        break;
    case EObject::Wall:
        NameRecord(finding, story.walls, name.record);
        break;
    default:
        NameRecord(finding, story.plates, name.record);
        break;
    }
    return finding;
}

}  // namespace satwecvt
