// Outputs that are kept in memory: nothing is written to the machine's files, which are read as they are. For a look at
// what a conversion would write. There is no limit but memory, whose end is the file error ENOMEM.
#pragma once

#include "output/FilePlaces.h"
#include "satwecvt/FileSystem.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

class CMemoryOutputs : public CFileSystem {
public:
    /// Both have to outlive the object.
    explicit CMemoryOutputs(CFileSystem& files, CFilePlaces& filePlaces = CFilePlaces::System());

    int OpenForReading(const char* path) override;
    int OpenForWriting(const char* path) override;
    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override;
    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override;
    int Close(int file) noexcept override;

    /// An output counts as a file that exists in its place, whatever path leads there.
    bool IsSameFile(const char* a, const char* b) override;

    /// What was written to the output of this path, as it was given: valid until the next call for writing. None when
    /// it was never opened.
    std::optional<std::string_view> Bytes(std::string_view path) const;

private:
    struct COutput {
        std::string path;
        std::optional<COutputPlace> place;  // none for what names no place in a folder
        std::string bytes;
        bool isOpen = true;
    };

    std::vector<COutput>::iterator Find(const char* path);
    COutput* Find(int file) noexcept;

    CFileSystem& below;
    CFilePlaces& places;
    std::vector<COutput> outputs;
};

}  // namespace satwecvt
