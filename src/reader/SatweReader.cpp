#include "reader/SatweReader.h"

#include "reader/FileKind.h"
#include "reader/LoadReader.h"
#include "reader/StructureReader.h"

#include <exception>

namespace satwecvt {

void CSatweReader::CountLines(const CConversionPaths& paths)
{
    structureLines = satwecvt::CountLines(system, paths.structure.c_str());
    loadLines = satwecvt::CountLines(system, paths.load.c_str());
}

int CSatweReader::ReadStructureFile(const CConversionPaths& paths, CProgressWindow& progress)
{
    if (findings == nullptr) {
        return ReadFiles(paths, progress);
    }
    TellSameFile(paths);
    try {
        const int isRead = ReadFiles(paths, progress);
        const bool areOpen = !failure || !failure->block.empty();  // before it is opened, a file has no blocks
        if (areOpen && !state.cancelled && model.loads.Count() == 0) {
            TellSwappedFiles(paths);
        }
        return isRead;
    } catch (const CInvalidArgument&) {
        TellSwappedFiles(paths);
        throw;
    }
}

int CSatweReader::ReadFiles(const CConversionPaths& paths, CProgressWindow& progress)
{
    std::optional<CLineDoubts> doubts;
    if (findings != nullptr) {
        doubts.emplace(*findings);
    }
    CDataLines lines(system, progress, state, doubts ? &*doubts : nullptr);
    if (OpenInput(lines, ESource::StructureFile, paths.structure, structureLines, "Can't open structure input file!") ==
            0 ||
        ReadStructure(lines) == 0 ||
        OpenInput(lines, ESource::LoadFile, paths.load, loadLines, "Can't open load file!") == 0) {
        return 0;
    }
    ReadLoads(lines);
    return 1;
}

CLineFigures CSatweReader::Lines() const noexcept
{
    // The counts are 32-bit integers wherever they are shown, and wrap there.
    const auto total = static_cast<std::int32_t>(structureLines + loadLines);
    return {total, state.lineCounter, state.steps};
}

int CSatweReader::OpenInput(CDataLines& lines, ESource source, const std::string& path, std::int64_t lineCount,
                            std::string_view message)
{
    if (lines.Open(source, path.c_str(), lineCount) == 0) {
        failure = CFailure{{source, 0}, "", lines.OpenCause(), ""};
        userInterface.ShowMessage(message);
        return 0;
    }
    return 1;
}

/// Reads the open structure file; when that fails, notes where and why.
int CSatweReader::ReadStructure(CDataLines& lines)
{
    CBlockReader reader(lines, ESource::StructureFile);
    try {
        const int isRead = CStructureReader(reader, model).Read();
        if (isRead == 0 && !state.cancelled) {
            failure = CFailure{reader.StopPlace(), reader.BlockName(), reader.StopReason(), reader.StopText()};
        }
        reader.EndFile(isRead != 0);
        return isRead;
    } catch (const CFileError& fileError) {
        failure = CFailure{reader.Place(), reader.BlockName(), fileError.Cause(), ""};
        return 0;
    } catch (const CInvalidArgument& invalidArgument) {
        // One that has waited for the end of its block has a line of its own.
        const bool hasPlace = invalidArgument.Place().line != 0;
        failure = CFailure{hasPlace ? invalidArgument.Place() : reader.Place(), reader.BlockName(),
                           invalidArgument.what(), hasPlace ? reader.StopText() : reader.LineText()};
        reader.EndFile(false);
        throw;
    }
}

/// Reads the open load file; whatever ends it early, the loads read so far are converted.
void CSatweReader::ReadLoads(CDataLines& lines)
{
    CBlockReader reader(lines, ESource::LoadFile);
    CLoadReader loads(reader, model);
    std::string cause;
    bool isWhole = false;
    try {
        isWhole = loads.Read() != 0;
    } catch (const CFileError& fileError) {
        cause = fileError.Cause();
    }
    if (findings == nullptr || state.cancelled) {
        return;
    }
    if (!isWhole) {
        findings->Tell(loads.EndsEarly(cause));
    }
    loads.TellEmptyBlocks(*findings);
    reader.EndFile(isWhole);
}

void CSatweReader::TellSameFile(const CConversionPaths& paths)
{
    if (system.IsSameFile(paths.structure.c_str(), paths.load.c_str())) {
        findings->Tell(MakeFinding(EFinding::SameFile, {ESource::LoadFile, 0}));
    }
}

void CSatweReader::TellSwappedFiles(const CConversionPaths& paths)
{
    if (LooksLikeLoadFile(system, paths.structure) && LooksLikeStructureFile(system, paths.load)) {
        findings->Tell(MakeFinding(EFinding::FilesSwapped, {ESource::StructureFile, 0}));
    }
}

}  // namespace satwecvt
