#include "cli/KeptOutputs.h"

#include "conversion/Failure.h"
#include "satwecvt/UserInterface.h"

#include <new>

namespace satwecvt {

EExitCode KeepOutputs(CSafeFiles& files, COutcome& outcome, EStrictness strictness)
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
        outcome.report.failure = FailureOf(FileErrorText(error.Cause(), error.Path()));
        return EExitCode::OutputIncomplete;
    } catch (const std::bad_alloc&) {
        outcome.report.failure = FailureOf("out of memory");
        return EExitCode::OutputIncomplete;
    }
}

}  // namespace satwecvt
