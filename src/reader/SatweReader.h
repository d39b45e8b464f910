// Reads both input files of a conversion into the model.
#pragma once

#include "file/FileSystem.h"
#include "model/SatweModel.h"
#include "reader/BlockReader.h"
#include "reader/ReadStop.h"
#include "ui/UserInterface.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace satwecvt {

/// How many physical lines the two input files have; see `CountLines`.
struct CLineCounts {
    std::int32_t structure = 0;
    std::int32_t load = 0;
};

class CSatweReader {
public:
    CSatweReader(CSatweModel& satweModel, CFileSystem& fileSystem, CUserInterface& ui)
        : model(satweModel),
          system(fileSystem),
          userInterface(ui)
    {}

    /// Reads the structure file, then the load file. Answers 1 when the structure file was read completely and the load
    /// file could be opened; a load file that ends early, or that the system refuses to read on, keeps the loads read
    /// so far and answers 1 too. Answers 0 on any other failure and when the user cancels in the structure file; a file
    /// that cannot be opened is told by a message. A line with too few numbers is the invalid-argument failure.
    int ReadStructureFile(const char* structurePath, const char* loadPath, const CLineCounts& lineCounts,
                          CProgressWindow& progress);

    /// Physical lines asked for, over both files together.
    std::int32_t LineCounter() const noexcept { return state.lineCounter; }

    /// Whether the user has cancelled.
    bool Cancelled() const noexcept { return state.cancelled; }

    /// Gives away where a file stopped. None when both files were read to their end, and when the user cancelled.
    std::optional<CReadStop> TakeReadStop() noexcept { return std::move(readStop); }

private:
    int OpenInput(CDataLines& lines, const char* path, std::int32_t lineCount, std::string_view failureMessage);
    template <class FileReader>
    int ReadFile(CDataLines& lines, const char* path);

    CSatweModel& model;
    CFileSystem& system;
    CUserInterface& userInterface;
    CReadState state;
    std::optional<CReadStop> readStop;
};

}  // namespace satwecvt
