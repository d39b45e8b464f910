#include "cli/KeptOutputs.h"

namespace satwecvt {

EExitCode KeepOutputs(CUserInterface& userInterface, CSafeFiles& files, COutcome& outcome, EStrictness strictness)
{
    const EExitCode exitCode = ExitCodeOf(outcome, strictness);
    if (exitCode != EExitCode::Written) {
        return exitCode;
    }
    try {
        files.Keep();
        outcome.isKept = true;
        return exitCode;
    } catch (const CFileError& error) {
        userInterface.ReportFileError(error.Cause(), error.Path());
        outcome.report.messages.push_back(FileErrorText(error.Cause(), error.Path()));
        return EExitCode::OutputIncomplete;
    }
}

}  // namespace satwecvt
