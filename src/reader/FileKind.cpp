#include "reader/FileKind.h"

#include "lines/InputFile.h"
#include "lines/StrParser.h"
#include "model/Int32.h"
#include "model/LoadRecord.h"

#include <array>
#include <cstddef>
#include <vector>

namespace satwecvt {

namespace {

using CNumbers = std::vector<double>;

constexpr std::size_t kHeaderNumbers = 3;
constexpr std::size_t kSectionNumbersA = 10;
constexpr std::size_t kSectionNumbersB = 4;
constexpr std::size_t kLoadNumbers = 5;  // as far as the first value

/// The numbers of the first data lines of a file; lines that it does not have hold none.
std::array<CNumbers, 3> FirstNumbers(CFileSystem& system, const std::string& path)
{
    std::array<CNumbers, 3> lines;
    CInputFile input(system);
    if (input.Open(path.c_str()) == 0) {
        return lines;
    }
    try {
        for (CNumbers& numbers : lines) {
            std::span<char> piece;
            do {
                if (input.ReadLine(piece) == 0) {
                    return lines;
                }
            } while (CStrParser::CheckLine(piece) == 0);
            static_cast<void>(CStrParser::ParseNumbers({piece.data(), piece.size()}, numbers));
        }
    } catch (const CFileError&) {
        return lines;
    }
    return lines;
}

bool IsLoadType(double number)
{
    const auto type = static_cast<ELoadType>(TruncateToInt32(number));
    return TraitsOf(type).valueCount != 0 || type == ELoadType::Unused31;
}

}  // namespace

bool LooksLikeStructureFile(CFileSystem& system, const std::string& path)
{
    const auto [header, lineA, lineB] = FirstNumbers(system, path);
    return header.size() >= kHeaderNumbers && lineA.size() >= kSectionNumbersA && lineB.size() >= kSectionNumbersB &&
           lineB.size() < kSectionNumbersA;
}

bool LooksLikeLoadFile(CFileSystem& system, const std::string& path)
{
    const auto [count, load, next] = FirstNumbers(system, path);
    const bool isCount = count.size() < kHeaderNumbers || (load.size() >= kLoadNumbers && IsLoadType(load[2]));
    return !count.empty() && count.front() >= 0.0 && isCount && !LooksLikeStructureFile(system, path);
}

}  // namespace satwecvt
