#include "writer/ModelWriter.h"

#include "text/WriteLine.h"
#include "writer/BeamLoadBlock.h"
#include "writer/ElementBlock.h"
#include "writer/MaterialBlock.h"
#include "writer/NodalLoadBlock.h"
#include "writer/NodeBlock.h"
#include "writer/OffsetBlock.h"
#include "writer/PressureBlock.h"
#include "writer/ReleaseBlock.h"
#include "writer/SectionBlock.h"
#include "writer/SupportBlock.h"
#include "writer/ThicknessBlock.h"

namespace satwecvt {

namespace {

constexpr std::string_view kDeadLoad = "DeadLoad";
constexpr std::string_view kLiveLoad = "LiveLoad";

}  // namespace

CModelWriter::CModelWriter(const CSatweModel& satweModel, CFileSystem& fileSystem, CUserInterface& ui,
                           CFindingListener* listener)
    : model(satweModel),
      system(fileSystem),
      userInterface(ui),
      modelFile(fileSystem),
      messageLog(fileSystem, listener),
      tables(satweModel)
{}

CWrittenCounts CModelWriter::Counts() const noexcept
{
    CWrittenCounts all = counts;
    all.warnings = messageLog.LineCount();
    return all;
}

void CModelWriter::WriteModelFile(const CConversionPaths& paths, CProgressWindow& progress)
{
    try {
        OpenFiles(paths);
        WriteBlocks(progress);
        CloseFiles();
    } catch (const CFileError& error) {
        modelFile.Abandon();
        messageLog.File().Abandon();
        hasFileError = true;
        userInterface.ReportFileError(error.Cause(), error.Path());
    }
}

void CModelWriter::OpenFiles(const CConversionPaths& paths)
{
    OpenUnlessInput(messageLog.File(), paths.messageLog, paths);
    hasMessageLog = messageLog.File().IsOpen();
    if (hasMessageLog && system.IsSameFile(paths.model.c_str(), paths.messageLog.c_str())) {
        modelFile.Refuse(paths.model, "it is the message log of this conversion");
    } else {
        OpenUnlessInput(modelFile, paths.model, paths);
    }
    if (!modelFile.IsOpen()) {
        throw modelFile.Error();
    }
}

/// What cannot be opened fails at the first byte for it.
void CModelWriter::OpenUnlessInput(COutputFile& file, const std::string& path, const CConversionPaths& paths)
{
    const char* const name = path.c_str();
    if (system.IsSameFile(name, paths.structure.c_str()) || system.IsSameFile(name, paths.load.c_str())) {
        file.Refuse(path, "it is an input file of this conversion");
    } else {
        static_cast<void>(file.Open(path));
    }
}

/// Writes the model text; when that fails for its content, closes the files with what they hold.
void CModelWriter::WriteBlocks(CProgressWindow& progress)
{
    try {
        WriteModelText(progress);
    } catch (const CFileError&) {
        throw;
    } catch (...) {
        CloseFiles();
        throw;
    }
}

void CModelWriter::CloseFiles()
{
    modelFile.Close();
    messageLog.File().Close();
}

void CModelWriter::WriteModelText(CProgressWindow& progress)
{
    const auto begin = [&](EStage stage) {
        lastStage = stage;
        progress.SetStageText(StageText(stage));
    };
    WriteLine(modelFile,
              "*VERSION\n"
              "  5.8.0\n\n");

    begin(EStage::Node);
    WriteNodes(modelFile, model, writtenNodes, counts);

    begin(EStage::Element);
    CElementOutput elements{modelFile, messageLog, model, writtenNodes, tables, lostWalls, counts};
    WriteElements(elements);

    begin(EStage::Material);
    WriteMaterials(modelFile, tables, counts);

    begin(EStage::Section);
    WriteSections(modelFile, tables, counts);

    begin(EStage::Thickness);
    WriteThicknesses(modelFile, tables, counts);

    begin(EStage::Support);
    WriteSupports(modelFile, model, counts);

    begin(EStage::BeamEndRelease);
    WriteReleases(modelFile, tables, counts);

    begin(EStage::BeamEndOffset);
    WriteOffsets(modelFile, tables, counts);

    begin(EStage::LoadCase);
    WriteLoadCases();

    begin(EStage::StaticLoad);
    if (model.loads.Count() != 0) {
        WriteStaticLoads(ELoadCase::DeadLoad, kDeadLoad);
        WriteStaticLoads(ELoadCase::LiveLoad, kLiveLoad);
        WriteLine(modelFile, "\n");
    }
}

void CModelWriter::WriteLoadCases()
{
    WriteLine(modelFile,
              "*STLDCASE    ; Static Load Cases\n"
              "; LCNAME, LCTYPE, DESC\n");
    WriteLine(modelFile, "  %s, D, \n", kDeadLoad);
    WriteLine(modelFile, "  %s, L, \n", kLiveLoad);
    WriteLine(modelFile, "\n");
}

void CModelWriter::WriteStaticLoads(ELoadCase loadCase, std::string_view name)
{
    CLoadOutput loads{modelFile, messageLog, model, writtenNodes, lostWalls, counts};
    WriteLine(modelFile, "*USE-STLD, %s\n\n", name);
    WriteNodalLoads(loads, loadCase);
    WriteBeamLoads(loads, loadCase);
    WritePressureLoads(loads, loadCase);
    WriteLine(modelFile, "; End of data for load case [%s] -------------------------\n\n", name);
}

}  // namespace satwecvt
