#include "cli/MemoryConversion.h"

#include "cli/Conversion.h"
#include "cli/Failure.h"
#include "output/MemoryOutputs.h"
#include "satwecvt/ConvertSatwe.h"

namespace satwecvt {

namespace {

/// The outputs lie in memory, under names of no files: whatever the inputs are called, they are others.
CConversionPaths PathsOf(const std::string& structurePath, const std::string& loadPath)
{
    CConversionPaths paths = LibraryPaths(structurePath, loadPath);
    paths.model = "<model>";
    paths.messageLog = "<log>";
    return paths;
}

/// An output in memory fails for one reason only, and its name is none for users.
void NameMemory(COutcome& outcome)
{
    if (outcome.report.hasFileError) {
        outcome.report.hasFileError = false;
        outcome.report.result = kFailed;
        outcome.report.messages.clear();
        outcome.report.failure = FailureOf("out of memory");
    }
}

}  // namespace

COutcome ConvertInMemory(CUserInterface& userInterface, const std::string& structurePath, const std::string& loadPath)
{
    CMemoryOutputs files(CFileSystem::System());
    COutcome outcome =
        ConvertPair(userInterface, files, PathsOf(structurePath, loadPath), EBalance::Wanted, ELook::BesideTheWriting);
    NameMemory(outcome);
    return outcome;
}

}  // namespace satwecvt
