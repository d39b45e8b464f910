// Where the report of a command goes, and that it does not take the place of one of the conversion's own files.
#pragma once

#include "commands/ExitCode.h"
#include "conversion/Outcome.h"

#include <string>
#include <vector>

namespace satwecvt {

/// Prints a line about what went wrong.
void PrintError(const std::string& text);

/// Whether what is written to a file goes where stdout goes.
bool IsStdoutFile(const std::string& file);

/// Whether a file, which need not exist yet, is one of others.
bool IsOneOf(const std::string& file, const std::vector<std::string>& others);

class CReportFile {
public:
    /// `path` is empty for no report, "-" for stdout; `others` are the paths of the conversion's own files.
    CReportFile(std::string path, std::vector<std::string> others);

    bool IsWanted() const noexcept { return !path.empty(); }
    bool IsStdout() const noexcept { return path == "-"; }

    /// Whether the report has a file of its own, or needs none. Says so when not.
    bool IsItsOwn() const;

    /// Writes the report where it was asked for, whole or not at all. Returns the exit code: what it was, or that an
    /// output is incomplete where nothing else went wrong.
    EExitCode Write(const COutcome& outcome, EExitCode exitCode) const;

private:
    bool WriteText(const std::string& text) const;

    std::string path;
    std::vector<std::string> conversionFiles;
};

}  // namespace satwecvt
