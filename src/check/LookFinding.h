// Findings of the look, with place and object.
#pragma once

#include "check/FrameList.h"
#include "check/NodeList.h"
#include "model/SatweModel.h"
#include "satwecvt/Finding.h"

namespace satwecvt {

CFinding StoryFinding(EFinding code, const T_SATWE_STIF_D& story);
CFinding NodeFinding(EFinding code, const CSatweModel& model, const CListedNode& node);

/// About the section with a number of the structure file.
CFinding SectionFinding(EFinding code, const T_SATWE_SECT_D& section);
CFinding ElementFinding(EFinding code, const CSatweModel& model, const CElementName& name);

/// The story of a level other than the model's.
inline const T_SATWE_STIF_D& StoryOf(const CSatweModel& model, std::uint32_t level)
{
    return model.stories.At(level - 1);
}

}  // namespace satwecvt
