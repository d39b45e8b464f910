// An input file, cut into lines by the rules of a Windows text stream on every platform: CR LF is LF, a lone CR stays,
// a byte 0x1A ends the file, a NUL ends the text of its line. A line comes in pieces of at most 499 characters, as if
// read into a buffer of 500 bytes; that limit is part of the format.
//
// The file is read in large blocks. A line is a view into the block, which its user may change (the readers put it in
// upper case where it lies), and holds until the next line is read.
#pragma once

#include "satwecvt/FileSystem.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace satwecvt {

class CInputFile {
public:
    /// The most characters of one piece, the newline included.
    static constexpr std::size_t kMostCharacters = 499;

    explicit CInputFile(CFileSystem& system);
    ~CInputFile();
    CInputFile(const CInputFile&) = delete;
    CInputFile& operator=(const CInputFile&) = delete;

    /// Opens a file, closing the one that was open. Returns 1, or 0 when it cannot be opened.
    [[nodiscard]] int Open(const char* filePath);
    void Close() noexcept;

    /// The system's word for why the last `Open` returned 0.
    const std::string& OpenCause() const noexcept { return openCause; }

    /// Reads the next piece, with its newline when it has one. Returns 1, or 0 at the end of the file. Throws
    /// CFileError where the system cannot read on, behind the last whole piece in front of that.
    [[nodiscard]] int ReadLine(std::span<char>& piece);

    /// Makes the next `ReadLine` hand out the last piece once more.
    void StepBack() noexcept { repeatLast = true; }

    /// The number of the line, counted from 1, that the last piece belongs to; 0 before the first.
    std::int64_t LineNumber() const noexcept { return lineNumber; }

    /// Whether the line of the last piece goes on in the next one.
    bool LineGoesOn() const noexcept { return !lastEndedLine && begin != end; }

    /// Lines handed out so far whose text a NUL ended.
    struct CNulLines {
        std::int64_t count = 0;
        std::int64_t first = 0;
        std::int64_t last = 0;
    };
    const CNulLines& NulLines() const noexcept { return nulLines; }

    /// What stands behind a byte 0x1A, which ended the file.
    struct CEndMark {
        std::int64_t line = 0;   // where the byte stands
        std::int64_t bytes = 0;  // how many bytes follow
        bool isBlank = true;     // all of them are white space
    };

    /// Reads what is left of the file behind a byte 0x1A; none when the lines did not end at such a byte. Throws
    /// CFileError where the system cannot read on.
    [[nodiscard]] std::optional<CEndMark> ReadBehindEndMark();

private:
    struct Cut {
        std::size_t rawLength;   // bytes that the piece takes from the block
        std::size_t textLength;  // characters of the piece, before a NUL shortens it
    };

    [[nodiscard]] int ReadOn();
    void NoteNul() noexcept;
    void FillBlock();
    bool HoldsWholePiece() const noexcept;
    Cut CutPiece() noexcept;

    CFileSystem& system;
    std::vector<char> block;
    std::size_t begin = 0;  // block[begin] to block[end - 1] are read but not yet handed out
    std::size_t end = 0;
    int file = -1;
    bool atEnd = true;  // nothing follows the block
    int readError = 0;  // why nothing follows it, when the system refused: the number of the error
    bool blockHasNul = false;
    bool repeatLast = false;
    bool lastEndedLine = true;  // the last piece ended with a newline
    std::int64_t lineNumber = 0;
    std::size_t behindMark = 0;  // where the bytes behind a byte 0x1A begin in the block; 0: none was met
    std::size_t filled = 0;      // the end of what was read into the block
    CNulLines nulLines;
    std::span<char> lastPiece;
    std::string path;
    std::string openCause;
};

/// The number of pieces of a file; 0 when it cannot be opened. A read failure ends the count without a word: it
/// is for the progress, and for room made beforehand.
std::int64_t CountLines(CFileSystem& system, const char* path);

}  // namespace satwecvt
