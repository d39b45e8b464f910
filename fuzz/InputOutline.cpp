#include "InputOutline.h"

#include "SlowTokenizer.h"

#include <algorithm>

namespace satwecvt {

namespace {

enum EKind { kStories, kSections, kNodes, kBeams, kColumns, kBraces, kWalls, kPlates, kLoads };

class COutliner {
public:
    explicit COutliner(const std::vector<std::string>& allLines) : lines(allLines) {}

    std::vector<CRecordBlock> Structure()
    {
        Next();
        const std::size_t header = line;
        const std::vector<double> counts = numbers;
        AddBlock(kSections, header, 1, Count(counts, 1));
        AddBlock(kNodes, header, 2, Count(counts, 2));
        CRecordBlock stories{header, 0, kStories, {}, false};
        for (int story = 0; story < Count(counts, 0) && !isOver; ++story) {
            const std::size_t begin = position;
            AddStory();
            stories.records.push_back({begin, position});
        }
        stories.isComplete = !isOver;
        blocks.push_back(stories);
        return blocks;
    }

    std::vector<CRecordBlock> Loads()
    {
        while (!isOver && blocks.size() < 100) {
            Next();
            const std::size_t countLine = line;
            const std::vector<double> counts = numbers;
            AddBlock(kLoads, countLine, 0, Count(counts, 0));
        }
        return blocks;
    }

private:
    static int Count(const std::vector<double>& counts, std::size_t position)
    {
        constexpr double kMost = 1000;
        const bool isCount = position < counts.size() && counts[position] > 0;
        return isCount ? static_cast<int>(std::min(counts[position], kMost)) : 0;
    }

    bool IsNegative(std::size_t at) const { return at < numbers.size() && numbers[at] <= -1; }

    /// Goes behind the next data line, which is `line` then, and whose numbers are `numbers`.
    void Next()
    {
        numbers.clear();
        for (; position < lines.size(); ++position) {
            std::string text = lines[position];
            if (SlowCheckLine(text)) {
                numbers = SlowNumbers(text);
                line = position++;
                return;
            }
        }
        isOver = true;
    }

    void AddStory()
    {
        for (int storyLine = 1; storyLine <= 4; ++storyLine) {
            Next();
        }
        const std::size_t countLine = line;
        const std::vector<double> counts = numbers;
        for (const int kind : {kNodes, kBeams, kColumns, kBraces, kWalls, kPlates}) {
            const auto token = static_cast<std::size_t>(kind - kNodes);
            AddBlock(kind, countLine, token, Count(counts, token));
        }
    }

    void AddBlock(int kind, std::size_t countLine, std::size_t countToken, int count)
    {
        CRecordBlock block{countLine, countToken, kind, {}, false};
        for (int record = 0; record < count && !isOver; ++record) {
            const std::size_t begin = position;
            SkipRecord(kind);
            if (!isOver) {
                block.records.push_back({begin, position});
            }
        }
        block.isComplete = !isOver;
        blocks.push_back(block);
    }

    void SkipRecord(int kind)
    {
        Next();
        const bool hasExtra = (kind == kBeams || kind == kColumns) && (IsNegative(1) || IsNegative(2));
        if (kind == kSections || hasExtra) {
            Next();
        } else if (kind == kWalls) {
            const std::size_t points =
                numbers.size() > 2 ? 2 * static_cast<std::size_t>(Count(numbers, 1) + Count(numbers, 2)) : 0;
            Next();
            if (numbers.size() < points) {
                Next();
            }
        } else if (kind == kPlates) {
            const int vertices = Count(numbers, 1);
            std::string text = lines[line];
            while (!isOver && static_cast<int>(numbers.size()) < vertices + 4) {
                Next();
                text += lines[line];
                numbers = SlowNumbers(text);
            }
        }
    }

    const std::vector<std::string>& lines;
    std::size_t position = 0;
    std::size_t line = 0;
    std::vector<double> numbers;
    bool isOver = false;
    std::vector<CRecordBlock> blocks;
};

}  // namespace

std::vector<CRecordBlock> OutlineStructure(const std::vector<std::string>& lines)
{
    return lines.empty() ? std::vector<CRecordBlock>() : COutliner(lines).Structure();
}

std::vector<CRecordBlock> OutlineLoads(const std::vector<std::string>& lines)
{
    return lines.empty() ? std::vector<CRecordBlock>() : COutliner(lines).Loads();
}

}  // namespace satwecvt
