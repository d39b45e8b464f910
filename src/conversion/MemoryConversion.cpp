#include "conversion/MemoryConversion.h"

#include "conversion/Failure.h"
#include "satwecvt/ConvertSatwe.h"

namespace satwecvt {

namespace {

CConversionPaths PathsOf(const std::string& structurePath, const std::string& loadPath)
{
    CConversionPaths paths = LibraryPaths(structurePath, loadPath);
    paths.model = kModelInMemory;
    paths.messageLog = kLogInMemory;
    return paths;
}

/// An output in memory fails for one reason only, and its name is none for users.
void NameMemory(COutcome& outcome)
{
    if (outcome.report.hasFileError) {
        outcome.report.hasFileError = false;
        outcome.report.result = kFailed;
        outcome.report.messages.clear();
        outcome.report.failure = FailureOf(kOutOfMemory);
    }
}

}  // namespace

COutcome ConvertInMemory(CUserInterface& userInterface, CMemoryOutputs& files, const std::string& structurePath,
                         const std::string& loadPath, ELook look)
{
    COutcome outcome = ConvertPair(userInterface, files, PathsOf(structurePath, loadPath), EBalance::Wanted, look);
    NameMemory(outcome);
    return outcome;
}

}  // namespace satwecvt
