// The look at a model, beside its writing: neither changes the model.
#pragma once

#include "conversion/Conversion.h"
#include "model/SatweModel.h"
#include "satwecvt/Finding.h"

#include <exception>
#include <memory>
#include <thread>
#include <vector>

namespace satwecvt {

class CDoubtSearch {
public:
    /// Begins at once where the look is wanted beside the writing and the system has a thread for it.
    CDoubtSearch(std::shared_ptr<const CSatweModel> model, ELook look);
    ~CDoubtSearch();
    CDoubtSearch(const CDoubtSearch&) = delete;
    CDoubtSearch& operator=(const CDoubtSearch&) = delete;

    /// Looks now, or waits for the thread. Throws std::bad_alloc.
    std::vector<CFinding> Doubts();

private:
    void Search() noexcept;

    std::shared_ptr<const CSatweModel> model;
    std::vector<CFinding> doubts;
    std::exception_ptr failure;
    std::thread thread;
};

}  // namespace satwecvt
