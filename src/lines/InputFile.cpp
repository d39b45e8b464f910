#include "lines/InputFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string_view>

namespace satwecvt {

namespace {

constexpr std::size_t kBlockSize = std::size_t{64} * 1024;
constexpr char kEndOfText = '\x1A';

// A piece of 499 characters whose last two bytes are CR LF takes 500 bytes.
constexpr std::size_t kMostBytesOfPiece = CInputFile::kMostCharacters + 1;

}  // namespace

CInputFile::CInputFile(CFileSystem& fileSystem) : system(fileSystem), block(kBlockSize) {}

CInputFile::~CInputFile()
{
    Close();
}

int CInputFile::Open(const char* filePath)
{
    Close();
    path = filePath;
    file = system.OpenForReading(filePath);
    if (file < 0) {
        openCause = std::strerror(errno);
        return 0;
    }
    atEnd = false;
    repeatLast = false;
    lastEndedLine = true;
    lineNumber = 0;
    behindMark = 0;
    nulLines = {};
    return 1;
}

void CInputFile::Close() noexcept
{
    if (file >= 0) {
        system.Close(file);  // nothing was written: a failure here loses nothing
    }
    file = -1;
    atEnd = true;
    readError = 0;
    begin = end = 0;
}

int CInputFile::ReadLine(std::span<char>& piece)
{
    if (repeatLast) {
        repeatLast = false;
        piece = lastPiece;
        return 1;
    }
    if (end - begin < kMostBytesOfPiece && ReadOn() == 0) {
        return 0;
    }
    lineNumber += lastEndedLine ? 1 : 0;
    char* const text = block.data() + begin;
    const Cut cut = CutPiece();
    begin += cut.rawLength;
    const void* nul = blockHasNul ? std::memchr(text, '\0', cut.textLength) : nullptr;
    std::size_t length = cut.textLength;
    if (nul != nullptr) {
        length = static_cast<std::size_t>(static_cast<const char*>(nul) - text);
        NoteNul();
    }
    piece = lastPiece = std::span<char>(text, length);
    return 1;
}

/// Counts the line of the last piece, once however many of its pieces hold a NUL.
void CInputFile::NoteNul() noexcept
{
    if (nulLines.last != lineNumber) {
        ++nulLines.count;
        nulLines.first = nulLines.first == 0 ? lineNumber : nulLines.first;
        nulLines.last = lineNumber;
    }
}

/// Fills the block where it may hold less than a piece. Returns 1, or 0 at the end of the file.
int CInputFile::ReadOn()
{
    if (!atEnd) {
        FillBlock();
    }
    if (readError != 0 && !HoldsWholePiece()) {
        throw CFileError(path, std::strerror(readError));
    }
    return begin != end ? 1 : 0;
}

/// Moves what is left to the front of the block and fills up the rest.
void CInputFile::FillBlock()
{
    std::memmove(block.data(), block.data() + begin, end - begin);
    end -= begin;
    begin = 0;
    while (end < block.size() && !atEnd) {
        char* const target = block.data() + end;
        const std::ptrdiff_t count = system.Read(file, target, block.size() - end);
        if (count < 0) {
            readError = errno != 0 ? errno : EIO;
            atEnd = true;
            break;
        }
        const auto size = static_cast<std::size_t>(count);
        const void* endOfText = std::memchr(target, kEndOfText, size);
        filled = end + size;
        if (endOfText != nullptr) {
            behindMark = static_cast<std::size_t>(static_cast<const char*>(endOfText) - block.data()) + 1;
        }
        end = endOfText != nullptr ? behindMark - 1 : filled;
        atEnd = count == 0 || endOfText != nullptr;
    }
    blockHasNul = std::memchr(block.data(), '\0', end) != nullptr;
}

/// Whether no byte behind the block could change its first piece.
bool CInputFile::HoldsWholePiece() const noexcept
{
    return end - begin >= kMostBytesOfPiece || std::memchr(block.data() + begin, '\n', end - begin) != nullptr;
}

/// Finds the end of the piece that starts the block, and turns a CR LF there into the newline that it stands for.
CInputFile::Cut CInputFile::CutPiece() noexcept
{
    char* const text = block.data() + begin;
    const std::size_t most = std::min(end - begin, kMostBytesOfPiece);
    const void* newline = std::memchr(text, '\n', most);
    lastEndedLine = newline != nullptr;
    if (newline == nullptr) {
        const std::size_t length = std::min(most, kMostCharacters);
        return {length, length};
    }
    const auto position = static_cast<std::size_t>(static_cast<const char*>(newline) - text);
    if (position > 0 && text[position - 1] == '\r') {
        text[position - 1] = '\n';
        return {position + 1, position};
    }
    if (position == kMostCharacters) {  // the newline is the 500th character: it starts the next piece
        lastEndedLine = false;
        return {kMostCharacters, kMostCharacters};
    }
    return {position + 1, position + 1};
}

std::optional<CInputFile::CEndMark> CInputFile::ReadBehindEndMark()
{
    if (behindMark == 0 || begin != end) {
        return std::nullopt;
    }
    CEndMark mark{lineNumber + (lastEndedLine ? 1 : 0)};
    std::string_view rest(block.data() + behindMark, filled - behindMark);
    for (std::ptrdiff_t count = 1; count != 0; rest = {block.data(), static_cast<std::size_t>(count)}) {
        mark.bytes += static_cast<std::int64_t>(rest.size());
        mark.isBlank = mark.isBlank && rest.find_first_not_of(" \t\n\v\f\r") == std::string_view::npos;
        count = system.Read(file, block.data(), block.size());
        if (count < 0) {
            throw CFileError(path, std::strerror(errno));
        }
    }
    return mark;
}

std::int64_t CountLines(CFileSystem& system, const char* path)
{
    CInputFile input(system);
    std::int64_t count = 0;
    if (input.Open(path) == 0) {
        return count;
    }
    try {
        std::span<char> piece;
        while (input.ReadLine(piece) != 0) {
            ++count;
        }
    } catch (const CFileError&) {
        return count;
    }
    return count;
}

}  // namespace satwecvt
