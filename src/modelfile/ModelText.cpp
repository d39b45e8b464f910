#include "modelfile/ModelText.h"

#include "finding/Quoted.h"
#include "modelfile/ModelFileError.h"

#include <algorithm>

namespace satwecvt {

namespace {

constexpr bool IsPrintable(char character) noexcept
{
    return character >= 0x20 && character < 0x7F;
}

/// A text between apostrophes, for a message: unusual bytes as \xNN, and no more of it than one can read.
std::string InApostrophes(std::string_view text)
{
    constexpr std::size_t kMost = 100;
    std::string quoted = "'";
    for (const char character : text.substr(0, kMost)) {
        if (IsPrintable(character)) {
            quoted += character;
        } else {
            AppendByteNumber(quoted, character);
        }
    }
    quoted += text.size() > kMost ? "...'" : "'";
    return quoted;
}

}  // namespace

std::string_view CModelText::Take()
{
    ++lineNumber;
    const std::size_t end = rest.find('\n');
    if (end == std::string_view::npos) {
        Fail(rest.empty() ? "the text ends too early" : "the text ends within the line " + InApostrophes(rest));
    }
    last = rest.substr(0, end);
    rest.remove_prefix(end + 1);
    return last;
}

void CModelText::Expect(std::string_view line)
{
    if (Take() != line) {
        Fail(InApostrophes(last) + " stands where " + InApostrophes(line) + " should");
    }
}

bool CModelText::TakeHeader(std::string_view keywordLine, std::size_t comments)
{
    const std::size_t length = keywordLine.size();
    if (rest.size() <= length || !rest.starts_with(keywordLine) || rest[length] != '\n') {
        return false;
    }
    Take();
    for (; comments > 0; --comments) {
        const std::string_view line = Take();
        if (!line.starts_with(';') || !std::all_of(line.begin(), line.end(), IsPrintable)) {
            Refuse("comment");
        }
    }
    return true;
}

void CModelText::ExpectHeader(std::string_view keywordLine, std::size_t comments)
{
    if (!TakeHeader(keywordLine, comments)) {
        Take();
        Fail("no block that can stand here begins with " + InApostrophes(last));
    }
}

void CModelText::Refuse(std::string_view noun) const
{
    Fail("no " + std::string(noun) + " is " + InApostrophes(last));
}

void CModelText::Fail(const std::string& sentence) const
{
    throw CModelFileError(lineNumber, sentence);
}

}  // namespace satwecvt
