#include "cli/PairList.h"

#include "conversion/Utf8Path.h"
#include "finding/Quoted.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iostream>
#include <string_view>
#include <utility>

namespace satwecvt {

namespace {

constexpr std::size_t kLongestLine = 1U << 17U;  // two of the longest paths that a system takes

/// Reads a line without its end, or the beginning of one that is too long. Returns false at the end of the list.
bool ReadLine(std::istream& list, std::string& line)
{
    line.clear();
    char c = '\0';
    while (line.size() <= kLongestLine && list.get(c)) {
        if (c == '\n') {
            return true;
        }
        line += c;
    }
    return !line.empty();
}

std::string_view Trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r";
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos ? "" : text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

/// The names between the separators of a line; an empty one is none.
std::vector<std::string> NamesOf(std::string_view line)
{
    const char separator = line.find('\t') != std::string_view::npos ? '\t' : ' ';
    std::vector<std::string> names;
    while (!line.empty()) {
        const std::string_view name = line.substr(0, line.find(separator));
        line.remove_prefix(name.size() < line.size() ? name.size() + 1 : name.size());
        if (!Trimmed(name).empty()) {
            names.emplace_back(Trimmed(name));
        }
    }
    return names;
}

/// Half a list is none.
CInputPairs Unreadable(const std::string& list, const std::string& what)
{
    return {{}, {list + ": " + what + ": " + std::strerror(errno)}, EExitCode::NotConverted};
}

class CListReader {
public:
    explicit CListReader(std::string listName) : name(std::move(listName)) {}

    CInputPairs Read(std::istream& list)
    {
        std::string line;
        while (isText && found.errors.size() < kMostErrors && ReadLine(list, line)) {
            ++number;
            TakeLine(line);
        }
        if (list.bad()) {
            return Unreadable(name, "cannot be read");
        }
        if (found.errors.empty() && found.pairs.empty()) {
            found.errors.push_back(name + ": there is no pair in this list");
            found.exitCode = EExitCode::NotConverted;
        }
        return std::move(found);
    }

private:
    static constexpr std::size_t kMostErrors = 10;  // a text that is no list has one in each line

    void TakeLine(std::string_view line)
    {
        constexpr std::string_view kMark = "\xEF\xBB\xBF";
        if (number == 1 && line.starts_with(kMark)) {
            line.remove_prefix(kMark.size());
        }
        const std::string_view content = Trimmed(line);
        if (line.size() > kLongestLine || content.find('\0') != std::string_view::npos) {
            isText = false;
            return AddError("this is no list of names", content);
        }
        if (content.empty() || content.starts_with('#')) {
            return;
        }
        std::vector<std::string> names = NamesOf(content);
        if (names.size() != 2) {
            return AddError("a pair needs 2 names, with a tab between them if they have blanks; this line has " +
                                std::to_string(names.size()),
                            content);
        }
        found.pairs.push_back({std::move(names[0]), std::move(names[1])});
    }

    void AddError(const std::string& text, std::string_view line)
    {
        found.errors.push_back(name + ":" + std::to_string(number) + ": error: " + text + ": " + Quoted(line));
        found.exitCode = EExitCode::WrongUsage;
    }

    std::string name;
    std::int64_t number = 0;
    bool isText = true;  // as far as it was read
    CInputPairs found;
};

}  // namespace

CInputPairs PairsOfList(const std::string& path)
{
    if (path == "-") {
        return CListReader("stdin").Read(std::cin);
    }
    std::ifstream list(PathOf(path), std::ios::binary);
    if (!list) {
        return Unreadable(path, "cannot be opened");
    }
    return CListReader(path).Read(list);
}

}  // namespace satwecvt
