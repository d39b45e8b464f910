#pragma once

#include "cli/OrderedResults.h"
#include "cli/Strictness.h"
#include "satwecvt/ConversionReport.h"

#include <atomic>
#include <cstddef>
#include <vector>

namespace satwecvt {

/// How the pairs of a batch are converted.
struct CPairTreatment {
    EStrictness strictness = EStrictness::Lenient;
    bool isRecorded = false;  // the result holds the report, with the balance of the loads
};

/// Converts pairs in threads. Each thread works on one pair, and on nothing else, until that has ended. Ctrl-C cancels
/// the pairs that are being read, and lets no further one begin; somebody else holds the CInterrupt.
class CBatchRun {
public:
    /// All have to outlive the object.
    CBatchRun(const std::vector<CConversionPaths>& paths, const CPairTreatment& treatment, COrderedResults& results);

    /// Works until all pairs have ended, with so many threads or as many as the system gives, this one among them.
    void Work(std::size_t threads);

private:
    void WorkHere();

    const std::vector<CConversionPaths>& pairs;
    const CPairTreatment& treatment;
    COrderedResults& results;
    std::atomic<std::size_t> next = 0;
};

}  // namespace satwecvt
