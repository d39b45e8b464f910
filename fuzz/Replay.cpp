// The main of a fuzz program that was built without the fuzzer: gives it the files that are named, and all files below
// the folders that are named. A folder without files is a mistake: nothing would be tested.
#include "FuzzTarget.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> FilesOf(const fs::path& named)
{
    if (!fs::is_directory(named)) {
        return {named};
    }
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(named)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// Returns false when the file cannot be read.
bool Replay(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    if (!stream.is_open()) {
        return false;
    }
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());  // of its very size, for the address sanitizer
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    return true;
}

}  // namespace

int main(int argumentCount, char** arguments)
{
    std::size_t count = 0;
    for (int i = 1; i < argumentCount; ++i) {
        const std::vector<fs::path> files = FilesOf(arguments[i]);
        if (files.empty()) {
            std::fprintf(stderr, "%s: no files\n", arguments[i]);
            return 1;
        }
        for (const fs::path& file : files) {
            std::printf("%s\n", file.filename().string().c_str());
            std::fflush(stdout);  // the last one told is the one that failed
            if (!Replay(file)) {
                std::fprintf(stderr, "%s: cannot be read\n", file.string().c_str());
                return 1;
            }
            ++count;
        }
    }
    std::printf("%zu inputs\n", count);
    return count > 0 ? 0 : 2;
}
