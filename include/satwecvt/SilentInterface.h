// The user interface of programs that want none: nothing is shown, nobody cancels. What a conversion had to say stands
// in its report.
#pragma once

#include "satwecvt/UserInterface.h"

namespace satwecvt {

class CSilentProgress : public CProgressWindow {
public:
    void SetTotalLines(std::int32_t /*total*/) override {}
    int StepLine(std::int32_t /*line*/) override { return 1; }
    void SetStageText(std::string_view /*text*/) override {}
};

class CSilentInterface : public CUserInterface {
public:
    void ShowMessage(std::string_view /*text*/) override {}
    void ReportFileError(std::string_view /*cause*/, std::string_view /*path*/) override {}
    std::unique_ptr<CProgressWindow> CreateProgressWindow() override { return std::make_unique<CSilentProgress>(); }
};

}  // namespace satwecvt
