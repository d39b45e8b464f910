#include "check/TestBudget.h"

#include "check/LookFinding.h"

namespace satwecvt {

namespace {

constexpr std::int64_t kTestsPerStory = 10000;
constexpr std::int64_t kTestsPerMember = 200;

}  // namespace

CTestBudget::CTestBudget(const CSatweModel& model, const CFrameList& frames)
    : left(std::max<std::size_t>(2, model.stories.Count() + 1), kTestsPerStory)
{
    for (const CFrame& frame : frames.Frames()) {
        left[frame.name.level] += kTestsPerMember;
    }
}

void CTestBudget::TellSpent(const CSatweModel& model, CFindingListener& listener) const
{
    for (std::uint32_t level = kModelLevel + 1; level <= model.stories.Count(); ++level) {
        if (left[level] < 0) {
            listener.Tell(StoryFinding(EFinding::LookIncomplete, StoryOf(model, level)));
        }
    }
}

}  // namespace satwecvt
