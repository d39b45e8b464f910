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

void PrintError(const std::string& text)
{
    std::cerr << "satwecvt: " << TerminalText(text) << "\n";
}

bool IsStdoutFile(const std::string& file)
{
    return CFileSystem::System().IsSameFile(file.c_str(), "/dev/stdout");
}

bool IsOneOf(const std::string& file, const std::vector<std::string>& others)
{
    CFilePlaces& places = CFilePlaces::System();
    return std::any_of(others.begin(), others.end(), [&](const std::string& other) {
        return places.KeyOf(file) == places.KeyOf(other) ||
               CFileSystem::System().IsSameFile(file.c_str(), other.c_str());
    });
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
    const bool isOne = IsStdout() ? std::any_of(conversionFiles.begin(), conversionFiles.end(), IsStdoutFile)
                                  : IsOneOf(path, conversionFiles);
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
