#include "writer/WriterFindings.h"

namespace satwecvt {

CFinding MemberFinding(EFinding code, const T_SATWE_STIF_D& story, EObject object, std::int32_t key, std::int32_t line,
                       std::int32_t element)
{
    CFinding finding = MakeFinding(code, {ESource::StructureFile, line});
    finding.object = object;
    finding.story = story.key;
    finding.storyNo = story.storyNo;
    finding.key = key;
    finding.element = element;
    return finding;
}

CFinding LoadFinding(EFinding code, const T_SATWE_STLD_D& load, EObject object, const T_SATWE_STIF_D* story)
{
    CFinding finding = MakeFinding(code, {ESource::LoadFile, load.line});
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
