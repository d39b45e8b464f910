#pragma once

#include "satwecvt/ConversionReport.h"
#include "satwecvt/UserInterface.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace satwecvt {

/// The user interface of a page. It tells the host how far a conversion has come, some twenty times a second, and at
/// each stage. A cancel does not come this way: it ends the whole worker. The messages are left to the report, whose
/// failure says more.
class CProgressTeller : public CUserInterface {
public:
    void ShowMessage(std::string_view /*text*/) override {}
    void ReportFileError(std::string_view /*cause*/, std::string_view /*path*/) override {}
    std::unique_ptr<CProgressWindow> CreateProgressWindow() override;

    void SetTotalLines(std::int32_t lines);
    void StepLine(std::int32_t lineNumber);
    void SetStage(std::string_view text);

private:
    using CClock = std::chrono::steady_clock;

    static constexpr int kStepsBetweenClocks = 500;  // a look at the clock takes as long as some lines

    void TellNowAndThen();
    void Tell() const;

    // The writing has a window of its own and no lines to tell: those of the reading stay.
    std::string stage{StageText(EStage::Read)};
    std::int32_t line = 0;
    std::int32_t total = 0;
    int stepsToClock = kStepsBetweenClocks;
    CClock::time_point next{};
};

}  // namespace satwecvt
