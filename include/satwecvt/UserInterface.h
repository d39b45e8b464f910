// The only thing that a conversion knows of a screen. A dialog, a terminal, nothing at all or a test stands behind it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace satwecvt {

/// The window that shows how far a conversion has come, from its creation to its destruction.
class CProgressWindow {
public:
    virtual ~CProgressWindow() = default;

    /// The number of input lines in both files together. Called once before the first step, and never where nothing is
    /// read.
    virtual void SetTotalLines(std::int32_t total) = 0;

    /// Called before each physical line is read, with the number of lines read so far. Returns 1 to go on, 0 when the
    /// user has cancelled; after a 0 the window is gone from the screen and is only destroyed, never called again.
    [[nodiscard]] virtual int StepLine(std::int32_t line) = 0;

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

    /// Creates the progress window and shows it. Null, when there can be none, ends the conversion as a failed one:
    /// whoever wants no window brings one that shows nothing (`CSilentInterface`).
    virtual std::unique_ptr<CProgressWindow> CreateProgressWindow() = 0;
};

/// The text of `ReportFileError`: "tower.vkm could not be written: Permission denied".
inline std::string FileErrorText(std::string_view cause, std::string_view path)
{
    std::string text(path);
    text += " could not be written: ";
    text += cause;
    return text;
}

}  // namespace satwecvt
