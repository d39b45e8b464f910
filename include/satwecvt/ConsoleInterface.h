// The user interface of a terminal: messages and a progress line on stderr, cancel on Ctrl-C. It also keeps what a
// screen would have shown, for the program's report.
#pragma once

#include "ui/UserInterface.h"
#include "ui/console/ProgressLine.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace satwecvt {

/// What the user of a screen would have seen.
struct CScreenRecord {
    std::vector<std::string> messages;  // texts of the message boxes
    std::vector<std::string> stages;    // status texts of the progress window
    std::int32_t totalLines = 0;
    std::int64_t steps = 0;  // calls of `StepLine`
};

/// Whether a progress line is drawn.
enum class EProgressLine { Drawn, Off };

class CConsoleInterface : public CUserInterface {
public:
    explicit CConsoleInterface(EProgressLine progressLine);

    void ShowMessage(std::string_view text) override;
    void ReportFileError(std::string_view cause, std::string_view path) override;
    std::unique_ptr<CProgressWindow> CreateProgressWindow() override;

    const CScreenRecord& Record() const noexcept { return record; }

    /// Whether stderr is a terminal, where a line can be drawn over.
    static bool StderrIsTerminal();

private:
    std::optional<CProgressLine> line;  // none when it is off
    CScreenRecord record;
};

}  // namespace satwecvt
