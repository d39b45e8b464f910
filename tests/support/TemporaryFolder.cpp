#include "support/TemporaryFolder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

namespace satwecvt {

namespace fs = std::filesystem;

CTemporaryFolder::CTemporaryFolder() : previous(fs::current_path())
{
    std::random_device random;
    do {
        path = fs::temp_directory_path() / ("satwecvt-test-" + std::to_string(random()));
    } while (!fs::create_directory(path));
    fs::current_path(path);
}

CTemporaryFolder::~CTemporaryFolder()
{
    std::error_code ignored;
    fs::current_path(previous, ignored);
    fs::remove_all(path, ignored);
}

void WriteBytes(const fs::path& file, std::string_view bytes)
{
    std::ofstream out(file, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::optional<std::string> ReadBytes(const fs::path& file)
{
    if (!fs::is_regular_file(file)) {
        return std::nullopt;
    }
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

std::string FirstDifference(std::string_view expected, std::string_view actual)
{
    std::istringstream expectedLines{std::string(expected)};
    std::istringstream actualLines{std::string(actual)};
    for (int number = 1; expected != actual; ++number) {
        std::string expectedLine = "(end of file)";
        std::string actualLine = "(end of file)";
        const bool hasExpected = static_cast<bool>(std::getline(expectedLines, expectedLine));
        const bool hasActual = static_cast<bool>(std::getline(actualLines, actualLine));
        if (expectedLine != actualLine || hasExpected != hasActual || !hasExpected) {
            return "line " + std::to_string(number) + "\n  expected: " + expectedLine + "\n  actual:   " + actualLine;
        }
    }
    return "";
}

}  // namespace satwecvt
