// The only thing that reader, writer and driver know of a screen. A dialog, a terminal or a test stands behind it.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

namespace satwecvt {

/// The window that shows how far a conversion has come, from its creation to its destruction.
class CProgressWindow {
public:
    virtual ~CProgressWindow() = default;

    /// The number of input lines in both files together. Called once, before the first step.
    virtual void SetTotalLines(std::int32_t total) = 0;

    /// Called before each physical line is read, with the number of lines read so far. Answers 1 to go on, 0 when the
    /// user has cancelled; after a 0 the window is gone from the screen and is only destroyed, never called again.
    virtual int StepLine(std::int32_t line) = 0;

    /// Replaces the status text by "!!! %s !!!" of `text`; until the first call it is "!!! Read Data File !!!".
    virtual void SetStageText(std::string_view text) = 0;
};

class CUserInterface {
public:
    virtual ~CUserInterface() = default;

    /// Shows a message that the user has to acknowledge.
    virtual void ShowMessage(std::string_view text) = 0;

    /// Shows the one message of an output file that could not be written, naming the cause and the file.
    virtual void ReportFileError(std::string_view cause, std::string_view path) = 0;

    /// Creates the progress window and shows it; null when there can be none.
    virtual std::unique_ptr<CProgressWindow> CreateProgressWindow() = 0;
};

}  // namespace satwecvt
