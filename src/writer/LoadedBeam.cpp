#include "writer/LoadedBeam.h"

#include "writer/WriterFindings.h"

namespace satwecvt {

void TellMissingBeam(CLoadOutput& output, const T_SATWE_STLD_D& load)
{
    const T_SATWE_STIF_D* story = output.model.stories.Find(load.storyId);
    const T_SATWE_STBM_D* beam = story != nullptr ? story->beams.Find(load.memberId) : nullptr;
    const EFinding code = story == nullptr  ? EFinding::LoadStoryMissing
                          : beam == nullptr ? EFinding::LoadBeamMissing
                                            : EFinding::LoadNodeMissing;
    CFinding finding = LoadFinding(code, load, EObject::Beam, story);
    if (beam != nullptr) {
        const std::int32_t nodeI = WrappedAbs(beam->nodeI);
        finding.element = beam->seq;
        finding.values[0] = output.writtenNodes.Find(nodeI) == nullptr ? nodeI : WrappedAbs(beam->nodeJ);
    }
    output.findings.Tell(finding);
}

}  // namespace satwecvt
