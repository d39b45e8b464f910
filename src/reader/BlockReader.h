// What all blocks of an input file have in common: lines are read one by one, their numbers go into records, and a
// failure is known by its line and block.
//
// All lines of a block are read before one of them may fail for its content: a user who cancels behind a bad line has
// cancelled, and the progress window has seen every line. No text is kept for that: a line is parsed at once, and the
// first failure waits for the end of its block.
#pragma once

#include "finding/InvalidArgument.h"
#include "reader/DataLines.h"
#include "reader/LineNumbers.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace satwecvt {

class CBlockReader {
public:
    CBlockReader(CDataLines& dataLines, ESource inputSource) : lines(dataLines), source(inputSource) {}

    CDataLines& Lines() noexcept { return lines; }

    /// The numbers of the line read last.
    CLineNumbers& Numbers() noexcept { return numbers; }

    /// The line read last, as records keep it.
    std::int32_t Line() const noexcept { return static_cast<std::int32_t>(lines.LineNumber()); }

    /// To be called when the reading of the file has ended; `isWhole` tells whether all blocks were read.
    void EndFile(bool isWhole);

    /// Names the block that is read from here on.
    void Begin(std::string_view blockName) noexcept { block = blockName; }

    /// Names the story block that is read from here on, counted from 1.
    void BeginStory(std::int32_t storyBlock) noexcept { story = storyBlock; }

    /// Reads the next data line into `Numbers`. Returns 1, or 0 when the read has to stop.
    [[nodiscard]] int ReadNumbers();

    /// Lets the numbers of the line read last go, and returns what has room for others.
    CLineNumbers& NewNumbers();

    /// Parses a record, unless a line of this block has failed before. A failure waits for `End`.
    template <class Parse>
    void ParseRecord(Parse parse)
    {
        if (failure) {
            return;
        }
        try {
            parse();
        } catch (const CInvalidArgument& invalidArgument) {
            failure = CInvalidArgument(Place(), invalidArgument.what());
            failedText = LineText();
        }
    }

    /// Ends the block: raises the failure that waits, if there is one.
    void End() const
    {
        if (failure) {
            throw CInvalidArgument(*failure);
        }
    }

    /// Reads a block of `count` lines with one record each. The count is compared after a line has been read, so a
    /// count of 0 or less never ends the block: it takes the rest of the file and fails there.
    template <class Parse>
    [[nodiscard]] int ReadLines(std::int64_t count, Parse parse)
    {
        std::int64_t stored = 0;
        do {
            if (ReadNumbers() == 0) {
                return 0;
            }
            ParseRecord(parse);
            ++stored;
        } while (stored != count);
        End();
        return 1;
    }

    /// Notes why a read that returns 0 stopped at a line, where it is not for the end of the file.
    void Stop(std::string why)
    {
        reason = std::move(why);
        failedText = LineText();
    }

    /// Where the reading stands, in words: "beam lines of story block 2".
    std::string BlockName() const;

    /// The line read last.
    CPlace Place() const noexcept { return {source, lines.LineNumber()}; }

    /// The line to look at when a read has returned 0, and why it did: for a line that failed before, that one.
    CPlace StopPlace() const noexcept { return failure ? failure->Place() : Place(); }
    std::string StopReason() const { return failure ? failure->what() : reason; }

    /// The text of that line; empty when the read stopped for another reason than a line.
    const std::string& StopText() const noexcept { return failedText; }

    /// The text of the line read last, without its line end.
    std::string LineText() const;

private:
    CDataLines& lines;
    ESource source;
    CLineNumbers numbers;
    std::string_view block;
    std::int32_t story = 0;
    std::optional<CInvalidArgument> failure;
    std::string failedText;
    std::string reason = "the file ends here";
};

}  // namespace satwecvt
