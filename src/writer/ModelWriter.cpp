#include "writer/ModelWriter.h"

#include "writer/BeamLoadBlock.h"
#include "writer/ElementBlock.h"
#include "writer/MaterialBlock.h"
#include "writer/NodalLoadBlock.h"
#include "writer/NodeBlock.h"
#include "writer/OffsetBlock.h"
#include "writer/OutputPath.h"
#include "writer/PressureBlock.h"
#include "writer/ReleaseBlock.h"
#include "writer/SectionBlock.h"
#include "writer/SupportBlock.h"
#include "writer/ThicknessBlock.h"
#include "writer/WriteLine.h"

namespace satwecvt {

namespace {

constexpr std::string_view kDeadLoad = "DeadLoad";
constexpr std::string_view kLiveLoad = "LiveLoad";

}  // namespace

CModelWriter::CModelWriter(CSatweModel& satweModel, CFileSystem& fileSystem, CUserInterface& ui)
    : model(satweModel),
      system(fileSystem),
      userInterface(ui),
      modelFile(fileSystem),
      messageFile(fileSystem)
{}

void CModelWriter::WriteModelFile(const char* structurePath, const char* loadPath, CProgressWindow& progress)
{
    try {
        OpenFiles(structurePath, loadPath);
        WriteBlocks(progress);
        CloseFiles();
    } catch (const CFileError& error) {
        modelFile.Abandon();
        messageFile.Abandon();
        hasFileError = true;
        userInterface.ReportFileError(error.Cause(), error.Path());
    }
}

void CModelWriter::OpenFiles(const char* structurePath, const char* loadPath)
{
    OpenUnlessInput(messageFile, kMessageFileName, structurePath, loadPath);
    hasMessageFile = messageFile.IsOpen();
    const std::string modelPath = OutputPath(structurePath);
    if (hasMessageFile && system.IsSameFile(modelPath.c_str(), kMessageFileName)) {
        modelFile.Refuse(modelPath, "it is the message log of this conversion");
    } else {
        OpenUnlessInput(modelFile, modelPath, structurePath, loadPath);
    }
    if (!modelFile.IsOpen()) {
        throw modelFile.Error();
    }
}

void CModelWriter::OpenUnlessInput(COutputFile& file, const std::string& path, const char* structurePath,
                                   const char* loadPath)
{
    if (system.IsSameFile(path.c_str(), structurePath) || system.IsSameFile(path.c_str(), loadPath)) {
        file.Refuse(path, "it is an input file of this conversion");
    } else {
        file.Open(path);
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
    messageFile.Close();
}

void CModelWriter::WriteModelText(CProgressWindow& progress)
{
    WriteLine(modelFile,
              "*VERSION\n"
              "  5.8.0\n\n");

    progress.SetStageText("Write Data File : Node");
    WriteNodes(modelFile, model, writtenNodes, counts);

    progress.SetStageText("Write Data File : Element");
    CElementOutput elements{modelFile, messageFile, model, writtenNodes, counts};
    WriteElements(elements);

    progress.SetStageText("Write Data File : Material");
    WriteMaterials(modelFile, model, counts);

    progress.SetStageText("Write Data File : Section");
    WriteSections(modelFile, model, counts);

    progress.SetStageText("Write Data File : Thickness");
    WriteThicknesses(modelFile, model, counts);

    progress.SetStageText("Write Data File : Support");
    WriteSupports(modelFile, model, counts);

    progress.SetStageText("Write Data File : Beam End Release");
    WriteReleases(modelFile, model, counts);

    progress.SetStageText("Write Data File : Beam End Offset");
    WriteOffsets(modelFile, model, counts);

    progress.SetStageText("Write Data File : Load Case");
    WriteLoadCases();

    progress.SetStageText("Write File : Static Load");
    if (!model.loads.empty()) {
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
    WriteLine(modelFile, "*USE-STLD, %s\n\n", name);
    WriteNodalLoads(modelFile, model, writtenNodes, loadCase, counts);
    WriteBeamLoads(modelFile, messageFile, model, writtenNodes, loadCase, counts);
    WritePressureLoads(modelFile, model, loadCase, counts);
    WriteLine(modelFile, "; End of data for load case [%s] -------------------------\n\n", name);
}

}  // namespace satwecvt
