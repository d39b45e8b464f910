// The converter: one object, made for one conversion. It owns the model, lets the reader fill it and the writer write
// it out, and answers how it went.
#pragma once

#include "driver/ConversionReport.h"
#include "file/FileSystem.h"
#include "model/SatweModel.h"
#include "ui/UserInterface.h"

#include <memory>

namespace satwecvt {

/// The results of a conversion, as the host gets them.
inline constexpr int kWritten = 0;
inline constexpr int kCancelled = 1;
inline constexpr int kFailed = -1;

class CConvertSatwe {
public:
    explicit CConvertSatwe(CUserInterface& ui, CFileSystem& fileSystem = CFileSystem::System());

    /// Converts a structure file and a load file. Answers `kWritten` when the writing ran to its end, also when a file
    /// error, which the user was told of, left the model text file missing or incomplete; `kCancelled` when the user
    /// cancelled; `kFailed` otherwise. No exception leaves it.
    int Convert(const char* structurePath, const char* loadPath) noexcept;

    /// Takes a printf format and its arguments, and stays silent: what a user has to know is told by the message boxes
    /// of reader and writer. Answers 0.
    template <class... Arguments>
    static int ReportError(const char* /*format*/, const Arguments&... /*arguments*/) noexcept
    {
        return 0;
    }

    /// How the last `Convert` went, for a program's summary.
    const CConversionReport& Report() const noexcept { return report; }

private:
    bool ReadAndWrite(const char* structurePath, const char* loadPath, bool& cancelled);

    CUserInterface& userInterface;
    CFileSystem& system;
    std::unique_ptr<CSatweModel> model;
    CConversionReport report;
};

}  // namespace satwecvt
