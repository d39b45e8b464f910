#include "cli/ViewCommand.h"

#include "cli/BrokenPipes.h"
#include "cli/FailureLine.h"
#include "cli/Losses.h"
#include "cli/ProgramInterface.h"
#include "cli/Report.h"
#include "cli/Strictness.h"
#include "cli/TerminalText.h"
#include "cli/ViewOutputs.h"
#include "conversion/MemoryConversion.h"
#include "conversion/Utf8Path.h"
#include "output/MemoryOutputs.h"
#include "picture/Page.h"
#include "picture/StoryPlans.h"
#include "satwecvt/UserInterface.h"
#include "ui/console/Interrupt.h"

#include <filesystem>
#include <iostream>
#include <new>

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

/// Stops at Ctrl-C: what was written is no longer wanted then.
void WritePlans(CViewOutputs& outputs, const CStoryPlans& plans, std::size_t stories, const std::string& folder)
{
    for (std::size_t story = 0; story < stories && !CInterrupt::Requested(); ++story) {
        outputs.WritePlan(TextOf(PathOf(folder) / PathOf(plans.Name(story))), plans.Plan(story));
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
EExitCode WriteView(const CViewOptions& options, const COutcome& outcome)
{
    const CPicture picture = PictureOf(options, outcome);
    const CStoryPlans plans(picture);
    const bool isOnStdout = IsStdoutFile(PagePath(options));
    CViewOutputs outputs({options.structurePath, options.loadPath});
    if (!options.plansFolder.empty()) {
        // Before the page, which may stand in the new folder. And a folder that cannot be made fails before the page,
        // with all plans in it, is drawn.
        outputs.MakeFolder(options.plansFolder);
    }
    outputs.WritePage(PagePath(options), Page(picture, plans));
    if (!options.plansFolder.empty()) {
        WritePlans(outputs, plans, picture.stories.size(), options.plansFolder);
    }
    if (CInterrupt::Requested()) {
        PrintError("cancelled; nothing was written");
        return EExitCode::Cancelled;
    }
    outputs.Keep();
    if (!isOnStdout) {
        PrintView(options, outcome, picture.stories.size());
    }
    return std::cout.flush().good() ? EExitCode::Written : EExitCode::OutputIncomplete;
}

}  // namespace

EExitCode RunView(const CViewOptions& options)
{
    IgnoreBrokenPipes();
    CProgramInterface screen(CConsoleInterface::StderrIsTerminal() ? EProgressLine::Drawn : EProgressLine::Off);
    CMemoryOutputs files(CFileSystem::System());
    const COutcome outcome =
        ConvertInMemory(screen, files, options.structurePath, options.loadPath, ELook::BesideTheWriting);
    files.Clear();  // what is shown is the model that was read back
    PrintFailure(outcome.report);
    const EExitCode exitCode = ExitCodeOf(outcome, EStrictness::Lenient);
    if (exitCode != EExitCode::Written) {
        return exitCode;
    }
    try {
        return WriteView(options, outcome);
    } catch (const CFileError& error) {
        PrintError(FileErrorText(error.Cause(), error.Path()));
    } catch (const std::bad_alloc&) {
        PrintError("out of memory");
    }
    return EExitCode::OutputIncomplete;
}

}  // namespace satwecvt
