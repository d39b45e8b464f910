#include "support/SmallBuilding.h"

#include <algorithm>
#include <stdexcept>

namespace satwecvt {

std::string SmallStructure()
{
    return R"(C Two stories, a record of every kind
2 4 4 0 0
1 1 6 0 300 600 0 0 0 0
0 0 0 0
2 2 5 0 8 400 200 13 200 13
0 0 0 0
3 12 5 0 800 760 0 0 0 0
0 0 0 0
4, 1, 6, 0, 500, 500, 0, 0, 0, 0
0 0 0 0 NOTE=column
1 101 0 0 0 0
2 102 0 6000 0 0
3 103 0 6000 5000 0
4 104 0 0 5000 0
C Story 1, story line 3 twice
1 1 0
1 2 3
3600 30 40 30 25 16 note=grades
3600 30 40 30 25 16 NOTE=grades
4 2 2 2 2 2
1 111 0 0 0 3600
2 112 0 6000 0 3600
3 113 0 6000 5000 3600
4 114 0 0 5000 3600
1 111 112 1 2 0 0
2 -113 114 2 4 0 15
0 100 0 0 100 0
1 101 111 4 0 0 0
2 -102 112 3 4 0 0
0 103
1 101 112 2 4 0 0
2 102 113 1 0 0 0
1 2 0 0 0 200 0 0 0 0
111 112 101 102
2 2 1 0 0 250 1000 900 800 700
113 114 103
 104 103 104
1 4 0 120 111 112 113 114
2 5 0 150 111 112
 113 114 111

C Story 2, with a leaning wall
2 2 0
4
3600 35 45 35 30 3
4 1 1 0 1 2
1, 121, 0, 0, 0, 3600*2
2 122 0 6000 0 7200
3 123 0 6000 5000 7200
4 9 0 0 5000 7200
1 121 122 1 3 0 0
1 111 121 4 0 0 0
1 2 0 0 0 200 0 0 0 0
121 122 113 114
1 3 0 100 121 122 999
2 4 0 120 121 122 123 9
)";
}

std::string SmallLoads()
{
    return R"(C Loads of story 1
8
1 1 1 0 45000 1800
2 1 2 1 6 6 0 6000
3 2 3 0 8 1500 1500
4 1 4 0 12 2400 NOTE=live,too
5 113 11 0 40000 1 2
6, 114, 12, 1, 10000, 5000, 0
7 1 21 0 12000 1000
8 1 22 0 9
C Loads of story 2, the first of them zero

4
1 1 4 0 0 0
2 1 31 0 1
3 1 22 1 -3
4 999 12 1 1 2 3
)";
}

std::int32_t LineCount(std::string_view text)
{
    return static_cast<std::int32_t>(std::count(text.begin(), text.end(), '\n'));
}

std::vector<std::string> SplitLines(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

std::string JoinLines(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) {
        text += line;
    }
    return text;
}

std::string FirstLines(std::string_view text, std::int64_t count)
{
    std::vector<std::string> lines = SplitLines(text);
    lines.resize(static_cast<std::size_t>(count));
    return JoinLines(lines);
}

std::string Replaced(std::string_view text, std::string_view piece, std::string_view by)
{
    std::string result(text);
    std::size_t at = result.find(piece);
    if (at == std::string::npos) {
        throw std::logic_error("the text has no " + std::string(piece));
    }
    for (; at != std::string::npos; at = result.find(piece, at + by.size())) {
        result.replace(at, piece.size(), by);
    }
    return result;
}

}  // namespace satwecvt
