#include "conversion/DoubtSearch.h"

#include "check/ModelLook.h"

#include <system_error>
#include <utility>

namespace satwecvt {

CDoubtSearch::CDoubtSearch(std::shared_ptr<const CSatweModel> searched, ELook look) : model(std::move(searched))
{
    if (look == ELook::BehindTheWriting) {
        return;
    }
    try {
        thread = std::thread(&CDoubtSearch::Search, this);
    } catch (const std::system_error&) {
        // The system has no thread left: the look waits until it is asked for.
    }
}

CDoubtSearch::~CDoubtSearch()
{
    if (thread.joinable()) {
        thread.join();
    }
}

std::vector<CFinding> CDoubtSearch::Doubts()
{
    if (thread.joinable()) {
        thread.join();
    } else {
        Search();
    }
    if (failure) {
        std::rethrow_exception(failure);
    }
    return std::move(doubts);
}

void CDoubtSearch::Search() noexcept
{
    try {
        CFindingList found;
        LookAtModel(*model, found);
        doubts = found.Findings();
    } catch (...) {
        failure = std::current_exception();
    }
}

}  // namespace satwecvt
