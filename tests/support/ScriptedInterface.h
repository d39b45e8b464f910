// The user interface of the tests: it cancels where it is told to and keeps all that it was shown.
#pragma once

#include "satwecvt/UserInterface.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace satwecvt {

class CScriptedInterface : public CUserInterface {
public:
    /// The number of the step, counted from 1, that returns "cancelled"; 0: none.
    std::int64_t cancelAtStep = 0;
    bool hasProgressWindow = true;

    /// Called at every step, with its number counted from 1.
    std::function<void(std::int64_t)> onStep;

    std::vector<std::string> messages;
    std::vector<std::string> fileErrors;  // "PATH: CAUSE"
    std::vector<std::string> stages;
    std::vector<std::int32_t> lines;   // what each step was told
    std::vector<std::int32_t> totals;  // what `SetTotalLines` was told
    std::int64_t steps = 0;
    int windowsCreated = 0;
    int windowsAlive = 0;

    void ShowMessage(std::string_view text) override { messages.emplace_back(text); }
    void ReportFileError(std::string_view cause, std::string_view path) override
    {
        fileErrors.push_back(std::string(path) + ": " + std::string(cause));
    }
    std::unique_ptr<CProgressWindow> CreateProgressWindow() override;
};

}  // namespace satwecvt
