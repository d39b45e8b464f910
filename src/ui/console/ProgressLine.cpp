#include "ui/console/ProgressLine.h"

#include <algorithm>
#include <cstdio>

namespace satwecvt {

std::string ProgressText(std::int32_t lineNumber, std::int32_t totalLines, std::string_view stage)
{
    const std::int64_t percent =
        totalLines > 0 ? std::clamp<std::int64_t>(std::int64_t{lineNumber} * 100 / totalLines, 0, 100) : 100;
    std::string text = percent < 100 ? (percent < 10 ? "  " : " ") : "";
    text += std::to_string(percent) + " %  line " + std::to_string(lineNumber) + " of " + std::to_string(totalLines);
    text += "  ";
    text += stage;
    return text;
}

void CProgressLine::SetTotalLines(std::int32_t total)
{
    lastLine = 0;
    totalLines = total;
}

void CProgressLine::UpdateLine(std::int32_t lineNumber, std::string_view stage)
{
    lastLine = lineNumber;
    UpdateStage(stage);
}

void CProgressLine::UpdateStage(std::string_view stage)
{
    constexpr auto kInterval = std::chrono::milliseconds(50);
    const auto now = std::chrono::steady_clock::now();
    if (now >= nextDrawing) {
        Draw(ProgressText(lastLine, totalLines, stage));
        nextDrawing = now + kInterval;
    }
}

void CProgressLine::Clear()
{
    if (drawnLength > 0) {
        Draw("");
        std::fputc('\r', stderr);
    }
    drawnLength = 0;
}

/// Draws over the last text; what is left of a longer one is blanked.
void CProgressLine::Draw(const std::string& text)
{
    std::string line = "\r" + text;
    line.resize(1 + std::max(text.size(), drawnLength), ' ');
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fflush(stderr);
    drawnLength = text.size();
}

}  // namespace satwecvt
