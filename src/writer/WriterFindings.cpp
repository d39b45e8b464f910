#include "writer/WriterFindings.h"

namespace satwecvt {

namespace {

CFinding Finding(EFinding code, const CPlace& place)
{
    CFinding finding;
    finding.code = code;
    const bool isNote = code == EFinding::FlatTriangle || code == EFinding::ZeroLoad;
    finding.severity = isNote ? ESeverity::Note : ESeverity::Loss;
    finding.place = place;
    return finding;
}

}  // namespace

CFinding MemberFinding(EFinding code, const T_SATWE_STIF_D& story, EObject object, std::int32_t key, std::int32_t line,
                       std::int32_t element)
{
    CFinding finding = Finding(code, {ESource::StructureFile, line});
    finding.object = object;
    finding.story = story.key;
    finding.storyNo = story.storyNo;
    finding.key = key;
    finding.element = element;
    return finding;
}

CFinding LoadFinding(EFinding code, const T_SATWE_STLD_D& load, EObject object, const T_SATWE_STIF_D* story)
{
    CFinding finding = Finding(code, {ESource::LoadFile, load.line});
    finding.object = object;
    finding.story = load.storyId;
    if (story != nullptr) {
        finding.storyNo = story->storyNo;
    }
    finding.key = load.memberId;
    finding.loadCase = load.loadCase;
    return finding;
}

}  // namespace satwecvt
