#include "cli/PairFolders.h"

#include "conversion/Utf8Path.h"
#include "output/FilePlaces.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <system_error>
#include <unordered_set>
#include <utility>

namespace satwecvt {

namespace {

namespace fs = std::filesystem;

/// The path of something in a folder, on every system with the same separator.
std::string In(const std::string& folder, const std::string& name)
{
    const bool isClosed = folder.ends_with('/') || folder.ends_with(static_cast<char>(fs::path::preferred_separator));
    return folder + (isClosed ? "" : "/") + name;
}

class CFolderWalk {
public:
    explicit CFolderWalk(const CInputPair& pairNames) : names(pairNames) {}

    /// Looks at a folder and at all below it.
    void Walk(const std::string& top)
    {
        const std::size_t pairsBefore = found.pairs.size();
        const std::size_t errorsBefore = found.errors.size();
        std::vector<std::string> waiting{top};
        bool isKnown = false;
        while (!waiting.empty()) {
            const std::string folder = std::move(waiting.back());
            waiting.pop_back();
            if (visited.insert(CFilePlaces::FolderKey(folder)).second) {
                TakePair(folder);
                AddFoldersIn(folder, waiting);
            } else {
                isKnown = true;  // its pairs have been taken
            }
        }
        if (!isKnown && found.pairs.size() == pairsBefore && found.errors.size() == errorsBefore) {
            AddError(top + ": no folder here holds " + names.structure + " and " + names.load);
        }
    }

    CInputPairs TakeFound() { return std::move(found); }

private:
    void TakePair(const std::string& folder)
    {
        CInputPair pair{In(folder, names.structure), In(folder, names.load)};
        const bool hasStructure = IsFile(pair.structure);
        const bool hasLoad = IsFile(pair.load);
        if (hasStructure && hasLoad) {
            found.pairs.push_back(std::move(pair));
        } else if (hasStructure || hasLoad) {
            AddError(folder + ": holds " + (hasStructure ? names.structure : names.load) + ", but no " +
                     (hasStructure ? names.load : names.structure));
        }
    }

    /// Adds the folders in a folder to those that are still to be looked at, the last name first.
    void AddFoldersIn(const std::string& folder, std::vector<std::string>& waiting)
    {
        std::vector<std::string> below;
        std::error_code failed;
        fs::directory_iterator entry(PathOf(folder), failed);
        for (; !failed && entry != fs::directory_iterator(); entry.increment(failed)) {
            std::error_code isUnknown;  // gone in the meantime
            if (!entry->is_symlink(isUnknown) && entry->is_directory(isUnknown)) {
                below.push_back(TextOf(entry->path().filename()));
            }
        }
        if (failed) {
            AddError(folder + ": cannot be read: " + failed.message());
        }
        std::sort(below.begin(), below.end(), std::greater<>());
        for (const std::string& name : below) {
            waiting.push_back(In(folder, name));
        }
    }

    void AddError(std::string text)
    {
        found.errors.push_back(std::move(text));
        found.exitCode = EExitCode::NotConverted;
    }

    const CInputPair& names;
    CInputPairs found;
    std::unordered_set<std::string> visited;
};

}  // namespace

CInputPairs PairsInFolders(const std::vector<std::string>& folders, const CInputPair& names)
{
    CFolderWalk walk(names);
    for (const std::string& folder : folders) {
        walk.Walk(folder);
    }
    return walk.TakeFound();
}

}  // namespace satwecvt
