#include "cli/BatchRecord.h"

#include "cli/Report.h"
#include "satwecvt/FileSystem.h"
#include "satwecvt/UserInterface.h"

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <iostream>
#include <utility>

namespace satwecvt {

CBatchRecord::CBatchRecord(std::string recordPath) : path(std::move(recordPath)) {}

CBatchRecord::~CBatchRecord()
{
    Close();
}

bool CBatchRecord::Open()
{
    if (IsWanted() && !IsStdout()) {
        file = CFileSystem::System().OpenForWriting(path.c_str());
        if (file < 0) {
            Fail(errno);
        }
    }
    return isWhole;
}

void CBatchRecord::Write(std::string_view lines)
{
    if (IsStdout()) {
        std::cout << lines << std::flush;  // whoever prints there looks at its state in the end
        return;
    }
    while (file >= 0 && isWhole && !lines.empty()) {
        const std::ptrdiff_t count = CFileSystem::System().Write(file, lines.data(), lines.size());
        if (count <= 0) {
            return Fail(count < 0 ? errno : ENOSPC);
        }
        lines.remove_prefix(static_cast<std::size_t>(count));
    }
}

bool CBatchRecord::Close()
{
    if (file >= 0 && CFileSystem::System().Close(file) != 0 && isWhole) {
        Fail(errno);
    }
    file = -1;
    return isWhole;
}

void CBatchRecord::Fail(int cause)
{
    isWhole = false;
    PrintError(FileErrorText(std::strerror(cause), path));
}

}  // namespace satwecvt
