#include "check/TestBudget.h"

#include "check/LookFinding.h"

namespace satwecvt {

namespace {

constexpr std::int64_t kSharedTests = 1000000;
constexpr std::int64_t kTestsPerMember = 200;

}  // namespace

CTestBudget::CTestBudget(const CSatweModel& model)
    : shared(kSharedTests),
      granted(std::max<std::size_t>(2, model.stories.Count() + 1))
{
    std::size_t level = kModelLevel;
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        const std::size_t members = story.beams.Count() + story.columns.Count() + story.braces.Count();
        granted[++level] = kTestsPerMember * static_cast<std::int64_t>(members);
    }
    left = granted;
    wasSpent.resize(granted.size(), 0);
}

void CTestBudget::Renew()
{
    for (std::size_t level = 0; level < left.size(); ++level) {
        wasSpent[level] = wasSpent[level] != 0 || left[level] < 0 ? 1 : 0;
    }
    shared = kSharedTests;
    left = granted;
}

void CTestBudget::TellSpent(const CSatweModel& model, CFindingListener& listener) const
{
    for (std::uint32_t level = kModelLevel + 1; level <= model.stories.Count(); ++level) {
        if (wasSpent[level] != 0 || left[level] < 0) {
            listener.Tell(StoryFinding(EFinding::LookIncomplete, StoryOf(model, level)));
        }
    }
}

}  // namespace satwecvt
