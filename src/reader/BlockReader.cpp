#include "reader/BlockReader.h"

namespace satwecvt {

int CBlockReader::ReadNumbers()
{
    return lines.ReadNumbers(numbers);
}

std::string CBlockReader::BlockName() const
{
    std::string name(block);
    if (story > 0) {
        name += " of story block " + std::to_string(story);
    }
    return name;
}

}  // namespace satwecvt
