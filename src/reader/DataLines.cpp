#include "reader/DataLines.h"

#include "lines/PlainLine.h"
#include "lines/StrParser.h"
#include "model/Int32.h"

#include <algorithm>
#include <cmath>

namespace satwecvt {

int CDataLines::Open(ESource source, const char* path, std::int64_t countedLines)
{
    if (doubts != nullptr) {
        doubts->BeginFile(source);
    }
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
    bool isRest = false;
    if (ReadLine() == 0) {
        return 0;
    }
    while (CStrParser::CheckLine(line) == 0) {
        isRest = input.LineGoesOn();
        if (PassOver() == 0) {
            return 0;
        }
    }
    if (doubts != nullptr) {
        NoteLine(isRest);
    }
    return 1;
}

int CDataLines::ReadNumbers(CLineNumbers& numbers)
{
    if (ReadLine() == 0) {
        return 0;
    }
    if (!ReadPlainLine(Text(), numbers.Values())) {
        return ReadOtherLine(numbers);
    }
    if (doubts != nullptr) {
        WatchPlainLine(numbers);
    }
    return 1;
}

/// Goes on from a line that `ReadPlainLine` does not take: a data line of another look, or one to pass over.
int CDataLines::ReadOtherLine(CLineNumbers& numbers)
{
    bool isRest = false;  // of a comment of more than 499 characters
    bool isPlain = false;
    while (!isPlain && CStrParser::CheckLine(line) == 0) {
        isRest = input.LineGoesOn();
        if (PassOver() == 0) {
            return 0;
        }
        isPlain = ReadPlainLine(Text(), numbers.Values());
    }
    if (doubts != nullptr) {
        NoteLine(isRest);
    }
    if (isPlain) {
        WatchPlainLine(numbers);
        return 1;
    }
    numbers.Values().clear();
    return ParseMoreNumbers(numbers);
}

/// The arithmetic of a plain line may give a number that is none.
void CDataLines::WatchPlainLine(CLineNumbers& numbers)
{
    const std::vector<double>& values = numbers.Values();
    if (!std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); })) {
        numbers.WatchReals();
    }
}

int CDataLines::ParseNumbers(const CNumberText& from, CLineNumbers& numbers)
{
    if (doubts != nullptr) {
        doubts->OfNumbers(from);
        numbers.WatchReals();
    }
    return CStrParser::ParseNumbers(from.text, numbers.Values());
}

int CDataLines::ParseMoreNumbers(CLineNumbers& numbers)
{
    const CTextLine whole = TextLine();
    return ParseNumbers({Text(), {&whole, 1}}, numbers);
}

void CDataLines::LookAtUse(CLineNumbers& numbers)
{
    const CTextLine whole = TextLine();
    const CNumberText from{Text(), {&whole, 1}};
    LookAtUse(numbers, {&from, 1});
}

void CDataLines::LookAtUse(CLineNumbers& numbers, std::span<const CNumberText> from)
{
    if (doubts != nullptr && numbers.OutOfRange().position != 0) {
        doubts->OfRange(numbers, from);
    }
    numbers.Reset();
}

void CDataLines::LookAtFile(bool isWhole)
{
    if (doubts != nullptr && !state.cancelled) {
        doubts->OfFile(input, isWhole);
    }
}

/// Reads on from a line that holds no number.
int CDataLines::PassOver()
{
    if (doubts != nullptr) {
        doubts->OfPassedLine(input, Text());
    }
    return ReadLine();
}

/// Looks at the data line read last; `isRest` tells that it is the rest of a comment.
void CDataLines::NoteLine(bool isRest)
{
    doubts->OfLine(input, Text());
    if (isRest) {
        doubts->OfPiece(LineNumber());
    }
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
