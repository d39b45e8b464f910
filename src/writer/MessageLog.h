// The message log, and who hears the findings of a writing: the log first, then the listener of the program.
#pragma once

#include "satwecvt/FileSystem.h"
#include "satwecvt/Finding.h"
#include "text/OutputFile.h"

#include <cstdint>

namespace satwecvt {

class CMessageLog : public CFindingListener {
public:
    /// `nextListener` may be null.
    CMessageLog(CFileSystem& fileSystem, CFindingListener* nextListener) : file(fileSystem), next(nextListener) {}

    /// Writes the line of a finding that has one, and hands the finding on. Throws CFileError when the log cannot take
    /// the line.
    void Tell(const CFinding& finding) override;

    COutputFile& File() noexcept { return file; }

    /// How many lines were written.
    std::int64_t LineCount() const noexcept { return lineCount; }

private:
    COutputFile file;
    CFindingListener* next;
    std::int64_t lineCount = 0;
};

}  // namespace satwecvt
