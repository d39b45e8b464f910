#include "cli/Report.h"

#include "cli/JsonReport.h"
#include "cli/TerminalText.h"
#include "output/FilePlaces.h"
#include "output/SafeFiles.h"
#include "output/WholeFile.h"
#include "satwecvt/UserInterface.h"

#include <algorithm>
#include <iostream>
#include <utility>

namespace satwecvt {

namespace {

/// Whether two paths name one file, which need not exist yet.
bool NameOneFile(const std::string& a, const std::string& b)
{
    CFilePlaces& places = CFilePlaces::System();
    return places.KeyOf(a) == places.KeyOf(b) || CFileSystem::System().IsSameFile(a.c_str(), b.c_str());
}

}  // namespace

void PrintError(const std::string& text)
{
    std::cerr << "satwecvt: " << TerminalText(text) << "\n";
}

bool IsStdoutFile(const std::string& file)
{
    return CFileSystem::System().IsSameFile(file.c_str(), "/dev/stdout");
}

CReportFile::CReportFile(std::string reportPath, std::vector<std::string> others)
    : path(std::move(reportPath)),
      conversionFiles(std::move(others))
{}

bool CReportFile::IsItsOwn() const
{
    if (!IsWanted()) {
        return true;
    }
    const bool isOne = std::any_of(conversionFiles.begin(), conversionFiles.end(), [&](const std::string& other) {
        return IsStdout() ? IsStdoutFile(other) : NameOneFile(path, other);
    });
    if (isOne) {
        PrintError("--json " + path + ": this file belongs to the conversion itself");
    }
    return !isOne;
}

EExitCode CReportFile::Write(const COutcome& outcome, EExitCode exitCode) const
{
    bool isWritten = true;
    if (IsStdout()) {
        std::cout << JsonReport(outcome, exitCode, EJsonLayout::Indented);
    } else if (IsWanted()) {
        isWritten = WriteText(JsonReport(outcome, exitCode, EJsonLayout::Indented));
    }
    if (!std::cout.flush().good()) {
        PrintError("stdout could not be written");
        isWritten = false;
    }
    return isWritten || exitCode != EExitCode::Written ? exitCode : EExitCode::OutputIncomplete;
}

bool CReportFile::WriteText(const std::string& text) const
{
    try {
        CSafeFiles files(CFileSystem::System());
        WriteWholeFile(files, path, text);
        files.Keep();
        return true;
    } catch (const CFileError& error) {
        PrintError(FileErrorText(error.Cause(), error.Path()));
        return false;
    }
}

}  // namespace satwecvt
