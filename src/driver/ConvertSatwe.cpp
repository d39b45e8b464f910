#include "satwecvt/ConvertSatwe.h"

#include "driver/CountRecords.h"
#include "driver/FloatEnvironment.h"
#include "driver/MessageRecorder.h"
#include "finding/InvalidArgument.h"
#include "reader/SatweReader.h"
#include "writer/ModelWriter.h"

#include <exception>
#include <new>

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
    report = CConversionReport();
    Run([&] {
        std::unique_ptr<CProgressWindow> progress;
        const std::shared_ptr<const CSatweModel> model = ReadModel(paths, progress);
        if (model != nullptr) {
            WriteModel(*model, paths, *progress);
        }
    });
    return report.result;
}

std::shared_ptr<const CSatweModel> CConvertSatwe::Read(const CConversionPaths& paths) noexcept
{
    report = CConversionReport();
    std::shared_ptr<const CSatweModel> model;
    Run([&] {
        std::unique_ptr<CProgressWindow> progress;
        model = ReadModel(paths, progress);
    });
    return model;
}

int CConvertSatwe::Write(const CSatweModel& model, const CConversionPaths& paths) noexcept
{
    report.result = kFailed;
    report.failure.reset();
    report.messages.clear();
    report.written = CWrittenCounts();
    report.hasFileError = false;
    report.hasMessageLog = false;
    Run([&] {
        if (const std::unique_ptr<CProgressWindow> progress = OpenWindow()) {
            WriteModel(model, paths, *progress);
        }
    });
    return report.result;
}

/// Runs a step of the conversion, whose failures end here.
template <class Step>
void CConvertSatwe::Run(Step step) noexcept
{
    const CFloatEnvironment environment;
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
            report.failure = CFailure{{}, "", std::string(reason)};
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
        report.failure = CFailure{{}, "", "the progress window could not be created"};
    }
    return progress;
}

/// Reads both files; null when that failed or was cancelled. The report is filled however the call ends.
std::shared_ptr<const CSatweModel> CConvertSatwe::ReadModel(const CConversionPaths& paths,
                                                            std::unique_ptr<CProgressWindow>& progress)
{
    report.paths = paths;
    CMessageRecorder screen(userInterface, report.messages);
    const auto model = std::make_shared<CSatweModel>();
    CSatweReader reader(*model, system, screen, findings);
    reader.CountLines(paths);
    progress = OpenWindow();
    if (progress == nullptr) {
        return nullptr;
    }
    report.lastStage = EStage::Read;
    progress->SetTotalLines(reader.Lines().total);
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
void CConvertSatwe::WriteModel(const CSatweModel& model, const CConversionPaths& paths, CProgressWindow& progress)
{
    report.paths = paths;
    CMessageRecorder screen(userInterface, report.messages);
    CModelWriter writer(model, system, screen, findings);
    const auto fillReport = [&]() noexcept {
        report.written = writer.Counts();
        report.lastStage = writer.LastStage() ? writer.LastStage() : report.lastStage;
        report.hasFileError = writer.HasFileError();
        report.hasMessageLog = writer.HasMessageLog();
    };
    try {
        writer.WriteModelFile(paths, progress);
    } catch (const CInvalidArgument& invalidArgument) {
        fillReport();
        report.failure = CFailure{invalidArgument.Place(), "", invalidArgument.what()};
        throw;
    } catch (...) {
        fillReport();
        throw;
    }
    fillReport();
    report.result = kWritten;
}

}  // namespace satwecvt
