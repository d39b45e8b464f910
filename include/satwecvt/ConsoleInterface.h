// The user interface of a terminal: messages and a progress line on stderr. As long as it lives, Ctrl-C cancels the
// reading instead of ending the process.
#pragma once

#include "satwecvt/UserInterface.h"

#include <memory>
#include <string_view>

namespace satwecvt {

class CInterrupt;
class CProgressLine;

/// Whether a progress line is drawn.
enum class EProgressLine { Drawn, Off };

class CConsoleInterface : public CUserInterface {
public:
    explicit CConsoleInterface(EProgressLine progressLine);
    ~CConsoleInterface() override;

    void ShowMessage(std::string_view text) override;
    void ReportFileError(std::string_view cause, std::string_view path) override;
    std::unique_ptr<CProgressWindow> CreateProgressWindow() override;

    /// Whether stderr is a terminal, where a line can be drawn over.
    static bool StderrIsTerminal();

private:
    std::unique_ptr<CInterrupt> interrupt;
    std::unique_ptr<CProgressLine> line;  // none when it is off
};

}  // namespace satwecvt
