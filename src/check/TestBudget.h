// How often the look may hold one thing against another: in proportion to the members of each story, and some more that
// the stories of a building share. In a building that can be built, a member has few others near to it; a file that
// heaps them up must not take the look hours.
#pragma once

#include "check/FrameList.h"
#include "model/SatweModel.h"
#include "satwecvt/Finding.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace satwecvt {

class CTestBudget {
public:
    explicit CTestBudget(const CSatweModel& model);

    /// Begins another question, for which all stories have all their tests again.
    void Renew();

    /// Whether the story of a level has so many more tests; what belongs to the model level counts with the first
    /// story.
    bool Spend(std::uint32_t level, std::size_t tests = 1) noexcept
    {
        std::int64_t& ofStory = left[(std::max)(level, kModelLevel + 1)];
        ofStory -= ofStory < 0 ? 0 : static_cast<std::int64_t>(tests);
        return ofStory >= 0 || Borrow(ofStory);
    }

    /// Tells the stories whose tests did not suffice for one of the questions.
    void TellSpent(const CSatweModel& model, CFindingListener& listener) const;

private:
    /// Makes up from the shared tests for what a story is short of.
    bool Borrow(std::int64_t& ofStory) noexcept
    {
        const bool isEnough = shared + ofStory >= 0;
        if (isEnough) {
            shared += ofStory;
            ofStory = 0;
        }
        return isEnough;
    }

    std::int64_t shared;                // left for stories that have used up their own
    std::vector<std::int64_t> granted;  // by level
    std::vector<std::int64_t> left;     // by level; below 0 once there was one too few
    std::vector<char> wasSpent;         // by level: in a question before
};

}  // namespace satwecvt
