// The data lines of an input file, one after the other: what every reader takes its numbers from. Before each physical
// line the progress window is asked whether to go on; comments and blank lines are passed over.
#pragma once

#include "lines/InputFile.h"
#include "reader/LineDoubts.h"
#include "reader/LineNumbers.h"
#include "satwecvt/FileSystem.h"
#include "satwecvt/UserInterface.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace satwecvt {

/// What the reading of both files leaves behind, however it ends.
struct CReadState {
    std::int32_t lineCounter = 0;  // physical lines asked for, over both files together
    std::int64_t steps = 0;        // looks at whether the user has cancelled
    bool cancelled = false;        // the user has cancelled
};

class CDataLines {
public:
    /// `lineDoubts` is null where nobody wants to hear of doubts; all have to outlive the object.
    CDataLines(CFileSystem& system, CProgressWindow& progressWindow, CReadState& readState, CLineDoubts* lineDoubts)
        : input(system),
          progress(progressWindow),
          state(readState),
          doubts(lineDoubts)
    {}

    /// Opens a file, whose lines have been counted. Returns 1, or 0 when it cannot be opened.
    [[nodiscard]] int Open(ESource source, const char* path, std::int64_t countedLines);
    void Close() noexcept { input.Close(); }
    const std::string& OpenCause() const noexcept { return input.OpenCause(); }

    /// Reads on to the next data line. Returns 1, or 0 at the end of the file or when the user has cancelled, with
    /// `cancelled` set then and the file closed.
    [[nodiscard]] int ReadDataLine();

    /// Reads on to the next data line, and its numbers. Returns like `ReadDataLine`, and 0 for a data line without
    /// numbers.
    [[nodiscard]] int ReadNumbers(CLineNumbers& numbers);

    /// Reads numbers from a text out of lines of the file, behind those that `numbers` holds. Returns 1, or 0 when it
    /// holds none then.
    [[nodiscard]] int ParseNumbers(const CNumberText& from, CLineNumbers& numbers);

    /// The same from the data line read last.
    [[nodiscard]] int ParseMoreNumbers(CLineNumbers& numbers);

    /// Looks once more at the numbers that were used of the line read last.
    void LookAtUse(CLineNumbers& numbers);

    /// The same where they were read from other texts, one behind the other.
    void LookAtUse(CLineNumbers& numbers, std::span<const CNumberText> from);

    /// Looks at the file when its reading has ended; `isWhole` tells whether all blocks were read.
    void LookAtFile(bool isWhole);

    /// The data line read last, with its newline; holds until the next line is read. `ReadDataLine` puts it into upper
    /// case; `ReadNumbers` may leave it as it is, which changes none of its numbers.
    std::string_view Text() const noexcept { return {line.data(), line.size()}; }

    /// Makes the physical line read last the next one again. It counts once more.
    void StepBack() noexcept { input.StepBack(); }

    /// How many records the rest of the file can hold at most, of as many as it announces: each takes a line. What an
    /// input only promises gets no memory.
    std::size_t MostRecords(std::int32_t announced) const noexcept;

    /// The number, in its file, of the physical line read last.
    std::int64_t LineNumber() const noexcept { return input.LineNumber(); }

    /// The data line read last as the line of a text.
    CTextLine TextLine() const noexcept { return {line.size(), LineNumber()}; }

private:
    [[nodiscard]] int ReadLine();
    [[nodiscard]] int ReadOtherLine(CLineNumbers& numbers);
    [[nodiscard]] int PassOver();
    static void WatchPlainLine(CLineNumbers& numbers);
    void NoteLine(bool isRest);

    CInputFile input;
    CProgressWindow& progress;
    CReadState& state;
    CLineDoubts* doubts;
    std::int64_t lineCount = 0;  // of the file
    std::span<char> line;
};

}  // namespace satwecvt
