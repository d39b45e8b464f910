// Reads the structure file: the header, the section definitions, the model-level nodes and the story blocks, in one
// forward pass with one step back behind story line 3.
#pragma once

#include "model/SatweModel.h"
#include "reader/BlockReader.h"
#include "reader/MemberReader.h"

#include <cstdint>

namespace satwecvt {

class CStructureReader {
public:
    CStructureReader(CBlockReader& blockReader, CSatweModel& satweModel)
        : reader(blockReader),
          model(satweModel),
          members(blockReader)
    {}

    /// Reads the open structure file up to the end of its last story block into the model. Returns 1, or 0 when the
    /// file ends too early, the user cancels or a wall's point list does not fit. A line with too few numbers is the
    /// invalid-argument failure. The model keeps what was stored before.
    [[nodiscard]] int Read();

private:
    [[nodiscard]] int ReadHeader();
    [[nodiscard]] int ReadSections();
    [[nodiscard]] int ReadModelNodes();
    [[nodiscard]] int ReadStory();
    [[nodiscard]] int ReadStoryLine1(T_SATWE_STIF_D& story);
    [[nodiscard]] int ReadStoryLine2();
    [[nodiscard]] int ReadStoryLine3(T_SATWE_STIF_D& story);
    [[nodiscard]] int ReadStoryLine4(T_SATWE_STIF_D& story);
    [[nodiscard]] int ReadNodes(std::int32_t count, CRecordTable<T_SATWE_STND_D>& nodes);

    CBlockReader& reader;
    CSatweModel& model;
    CMemberReader members;
};

}  // namespace satwecvt
