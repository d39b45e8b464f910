#include "driver/ConvertSatwe.h"

#include "driver/FloatEnvironment.h"
#include "model/Int32.h"
#include "reader/InputFile.h"
#include "reader/SatweReader.h"
#include "writer/ModelWriter.h"

#include <exception>
#include <new>

namespace satwecvt {

CConvertSatwe::CConvertSatwe(CUserInterface& ui, CFileSystem& fileSystem)
    : userInterface(ui),
      system(fileSystem),
      model(new (std::nothrow) CSatweModel)
{
    if (model == nullptr) {
        ReportError("Out of Memory");
    }
}

int CConvertSatwe::Convert(const char* structurePath, const char* loadPath) noexcept
{
    const CFloatEnvironment environment;
    bool cancelled = false;
    bool isWritten = false;
    try {
        isWritten = model != nullptr && ReadAndWrite(structurePath, loadPath, cancelled);
    } catch (...) {
        isWritten = false;  // bad content, no memory: both end here, silently
    }
    if (cancelled) {
        return kCancelled;
    }
    return isWritten ? kWritten : kFailed;
}

/// Answers whether the model text file was written. `cancelled` and the report are set however the call ends.
bool CConvertSatwe::ReadAndWrite(const char* structurePath, const char* loadPath, bool& cancelled)
{
    const CLineCounts lineCounts{CountLines(system, structurePath), CountLines(system, loadPath)};
    const std::unique_ptr<CProgressWindow> progress = userInterface.CreateProgressWindow();
    if (progress == nullptr) {
        return false;
    }
    progress->SetTotalLines(WrappedSum(lineCounts.structure, lineCounts.load));

    CSatweReader reader(*model, system, userInterface);
    CModelWriter writer(*model, system, userInterface);
    const auto fillReport = [&]() noexcept {  // a conversion that is complete does not fail for its report
        cancelled = reader.Cancelled();
        report.lineCounter = reader.LineCounter();
        report.readStop = reader.TakeReadStop();
        report.read = CountRecords(*model);
        report.written = writer.Counts();
        report.hasFileError = writer.HasFileError();
        report.hasMessageFile = writer.HasMessageFile();
    };
    try {
        const bool isRead = reader.ReadStructureFile(structurePath, loadPath, lineCounts, *progress) != 0;
        report.isRead = isRead && !reader.Cancelled();
        if (report.isRead) {
            writer.WriteModelFile(structurePath, loadPath, *progress);
        }
        fillReport();
        return report.isRead;
    } catch (const std::exception& failure) {
        fillReport();
        report.failure = failure.what();
        throw;
    }
}

}  // namespace satwecvt
