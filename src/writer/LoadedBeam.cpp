#include "writer/LoadedBeam.h"

#include "writer/WriterFindings.h"

#include <algorithm>

namespace satwecvt {

double CLoadedBeam::CutForce(const T_SATWE_STLD_D& load) const noexcept
{
    const auto& value = load.value;
    const bool isLinear = load.loadType == ELoadType::BeamLinear;
    const double start = isLinear ? value[2] : value[1];
    const double end = isLinear ? value[3] : value[1] + 2.0 * value[2];
    const double mean = isLinear ? (value[0] + value[1]) / 2.0 : value[0] / 2.0;
    return mean * ((end - start) - (std::min(end, length) - std::min(start, length)));
}

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
