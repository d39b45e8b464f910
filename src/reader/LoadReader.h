// Reads the load file: one block per story of the structure file, a count line and that many load lines each. Nothing
// in an open load file makes a conversion fail: whatever ends it early, the loads read so far are kept.
#pragma once

#include "model/SatweModel.h"
#include "reader/BlockReader.h"

#include <cstdint>
#include <string>
#include <vector>

namespace satwecvt {

class CLoadReader {
public:
    CLoadReader(CBlockReader& blockReader, CSatweModel& satweModel) : reader(blockReader), model(satweModel) {}

    /// Reads the open load file into the model. Returns 1 when all blocks were read, 0 when the reading stopped early:
    /// at the end of the file or by a cancel.
    [[nodiscard]] int Read();

    /// Tells the blocks without a load, when others have some.
    void TellEmptyBlocks(CFindingListener& findings) const;

    /// The finding for a reading that stopped early; `cause` is the system's word when it refused to read on.
    CFinding EndsEarly(std::string cause) const;

private:
    [[nodiscard]] int ReadStoryLoads();

    /// A block that was read and has no load.
    struct CEmptyBlock {
        std::int32_t block;
        CPlace place;
    };

    CBlockReader& reader;
    CSatweModel& model;
    std::vector<CEmptyBlock> emptyBlocks;
    std::int32_t block = 0;      // the block that is read, counted from 1
    std::int64_t announced = 0;  // loads that the blocks so far were to have
};

}  // namespace satwecvt
