#include "cli/ViewOutputs.h"

#include "cli/Report.h"
#include "conversion/Utf8Path.h"
#include "output/WholeFile.h"

#include <filesystem>
#include <system_error>

namespace satwecvt {

CMadeFolders::~CMadeFolders()
{
    for (auto folder = made.rbegin(); folder != made.rend(); ++folder) {
        std::error_code hasFiles;
        std::filesystem::remove(PathOf(*folder), hasFiles);
    }
}

void CMadeFolders::Make(const std::string& folder)
{
    std::filesystem::path path;
    for (const std::filesystem::path& part : PathOf(folder)) {
        path /= part;
        std::error_code missing;
        if (part.empty() || std::filesystem::is_directory(path, missing)) {
            continue;  // nothing stands behind the last separator
        }
        std::error_code failed;
        std::filesystem::create_directory(path, failed);
        if (failed) {
            throw CFileError(folder, failed.message());
        }
        made.push_back(TextOf(path));
    }
}

void CViewOutputs::Write(const std::string& path, std::string_view text)
{
    if (IsOneOf(path, taken)) {
        throw CFileError(path, "it is an input, or another output");
    }
    WriteWholeFile(files, path, text);
}

void CViewOutputs::WritePage(const std::string& path, std::string_view text)
{
    Write(path, text);
    taken.push_back(path);
}

void CViewOutputs::WritePlan(const std::string& path, std::string_view text)
{
    Write(path, text);
}

}  // namespace satwecvt
