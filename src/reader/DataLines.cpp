#include "reader/DataLines.h"

#include "lines/PlainLine.h"
#include "lines/StrParser.h"
#include "model/Int32.h"

#include <algorithm>

namespace satwecvt {

int CDataLines::Open(const char* path, std::int64_t countedLines)
{
    lineCount = countedLines;
    return input.Open(path);
}

std::size_t CDataLines::MostRecords(std::int32_t announced) const noexcept
{
    const std::int64_t linesLeft = std::max(lineCount - LineNumber(), std::int64_t{0});
    return static_cast<std::size_t>(std::clamp(std::int64_t{announced}, std::int64_t{0}, linesLeft));
}

int CDataLines::ReadDataLine()
{
    do {
        if (ReadLine() == 0) {
            return 0;
        }
    } while (CStrParser::CheckLine(line) == 0);
    return 1;
}

int CDataLines::ReadNumbers(CLineNumbers& numbers)
{
    std::vector<double>& values = numbers.Values();
    do {
        if (ReadLine() == 0) {
            return 0;
        }
        if (ReadPlainLine(Text(), values)) {
            return 1;
        }
    } while (CStrParser::CheckLine(line) == 0);
    values.clear();
    return CStrParser::ParseNumbers(Text(), values);
}

/// Reads the next physical line, after a look at whether the user has cancelled.
int CDataLines::ReadLine()
{
    ++state.steps;
    if (progress.StepLine(state.lineCounter) == 0) {
        state.cancelled = true;
        Close();
        return 0;
    }
    state.lineCounter = WrappedSum(state.lineCounter, 1);
    return input.ReadLine(line);
}

}  // namespace satwecvt
