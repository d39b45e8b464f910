// The progress of a conversion as one line of a terminal that is drawn over and over, at most 20 times a second.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace satwecvt {

class CProgressLine {
public:
    CProgressLine() = default;
    ~CProgressLine() { Clear(); }
    CProgressLine(const CProgressLine&) = delete;
    CProgressLine& operator=(const CProgressLine&) = delete;

    /// Begins with the first of so many lines.
    void SetTotalLines(std::int32_t total);

    /// Each draws the line when the last drawing is long enough ago. The model may be written in a step of its own,
    /// which has no lines to tell: those of the reading stay.
    void UpdateLine(std::int32_t lineNumber, std::string_view stage);
    void UpdateStage(std::string_view stage);

    /// Takes the line off the terminal.
    void Clear();

private:
    void Draw(const std::string& text);

    std::chrono::steady_clock::time_point nextDrawing{};
    std::size_t drawnLength = 0;
    std::int32_t lastLine = 0;
    std::int32_t totalLines = 0;
};

/// The text of the line: " 42 %  line 420 of 1000  Read Data File".
std::string ProgressText(std::int32_t lineNumber, std::int32_t totalLines, std::string_view stage);

}  // namespace satwecvt
