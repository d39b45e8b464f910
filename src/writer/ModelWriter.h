// The frame of the model text file: opens it and the message log, writes the blocks in their fixed order, and closes
// both files on every way out.
#pragma once

#include "model/ConversionTables.h"
#include "model/SatweModel.h"
#include "satwecvt/ConversionReport.h"
#include "satwecvt/FileSystem.h"
#include "satwecvt/UserInterface.h"
#include "text/OutputFile.h"
#include "writer/LoadCase.h"
#include "writer/LostWalls.h"
#include "writer/MessageLog.h"
#include "writer/WrittenNodes.h"

#include <optional>
#include <string>
#include <string_view>

namespace satwecvt {

/// Writes one model once. The model stays as it is: another writer gives the same bytes again.
class CModelWriter {
public:
    /// `listener` may be null. All have to outlive the writer.
    CModelWriter(const CSatweModel& satweModel, CFileSystem& fileSystem, CUserInterface& ui,
                 CFindingListener* listener);

    /// Writes the model text file and the message log. Neither of them may be one of the two input files: such a file
    /// counts as one that cannot be created. The same holds for a model that is the log.
    ///
    /// A file that cannot be created or written is told to the user once; both files are then left as they are, and the
    /// call returns. A message log that cannot be created is such a file only once a message has to go there. An
    /// invalid-argument failure closes both files with what was written until then, and leaves this call.
    void WriteModelFile(const CConversionPaths& paths, CProgressWindow& progress);

    /// What was written so far.
    CWrittenCounts Counts() const noexcept;

    /// The stage that was shown last; none before the first.
    const std::optional<EStage>& LastStage() const noexcept { return lastStage; }

    /// Whether a file could not be written, so that the model text file or the message log is missing or incomplete.
    bool HasFileError() const noexcept { return hasFileError; }

    /// Whether there is a message log of this conversion.
    bool HasMessageLog() const noexcept { return hasMessageLog; }

private:
    void OpenFiles(const CConversionPaths& paths);
    void OpenUnlessInput(COutputFile& file, const std::string& path, const CConversionPaths& paths);
    void WriteBlocks(CProgressWindow& progress);
    void CloseFiles();

    void WriteModelText(CProgressWindow& progress);
    void WriteLoadCases();
    void WriteStaticLoads(ELoadCase loadCase, std::string_view name);

    const CSatweModel& model;
    CFileSystem& system;
    CUserInterface& userInterface;
    COutputFile modelFile;
    CMessageLog messageLog;
    CConversionTables tables;
    CWrittenNodes writtenNodes;
    CLostWalls lostWalls;
    CWrittenCounts counts;
    std::optional<EStage> lastStage;
    bool hasFileError = false;
    bool hasMessageLog = false;
};

}  // namespace satwecvt
