// What is doubtful about the lines of an input file: dressings that no program writes on purpose, texts that are read
// as numbers and are none. A line that `ReadPlainLine` takes can have no doubt about its text, so nothing is asked of
// it.
#pragma once

#include "lines/InputFile.h"
#include "reader/LineNumbers.h"
#include "satwecvt/Finding.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace satwecvt {

/// A line of a text: it ends in front of the character at `end`, or with the text.
struct CTextLine {
    std::size_t end;
    std::int64_t line;
};

/// A text that numbers are read from, and its lines, one at least.
struct CNumberText {
    std::string_view text;
    std::span<const CTextLine> lines;
};

class CLineDoubts {
public:
    /// The listener has to outlive the object.
    explicit CLineDoubts(CFindingListener& listener) : findings(listener) {}

    /// Has to be called before anything is asked of a file.
    void BeginFile(ESource inputSource) noexcept
    {
        source = inputSource;
        toldLines = {};
    }

    /// Looks at a data line, the one that was read last. Each code is told once a line.
    void OfLine(const CInputFile& input, std::string_view text);

    /// Looks at a line that is passed over, the one that was read last.
    void OfPassedLine(const CInputFile& input, std::string_view text);

    /// Tells a data line that is a piece of a longer one.
    void OfPiece(std::int64_t line) { TellOnce(EFinding::LongLine, line); }

    /// Looks at the numbers of a text.
    void OfNumbers(const CNumberText& from);

    /// Tells the number that did not fit what it is used as. The numbers were read from these texts, one behind the
    /// other.
    void OfRange(const CLineNumbers& numbers, std::span<const CNumberText> from);

    /// Looks at a file whose reading has ended, and reads on to its end for that. `isWhole` tells whether all of its
    /// blocks were read.
    void OfFile(CInputFile& input, bool isWhole);

private:
    void TellLostCharacter(const CInputFile& input, std::string_view text);
    void TellOnce(EFinding code, std::int64_t line, std::string_view quote = {}, double value = 0.0);
    void TellRest(CInputFile& input);

    CFindingListener& findings;
    ESource source{};
    std::array<std::int64_t, kFindingCodes> toldLines{};  // by code: the line that it was told of last
};

}  // namespace satwecvt
