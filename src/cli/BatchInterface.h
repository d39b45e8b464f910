#pragma once

#include "satwecvt/SilentInterface.h"
#include "ui/console/Interrupt.h"

#include <cstdint>
#include <memory>

namespace satwecvt {

/// The user interface of one of many conversions: nothing is shown while it runs, and Ctrl-C cancels it like all
/// others. Somebody else holds the CInterrupt.
class CBatchInterface : public CSilentInterface {
public:
    std::unique_ptr<CProgressWindow> CreateProgressWindow() override { return std::make_unique<CProgress>(); }

private:
    class CProgress : public CSilentProgress {
    public:
        int StepLine(std::int32_t /*line*/) override { return CInterrupt::Requested() ? 0 : 1; }
    };
};

}  // namespace satwecvt
