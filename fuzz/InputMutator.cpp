#include "InputMutator.h"

#include "SlowTokenizer.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string_view>

namespace satwecvt {

namespace {

constexpr std::string_view kHostileNumbers[] = {
    "0",     "-1",     "-0",     "0.5", "-0.5",   "1e20",   "-1e20",      "2147483647",  "-2147483648", "2147483648",
    "1e999", "-1e999", "nan",    "inf", "0x1p3",  "1/0",    "0/0",        "3*-2",        "1e-320",      "65536",
    "1,2",   "1=2",    "C",      "4-2", "1e-6",   "1.1e-6", "2147483646", "-2147483647", "4294967297",  "++++",
    "1e308", "5",      "6",      "11",  "12",     "13",     "14",         "15",          "21",          "22",
    "31",    "100",    "999999", "1e6", "123456", "1e15",   "0.1",        "1.000001",    "30",          "16"};

struct CToken {
    std::size_t begin = 0;
    std::size_t length = 0;
};

/// The pieces of a line between blanks and commas.
std::vector<CToken> TokensOf(std::string_view line)
{
    constexpr std::string_view kSeparators = " \t,\r\n";
    std::vector<CToken> tokens;
    std::size_t begin = line.find_first_not_of(kSeparators);
    while (begin != std::string_view::npos) {
        const std::size_t end = std::min(line.find_first_of(kSeparators, begin), line.size());
        tokens.push_back({begin, end - begin});
        begin = line.find_first_not_of(kSeparators, end);
    }
    return tokens;
}

std::ptrdiff_t Offset(std::size_t position)
{
    return static_cast<std::ptrdiff_t>(position);
}

}  // namespace

std::string CInputMutator::Mutate(const std::string& text, EFile file)
{
    lines = SlowLines(text);
    if (lines.empty()) {
        return "1\n";
    }
    const std::size_t choice = Below(16);
    if (choice >= 9) {
        blocks = file == EFile::Structure ? OutlineStructure(lines) : OutlineLoads(lines);
    }
    constexpr void (CInputMutator::*kChanges[])() = {
        &CInputMutator::DuplicateLine, &CInputMutator::DeleteLine,   &CInputMutator::SwapLines,
        &CInputMutator::ReplaceToken,  &CInputMutator::ReplaceToken, &CInputMutator::ReplaceToken,
        &CInputMutator::ReplaceToken,  &CInputMutator::ReplaceToken, &CInputMutator::ReplaceToken,
        &CInputMutator::ChangeCount,   &CInputMutator::AddRecord,    &CInputMutator::AddRecord,
        &CInputMutator::AddRecord,     &CInputMutator::AddRecord,    &CInputMutator::TakeRecord,
        &CInputMutator::TakeRecord};
    static_assert(std::size(kChanges) == 16);
    (this->*kChanges[choice])();

    std::string mutated;
    for (const std::string& line : lines) {
        mutated += line;
    }
    return mutated;
}

void CInputMutator::DuplicateLine()
{
    const std::string line = lines[Below(lines.size())];
    lines.insert(lines.begin() + Offset(Below(lines.size())), line);
}

void CInputMutator::DeleteLine()
{
    lines.erase(lines.begin() + Offset(Below(lines.size())));
}

void CInputMutator::SwapLines()
{
    std::swap(lines[Below(lines.size())], lines[Below(lines.size())]);
}

void CInputMutator::ReplaceToken()
{
    const std::size_t line = Below(lines.size());
    const std::vector<CToken> tokens = TokensOf(lines[line]);
    if (!tokens.empty() && !lines[line].starts_with('C')) {
        SetToken(line, Below(tokens.size()), SomeNumber());
    }
}

/// A hostile number, a small one, or one that stands somewhere in the text.
std::string CInputMutator::SomeNumber()
{
    const std::string& line = lines[Below(lines.size())];
    const std::vector<CToken> tokens = TokensOf(line);
    switch (Below(3)) {
    case 0:
        return std::string(kHostileNumbers[Below(std::size(kHostileNumbers))]);
    case 1:
        if (!tokens.empty() && !line.starts_with('C')) {
            const CToken token = tokens[Below(tokens.size())];
            return line.substr(token.begin, token.length);
        }
        [[fallthrough]];
    default:
        return std::to_string(static_cast<int>(Below(24)) - 8);
    }
}

void CInputMutator::ChangeCount()
{
    if (const CRecordBlock* const block = SomeBlock()) {
        Step(block->countLine, block->countToken, Below(2) == 0 ? 1 : -1);
    }
}

/// Copies a record of any block of the same kind into a block, mostly under a key of its own.
void CInputMutator::AddRecord()
{
    const CRecordBlock* const target = SomeBlock();
    if (target == nullptr || !target->isComplete) {
        return;
    }
    std::vector<CLineRange> records;
    for (const CRecordBlock& block : blocks) {
        if (block.kind == target->kind) {
            records.insert(records.end(), block.records.begin(), block.records.end());
        }
    }
    if (records.empty()) {
        return;
    }
    const CLineRange copied = records[Below(records.size())];
    std::vector<std::string> record(lines.begin() + Offset(copied.begin), lines.begin() + Offset(copied.end));
    const std::size_t place =
        target->records.empty() ? copied.begin : target->records[Below(target->records.size())].begin;
    Step(target->countLine, target->countToken, 1);
    lines.insert(lines.begin() + Offset(place), record.begin(), record.end());
    if (Below(8) != 0) {
        SetToken(place, 0, std::to_string(Below(200)));
    }
}

void CInputMutator::TakeRecord()
{
    const CRecordBlock* const block = SomeBlock();
    if (block == nullptr || block->records.empty()) {
        return;
    }
    const CLineRange record = block->records[Below(block->records.size())];
    Step(block->countLine, block->countToken, -1);
    lines.erase(lines.begin() + Offset(record.begin), lines.begin() + Offset(record.end));
}

const CRecordBlock* CInputMutator::SomeBlock()
{
    return blocks.empty() ? nullptr : &blocks[Below(blocks.size())];
}

void CInputMutator::Step(std::size_t line, std::size_t token, int step)
{
    const std::vector<CToken> tokens = TokensOf(lines[line]);
    if (token < tokens.size()) {
        const std::string number = lines[line].substr(tokens[token].begin, tokens[token].length);
        const long count = std::clamp(std::strtol(number.c_str(), nullptr, 10), -1'000'000L, 1'000'000L);
        SetToken(line, token, std::to_string(count + step));
    }
}

void CInputMutator::SetToken(std::size_t line, std::size_t token, const std::string& by)
{
    const std::vector<CToken> tokens = TokensOf(lines[line]);
    if (token < tokens.size()) {
        lines[line].replace(tokens[token].begin, tokens[token].length, by);
    }
}

}  // namespace satwecvt
