#include "satwecvt/ConvertSatwe.h"

#include "driver/CountRecords.h"
#include "driver/FloatEnvironment.h"
#include "driver/MessageRecorder.h"
#include "finding/InvalidArgument.h"
#include "reader/SatweReader.h"
#include "writer/ModelWriter.h"

#include <exception>
#include <new>
#include <utility>

namespace satwecvt {

CConvertSatwe::CConvertSatwe(CUserInterface& ui, CFindingListener* listener, CFileSystem& fileSystem)
    : userInterface(ui),
      findings(listener),
      system(fileSystem)
{}

int CConvertSatwe::Convert(const char* structurePath, const char* loadPath) noexcept
{
    try {
        return Convert(LibraryPaths(structurePath, loadPath));
    } catch (...) {
        return kFailed;  // no memory for the paths
    }
}

int CConvertSatwe::Convert(const CConversionPaths& paths) noexcept
{
    Run([&] {
        BeginReport(paths);
        std::unique_ptr<CProgressWindow> progress;
        const std::shared_ptr<const CSatweModel> model = ReadModel(progress);
        if (model != nullptr) {
            WriteModel(*model, *progress);
        }
    });
    return report.result;
}

std::shared_ptr<const CSatweModel> CConvertSatwe::Read(const CConversionPaths& paths) noexcept
{
    std::shared_ptr<const CSatweModel> model;
    Run([&] {
        BeginReport(paths);
        std::unique_ptr<CProgressWindow> progress;
        model = ReadModel(progress);
    });
    return model;
}

int CConvertSatwe::Write(const CSatweModel& model, const CConversionPaths& paths) noexcept
{
    Run([&] {
        const CLineFigures lines = report.lines;
        const CReadCounts read = report.read;
        BeginReport(paths);
        report.lines = lines;
        report.read = read;
        report.isRead = true;  // how else would there be a model
        if (const std::unique_ptr<CProgressWindow> progress = OpenWindow()) {
            WriteModel(model, *progress);
        }
    });
    return report.result;
}

/// Starts afresh; the paths may be those of the last report.
void CConvertSatwe::BeginReport(const CConversionPaths& paths)
{
    CConversionReport fresh;
    fresh.paths = paths;
    report = std::move(fresh);
}

/// Runs a step of the conversion, whose failures end here.
template <class Step>
void CConvertSatwe::Run(Step step) noexcept
{
    const CFloatEnvironment environment;
    report.result = kFailed;
    report.failure.reset();
    try {
        step();
    } catch (const std::bad_alloc&) {
        ReportError("Out of Memory");
        NoteFailure("out of memory");
    } catch (const std::exception& failure) {
        NoteFailure(failure.what());
    } catch (...) {
        NoteFailure("a listener or the user interface failed");
    }
}

/// Notes why the conversion failed, unless that is known better already; for want of memory nothing.
void CConvertSatwe::NoteFailure(std::string_view reason) noexcept
{
    try {
        if (!report.failure && report.result != kCancelled) {
            report.failure = CFailure{{}, "", std::string(reason), ""};
        }
    } catch (const std::bad_alloc&) {
        report.failure.reset();
    }
}

/// Creates the progress window; notes the failure when there can be none.
std::unique_ptr<CProgressWindow> CConvertSatwe::OpenWindow()
{
    std::unique_ptr<CProgressWindow> progress = userInterface.CreateProgressWindow();
    if (progress == nullptr) {
        report.failure = CFailure{{}, "", "the progress window could not be created", ""};
    } else {
        report.lastStage = EStage::Read;  // what a new window shows
    }
    return progress;
}

/// Reads both files; null when that failed or was cancelled. The report is filled however the reading ends.
std::shared_ptr<const CSatweModel> CConvertSatwe::ReadModel(std::unique_ptr<CProgressWindow>& progress)
{
    const CConversionPaths& paths = report.paths;
    CMessageRecorder screen(userInterface, report.messages);
    const auto model = std::make_shared<CSatweModel>();
    CSatweReader reader(*model, system, screen, findings);
    reader.CountLines(paths);
    report.lines = reader.Lines();
    progress = OpenWindow();
    if (progress == nullptr) {
        return nullptr;
    }
    progress->SetTotalLines(report.lines.total);
    const auto fillReport = [&]() noexcept {
        report.lines = reader.Lines();
        report.read = CountRecords(*model);
        report.failure = reader.TakeFailure();
        report.result = reader.Cancelled() ? kCancelled : kFailed;
    };
    try {
        report.isRead = reader.ReadStructureFile(paths, *progress) != 0 && !reader.Cancelled();
    } catch (...) {
        fillReport();
        throw;
    }
    fillReport();
    return report.isRead ? model : nullptr;
}

/// Writes the model. The report is filled however the call ends: a conversion that is complete does not fail for it.
void CConvertSatwe::WriteModel(const CSatweModel& model, CProgressWindow& progress)
{
    CMessageRecorder screen(userInterface, report.messages);
    CModelWriter writer(model, system, screen, findings);
    const auto fillReport = [&]() noexcept {
        report.written = writer.Counts();
        report.lastStage = writer.LastStage() ? writer.LastStage() : report.lastStage;
        report.hasFileError = writer.HasFileError();
        report.hasMessageLog = writer.HasMessageLog();
    };
    try {
        writer.WriteModelFile(report.paths, progress);
    } catch (const CInvalidArgument& invalidArgument) {
        fillReport();
        report.failure = CFailure{invalidArgument.Place(), "", invalidArgument.what(), ""};
        throw;
    } catch (...) {
        fillReport();
        throw;
    }
    fillReport();
    report.result = kWritten;
}

}  // namespace satwecvt
