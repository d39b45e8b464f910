// The pieces that an input file is read in, as bytes tell them one by one.
#pragma once

#include "file/MemoryFiles_test.h"
#include "lines/InputFile.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace satwecvt {

/// One piece as `ReadLine` hands it out, and the line that it belongs to.
struct CPiece {
    std::string text;
    std::int64_t line;

    bool operator==(const CPiece&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const CPiece& piece)
{
    return out << piece.line << ": " << testing::PrintToString(piece.text);
}

using CPieces = std::vector<CPiece>;

/// A Windows text stream and the reads of 499 characters from it, one byte at a time.
inline CPieces ExpectedPieces(const std::string& bytes)
{
    CPieces pieces;
    std::string characters;
    std::int64_t line = 1;
    const auto endPiece = [&] {
        pieces.push_back({characters.substr(0, characters.find('\0')), line});
        line += characters.back() == '\n' ? 1 : 0;
        characters.clear();
    };
    for (std::size_t i = 0; i < bytes.size() && bytes[i] != '\x1A'; ++i) {
        if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') {
            continue;
        }
        characters += bytes[i];
        if (characters.size() == 499 || bytes[i] == '\n') {
            endPiece();
        }
    }
    if (!characters.empty()) {
        endPiece();
    }
    return pieces;
}

inline CPieces ReadPieces(CFileSystem& system)
{
    CInputFile input(system);
    EXPECT_EQ(1, input.Open("input"));
    CPieces pieces;
    for (std::span<char> piece; input.ReadLine(piece) != 0;) {
        pieces.push_back({{piece.begin(), piece.end()}, input.LineNumber()});
    }
    return pieces;
}

inline CPieces PiecesOf(const std::string& bytes)
{
    CMemoryFiles system;
    system.files["input"] = bytes;
    return ReadPieces(system);
}

}  // namespace satwecvt
