// Reads the load file: one block per story of the structure file, a count line and that many load lines each. Nothing
// in an open load file makes a conversion fail: whatever ends it early, the loads read so far are kept.
#pragma once

#include "model/SatweModel.h"
#include "reader/BlockReader.h"

#include <cstdint>

namespace satwecvt {

class CLoadReader {
public:
    CLoadReader(CBlockReader& blockReader, CSatweModel& satweModel) : reader(blockReader), model(satweModel) {}

    /// Reads the open load file into the model. Answers 1 when all blocks were read, 0 when the reading stopped early:
    /// at the end of the file or by a cancel.
    int Read();

private:
    int ReadStoryLoads(std::int32_t storyBlock);

    CBlockReader& reader;
    CSatweModel& model;
};

}  // namespace satwecvt
