// The frame of the model text file: opens it and the message log, writes the blocks in their fixed order, and closes
// both files on every way out.
#pragma once

#include "file/FileSystem.h"
#include "model/SatweModel.h"
#include "ui/UserInterface.h"
#include "writer/LoadCase.h"
#include "writer/OutputFile.h"
#include "writer/WrittenCounts.h"
#include "writer/WrittenNodes.h"

#include <string>
#include <string_view>

namespace satwecvt {

/// The message log, in the process's working folder.
inline constexpr const char* kMessageFileName = "satwecvt.msg";

class CModelWriter {
public:
    CModelWriter(CSatweModel& satweModel, CFileSystem& fileSystem, CUserInterface& ui);

    /// Writes the model text file beside the structure file and the message log into the working folder. Neither of
    /// them may be one of the two input files: such a file counts as one that cannot be created.
    ///
    /// A file that cannot be created or written is told to the user once; both files are then left as they are, and the
    /// call returns. A message log that cannot be created is such a file only once a message has to go there. An
    /// invalid-argument failure closes both files with what was written until then, and leaves this call.
    void WriteModelFile(const char* structurePath, const char* loadPath, CProgressWindow& progress);

    const CWrittenCounts& Counts() const noexcept { return counts; }

    /// Whether a file could not be written, so that the model text file or the message log is missing or incomplete.
    bool HasFileError() const noexcept { return hasFileError; }

    /// Whether there is a message log of this conversion.
    bool HasMessageFile() const noexcept { return hasMessageFile; }

private:
    void OpenFiles(const char* structurePath, const char* loadPath);
    void OpenUnlessInput(COutputFile& file, const std::string& path, const char* structurePath, const char* loadPath);
    void WriteBlocks(CProgressWindow& progress);
    void CloseFiles();

    void WriteModelText(CProgressWindow& progress);
    void WriteLoadCases();
    void WriteStaticLoads(ELoadCase loadCase, std::string_view name);

    CSatweModel& model;
    CFileSystem& system;
    CUserInterface& userInterface;
    COutputFile modelFile;
    COutputFile messageFile;
    CWrittenNodes writtenNodes;
    CWrittenCounts counts;
    bool hasFileError = false;
    bool hasMessageFile = false;
};

}  // namespace satwecvt
