#include "reader/SatweReader.h"

#include "reader/LoadReader.h"
#include "reader/StructureReader.h"

#include <exception>

namespace satwecvt {

int CSatweReader::ReadStructureFile(const char* structurePath, const char* loadPath, const CLineCounts& lineCounts,
                                    CProgressWindow& progress)
{
    CDataLines lines(system, progress, state);
    if (OpenInput(lines, structurePath, lineCounts.structure, "Can't open structure input file!") == 0 ||
        ReadFile<CStructureReader>(lines, structurePath) == 0 ||
        OpenInput(lines, loadPath, lineCounts.load, "Can't open load file!") == 0) {
        return 0;
    }
    ReadFile<CLoadReader>(lines, loadPath);  // whatever ends it early, the loads read so far are converted
    return 1;
}

int CSatweReader::OpenInput(CDataLines& lines, const char* path, std::int32_t lineCount,
                            std::string_view failureMessage)
{
    if (lines.Open(path, lineCount) == 0) {
        readStop = CReadStop{path, 0, "", lines.OpenCause()};
        userInterface.ShowMessage(failureMessage);
        return 0;
    }
    return 1;
}

/// Reads an open file to its end, and notes where when it stops earlier.
template <class FileReader>
int CSatweReader::ReadFile(CDataLines& lines, const char* path)
{
    CBlockReader reader(lines);
    const auto noteStop = [&](std::string_view reason) {
        readStop = CReadStop{path, reader.LineNumber(), reader.BlockName(), std::string(reason)};
    };
    try {
        const int isRead = FileReader(reader, model).Read();
        if (isRead == 0 && !state.cancelled) {
            noteStop(reader.Reason());
        }
        return isRead;
    } catch (const CFileError& failure) {
        noteStop(failure.Cause());
        return 0;
    } catch (const std::exception& failure) {
        noteStop(failure.what());
        throw;
    }
}

}  // namespace satwecvt
