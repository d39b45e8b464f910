// The converter: one object, made for one conversion. It reads a structure file and a load file into a model and writes
// the model out as a model text file, one after the other or apart, and tells how it went.
#pragma once

#include "satwecvt/ConversionReport.h"
#include "satwecvt/FileSystem.h"
#include "satwecvt/Finding.h"
#include "satwecvt/UserInterface.h"

#include <memory>
#include <string_view>

namespace satwecvt {

/// A building as it was read. Programs hand it from `Read` to `Write`.
class CSatweModel;

/// Where the outputs of a pair of files lie unless a program wants them elsewhere: the model text file beside the
/// structure file, the message log "satwecvt.msg" in the working folder. The model has the structure file's path, with
/// everything from the last "." on replaced by ".vkm". That is the last one of the whole path, not of the file name
/// alone: "D:\rev1.2\tower" gives "D:\rev1.vkm".
CConversionPaths LibraryPaths(std::string_view structurePath, std::string_view loadPath);

class CConvertSatwe {
public:
    /// `listener` hears every finding; it may be null. All have to outlive the converter.
    explicit CConvertSatwe(CUserInterface& ui, CFindingListener* listener = nullptr,
                           CFileSystem& fileSystem = CFileSystem::System());

    /// Converts a pair of files, with the outputs where `LibraryPaths` puts them. Returns `kWritten` when the writing
    /// ran to its end, also when a file error, which the user was told of, left the model text file missing or
    /// incomplete; `kCancelled` when the user cancelled; `kFailed` otherwise. No exception leaves it.
    [[nodiscard]] int Convert(const char* structurePath, const char* loadPath) noexcept;

    /// The same with the outputs where the program wants them.
    [[nodiscard]] int Convert(const CConversionPaths& paths) noexcept;

    /// The first half: reads a pair of files. Returns the model; null when the reading failed or the user cancelled, as
    /// the report tells. No exception leaves it.
    [[nodiscard]] std::shared_ptr<const CSatweModel> Read(const CConversionPaths& paths) noexcept;

    /// The second half: writes a model, as often as one likes with the same bytes. Returns `kWritten` or `kFailed`,
    /// like `Convert`. No exception leaves it. The report then tells of this writing and of the last reading.
    [[nodiscard]] int Write(const CSatweModel& model, const CConversionPaths& paths) noexcept;

    /// Takes a printf format and its arguments, and stays silent: what a user has to know is told by the message boxes
    /// of reader and writer. Returns 0.
    template <class... Arguments>
    static int ReportError(const char* /*format*/, const Arguments&... /*arguments*/) noexcept
    {
        return 0;
    }

    /// How it went.
    const CConversionReport& Report() const noexcept { return report; }

private:
    template <class Step>
    void Run(Step step) noexcept;
    void NoteFailure(std::string_view reason) noexcept;
    std::unique_ptr<CProgressWindow> OpenWindow();
    void BeginReport(const CConversionPaths& paths);
    std::shared_ptr<const CSatweModel> ReadModel(std::unique_ptr<CProgressWindow>& progress);
    void WriteModel(const CSatweModel& model, CProgressWindow& progress);

    CUserInterface& userInterface;
    CFindingListener* findings;
    CFileSystem& system;
    CConversionReport report;
};

}  // namespace satwecvt
