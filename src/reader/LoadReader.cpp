#include "reader/LoadReader.h"

#include "reader/RecordParsing.h"

#include <limits>

namespace satwecvt {

int CLoadReader::Read()
{
    model.loads.reserve(reader.Lines().MostRecords(std::numeric_limits<std::int32_t>::max()));
    for (std::int32_t block = 0; block < model.storyCount; ++block) {
        reader.BeginStory(block + 1);
        if (ReadStoryLoads(block + 1) == 0) {
            return 0;
        }
    }
    return 1;
}

int CLoadReader::ReadStoryLoads(std::int32_t storyBlock)
{
    reader.Begin("count line");
    if (reader.ReadNumbers() == 0) {
        return 0;
    }
    const std::int32_t count = reader.Numbers().Integer(1);
    reader.Begin("load lines");
    for (std::int32_t i = 0; i < count; ++i) {
        if (reader.ReadNumbers() == 0) {
            return 0;
        }
        T_SATWE_STLD_D load = ParseLoad(reader.Numbers());
        load.storyId = storyBlock;
        model.loads.push_back(load);
    }
    return 1;
}

}  // namespace satwecvt
