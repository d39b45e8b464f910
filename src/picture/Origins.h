// Which record of the input each node and element of a model was made of. A model has them in the order of the input,
// stories and their members by key, and leaves out some; so both are walked side by side, and an element belongs to the
// next record that has its number and its nodes. What no record is like has no origin.
#pragma once

#include "model/SatweModel.h"
#include "modelfile/ModelFile.h"
#include "picture/Picture.h"

#include <span>
#include <vector>

namespace satwecvt {

/// As many stories as are announced, in the order of their keys.
std::span<const T_SATWE_STIF_D> WrittenStories(const CSatweModel& input);

/// By position in `CModelFile::nodes`.
std::vector<COrigin> NodeOrigins(const CSatweModel& input, const CModelFile& model);

struct CElementOrigins {
    std::vector<COrigin> frameElements;   // by position in `CModelFile::frameElements`
    std::vector<COrigin> planarElements;  // by position in `CModelFile::planarElements`
};

CElementOrigins ElementOrigins(const CSatweModel& input, const CModelFile& model);

}  // namespace satwecvt
