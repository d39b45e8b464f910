#include "cli/ViewCommand.h"

#include "cli/Failure.h"
#include "cli/Losses.h"
#include "cli/MemoryConversion.h"
#include "cli/Report.h"
#include "cli/TerminalText.h"
#include "cli/Utf8Path.h"
#include "output/SafeFiles.h"
#include "output/WholeFile.h"
#include "picture/Page.h"
#include "picture/StoryPlans.h"
#include "satwecvt/UserInterface.h"

#include <filesystem>
#include <iostream>
#include <new>
#include <system_error>
#include <vector>

namespace satwecvt {

namespace {

/// The name of the structure file with another ending.
std::string PagePath(const CViewOptions& options)
{
    return options.pagePath.empty() ? TextOf(PathOf(options.structurePath).replace_extension(".html"))
                                    : options.pagePath;
}

CPicture PictureOf(const CViewOptions& options, const COutcome& outcome)
{
    return MakePicture({*outcome.input, *outcome.modelFile, outcome.findings, *outcome.loads, options.structurePath,
                        options.loadPath, SATWECVT_VERSION});
}

/// The outputs of a view, each of them a file of its own and none of them an input.
class CViewFiles {
public:
    explicit CViewFiles(const CViewOptions& options) : taken{options.structurePath, options.loadPath} {}

    /// Throws CFileError.
    void Write(const std::string& path, const std::string& text)
    {
        if (IsOneOf(path, taken)) {
            throw CFileError(path, "it is an input, or another output");
        }
        taken.push_back(path);
        WriteWholeFile(files, path, text);
    }

    /// Throws CFileError.
    void Keep() { files.Keep(); }

private:
    CSafeFiles files{CFileSystem::System()};
    std::vector<std::string> taken;
};

void MakeFolder(const std::string& folder)
{
    std::error_code failed;
    std::filesystem::create_directories(PathOf(folder), failed);
    if (failed) {
        throw CFileError(folder, failed.message());
    }
}

void WritePlans(CViewFiles& files, const CPicture& picture, const CStoryPlans& plans, const std::string& folder)
{
    MakeFolder(folder);
    for (std::size_t story = 0; story < picture.stories.size(); ++story) {
        files.Write(TextOf(PathOf(folder) / PathOf(PlanName(picture, story))), plans.Plan(story));
    }
}

void PrintView(const CViewOptions& options, const COutcome& outcome, std::size_t stories)
{
    std::cout << "Page   " << TerminalText(PagePath(options)) << "\n";
    if (!options.plansFolder.empty()) {
        std::cout << "Plans  " << stories << " in " << TerminalText(options.plansFolder) << "\n";
    }
    std::cout << FindingCounts(CountLosses(outcome.findings)) << "\n";
}

/// Throws CFileError.
void WriteView(const CViewOptions& options, const COutcome& outcome)
{
    const CPicture picture = PictureOf(options, outcome);
    const bool isOnStdout = IsStdoutFile(PagePath(options));
    CViewFiles files(options);
    const CStoryPlans plans(picture);
    files.Write(PagePath(options), Page(picture, plans));
    if (!options.plansFolder.empty()) {
        WritePlans(files, picture, plans, options.plansFolder);
    }
    files.Keep();
    if (!isOnStdout) {
        PrintView(options, outcome, picture.stories.size());
    }
}

}  // namespace

EExitCode RunView(const CViewOptions& options)
{
    const COutcome outcome = ConvertInMemory(options.structurePath, options.loadPath);
    PrintFailure(outcome.report);
    const EExitCode exitCode = ExitCodeOf(outcome, EStrictness::Lenient);
    if (exitCode != EExitCode::Written) {
        return exitCode;
    }
    try {
        WriteView(options, outcome);
    } catch (const CFileError& error) {
        PrintError(FileErrorText(error.Cause(), error.Path()));
        return EExitCode::OutputIncomplete;
    } catch (const std::bad_alloc&) {
        PrintError("out of memory");
        return EExitCode::OutputIncomplete;
    }
    return std::cout.flush().good() ? exitCode : EExitCode::OutputIncomplete;
}

}  // namespace satwecvt
