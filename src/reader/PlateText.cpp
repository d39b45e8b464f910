#include "reader/PlateText.h"

#include "lines/LineTokens.h"

namespace satwecvt {

void CPlateText::Start(std::string_view line)
{
    *this = CPlateText();
    Append(line);
}

void CPlateText::Append(std::string_view line)
{
    if (isCut || line.empty()) {
        return;
    }
    // The text's last character only closes its last number. With another line behind it, it is one among others.
    const std::size_t counted = text.empty() ? 0 : text.size() - 1;
    text += line;
    if (!hasAssignment && line.find('=') != std::string_view::npos) {
        CutAssignmentTail();
    }
    CountWords(std::string_view(text).substr(counted, text.size() - 1 - counted));
    CountCommas(line);
}

/// The tokenizer cuts the text at its first "=". When that takes anything away, lines appended later go with it.
void CPlateText::CutAssignmentTail()
{
    hasAssignment = true;
    const std::size_t blank = text.rfind(' ', text.find('='));
    isCut = blank != std::string::npos && blank >= 1;
    if (isCut) {
        CLineTokens tokens(text);
        for (std::string_view token; tokens.Next(token);) {
            ++countBeforeCut;
        }
    }
}

void CPlateText::CountWords(std::string_view characters) noexcept
{
    for (const char c : characters) {
        const bool isBlank = c == ' ' || c == '\t';
        words += !isBlank && !inWord ? 1 : 0;
        inWord = !isBlank;
    }
}

void CPlateText::CountCommas(std::string_view characters) noexcept
{
    for (const char c : characters) {
        if (c == ',') {
            ++commas;
            tailLength = 0;
        } else if (c != ' ' && c != '\t') {
            tailFirst = tailLength == 0 ? c : tailFirst;
            ++tailLength;
        }
    }
}

std::int64_t CPlateText::NumberCount() const noexcept
{
    if (isCut) {
        return countBeforeCut;
    }
    if (commas == 0) {
        return words;
    }
    const bool tailIsNumber = tailLength > 1 || (tailLength == 1 && tailFirst != '\n');
    return commas + (tailIsNumber ? 1 : 0);
}

}  // namespace satwecvt
