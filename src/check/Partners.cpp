#include "check/Partners.h"

#include "check/LookFinding.h"

namespace satwecvt {

void CPartners::Tell(EFinding code, const CSatweModel& model, const CFrameList& frames,
                     CFindingListener& listener) const
{
    for (std::size_t i = 0; i < earliest.size(); ++i) {
        if (earliest[i] != kNone) {
            CFinding finding = ElementFinding(code, model, frames.Frames()[i].name);
            finding.values[0] = frames.Frames()[earliest[i]].name.element;
            listener.Tell(finding);
        }
    }
}

}  // namespace satwecvt
