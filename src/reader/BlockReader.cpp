#include "reader/BlockReader.h"

namespace satwecvt {

int CBlockReader::ReadNumbers()
{
    if (numbers.HasDoubt()) {
        lines.LookAtUse(numbers);
    }
    return lines.ReadNumbers(numbers);
}

CLineNumbers& CBlockReader::NewNumbers()
{
    lines.LookAtUse(numbers);
    numbers.Values().clear();
    return numbers;
}

void CBlockReader::EndFile(bool isWhole)
{
    lines.LookAtUse(numbers);
    lines.LookAtFile(isWhole);
}

std::string CBlockReader::BlockName() const
{
    std::string name(block);
    if (story > 0) {
        name += " of story block " + std::to_string(story);
    }
    return name;
}

std::string CBlockReader::LineText() const
{
    std::string text(lines.Text());
    text.erase(text.find_last_not_of("\r\n") + 1);
    return text;
}

}  // namespace satwecvt
