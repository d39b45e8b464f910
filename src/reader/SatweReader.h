// Reads both input files of a conversion into the model.
#pragma once

#include "model/SatweModel.h"
#include "reader/BlockReader.h"
#include "satwecvt/ConversionReport.h"
#include "satwecvt/FileSystem.h"
#include "satwecvt/UserInterface.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace satwecvt {

class CSatweReader {
public:
    /// `listener` may be null. All have to outlive the reader.
    CSatweReader(CSatweModel& satweModel, CFileSystem& fileSystem, CUserInterface& ui, CFindingListener* listener)
        : model(satweModel),
          system(fileSystem),
          userInterface(ui),
          findings(listener)
    {}

    /// Counts the physical lines of both files, for the progress and for room made beforehand. A file that cannot be
    /// opened has none.
    void CountLines(const CConversionPaths& paths);

    /// Reads the structure file, then the load file. Returns 1 when the structure file was read completely and the load
    /// file could be opened; a load file that ends early, or that the system refuses to read on, keeps the loads read
    /// so far and returns 1 too. Returns 0 on any other failure and when the user cancels in the structure file; a file
    /// that cannot be opened is told by a message. A line with too few numbers is the invalid-argument failure.
    [[nodiscard]] int ReadStructureFile(const CConversionPaths& paths, CProgressWindow& progress);

    /// The figures of the lines so far.
    CLineFigures Lines() const noexcept;

    /// Whether the user has cancelled.
    bool Cancelled() const noexcept { return state.cancelled; }

    /// Gives away what the structure file, or the opening of the load file, failed for; none when nothing has.
    std::optional<CFailure> TakeFailure() noexcept { return std::exchange(failure, std::nullopt); }

private:
    [[nodiscard]] int OpenInput(CDataLines& lines, ESource source, const std::string& path, std::int64_t lineCount,
                                std::string_view message);
    [[nodiscard]] int ReadFiles(const CConversionPaths& paths, CProgressWindow& progress);
    [[nodiscard]] int ReadStructure(CDataLines& lines);
    void ReadLoads(CDataLines& lines);
    void TellSameFile(const CConversionPaths& paths);
    void TellSwappedFiles(const CConversionPaths& paths);

    CSatweModel& model;
    CFileSystem& system;
    CUserInterface& userInterface;
    CFindingListener* findings;
    std::int64_t structureLines = 0;
    std::int64_t loadLines = 0;
    CReadState state;
    std::optional<CFailure> failure;
};

}  // namespace satwecvt
