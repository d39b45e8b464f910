// Outputs that are kept in memory, where they can be read back: nothing is written to the machine's files, which are
// read as they are. For a look at what a conversion would write, and for what can be written only when it went well.
// There is no limit but memory, whose end is the file error ENOMEM.
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

    /// An output is read as it is at each call.
    int OpenForReading(const char* path) override;

    /// An output that is opened again starts afresh.
    int OpenForWriting(const char* path) override;

    /// Descriptors of the files below are theirs.
    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override;
    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override;
    int Close(int file) noexcept override;

    /// An output counts as a file that exists in its place, whatever path leads there.
    bool IsSameFile(const char* a, const char* b) override;

    /// What was written to the output of this path, as it was given: valid until the next call for writing. None when
    /// it was never opened.
    std::optional<std::string_view> Bytes(std::string_view path) const;

    /// Forgets all outputs, and whoever still has one open.
    void Clear() noexcept;

private:
    enum class EUse { Reading, Writing, None };

    struct COutput {
        std::string path;
        std::optional<COutputPlace> place;  // none for what names no place in a folder
        std::string bytes;
    };

    struct CDescriptor {
        std::size_t output;  // its index
        EUse use;
        std::size_t position = 0;  // of the next byte to read
    };

    std::vector<COutput>::iterator Find(const char* path);
    CDescriptor* Find(int file, EUse use) noexcept;
    int Open(std::vector<COutput>::iterator output, EUse use);

    CFileSystem& below;
    CFilePlaces& places;
    std::vector<COutput> outputs;
    std::vector<CDescriptor> descriptors;  // none is used twice
};

}  // namespace satwecvt
