// What a load of the load file acts on, as the structure file has it.
#pragma once

#include "check/BoundedForce.h"
#include "model/SatweModel.h"

#include <array>
#include <cstdint>
#include <optional>

namespace satwecvt {

/// The beam or wall of a load; both are null for a load on a node, and where there is none.
struct CLoadedObject {
    const T_SATWE_STBM_D* beam = nullptr;
    const T_SATWE_STWL_D* wall = nullptr;
    // Of the beam; of the wall along its first node row. None where a node is missing; infinite where one lies farther
    // out than lengths are computed.
    std::optional<CBounded> length;
};

/// Finds the objects of loads. The model has to outlive it.
class CLoadedObjects {
public:
    explicit CLoadedObjects(const CSatweModel& satweModel);

    CLoadedObject Find(const T_SATWE_STLD_D& load);

private:
    const T_SATWE_STIF_D* StoryOf(std::int32_t block);
    std::optional<CBounded> LengthBetween(std::int32_t first, std::int32_t last) const;

    const CSatweModel& model;
    CRecordTable<const T_SATWE_STND_D*> nodes;  // by number; of several with one number the last
    std::int32_t lastBlock = 0;                 // whose story was asked for last
    const T_SATWE_STIF_D* lastStory = nullptr;
};

}  // namespace satwecvt
