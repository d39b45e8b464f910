#include "reader/LoadReader.h"

#include "reader/RecordParsing.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace satwecvt {

int CLoadReader::Read()
{
    model.loads.Reserve(reader.Lines().MostRecords(std::numeric_limits<std::int32_t>::max()));
    while (block < model.storyCount) {
        ++block;
        if (ReadStoryLoads() == 0) {
            return 0;
        }
    }
    return 1;
}

int CLoadReader::ReadStoryLoads()
{
    if (reader.ReadNumbers() == 0) {
        return 0;
    }
    const std::int32_t count = reader.Numbers().Integer(1);
    announced += std::max(count, 0);
    if (count <= 0) {
        emptyBlocks.push_back({block, reader.Place()});
    }
    for (std::int32_t i = 0; i < count; ++i) {
        if (reader.ReadNumbers() == 0) {
            return 0;
        }
        T_SATWE_STLD_D load = ParseLoad(reader.Numbers());
        load.storyId = block;
        load.line = reader.Line();
        model.loads.Add(load);
    }
    return 1;
}

void CLoadReader::TellEmptyBlocks(CFindingListener& findings) const
{
    if (model.loads.Count() == 0) {
        return;
    }
    for (const CEmptyBlock& empty : emptyBlocks) {
        CFinding finding = MakeFinding(EFinding::StoryWithoutLoad, empty.place);
        finding.object = EObject::Story;
        finding.story = empty.block;
        if (const T_SATWE_STIF_D* const story = model.stories.Find(empty.block)) {
            finding.storyNo = story->storyNo;
        }
        findings.Tell(finding);
    }
}

CFinding CLoadReader::EndsEarly(std::string cause) const
{
    CFinding finding = MakeFinding(EFinding::EndsEarly, reader.Place());
    finding.values = {static_cast<double>(block), static_cast<double>(model.storyCount),
                      static_cast<double>(model.loads.Count()), static_cast<double>(announced)};
    finding.quote = std::move(cause);
    return finding;
}

}  // namespace satwecvt
