// Outputs that appear whole or not at all: each is written under a temporary name in the folder where it belongs, such
// as .tower.vkm.satwecvt-k3x0ab, and takes its place when `Keep` is called. Until then, and without it, nothing of what
// lay there has changed; only a kill leaves temporary files.
//
// An output that is a link replaces the file that the link leads to, and the link stays. A file with further hard links
// is replaced under the name that was given alone: the others keep the old bytes, whole.
//
// A replaced file leaves its permissions and its group to the new one, and its owner where the system lets us. Where
// that cannot be, where the folder takes no new file, and for what is no regular file (a device, a pipe, /dev/stdout),
// the output is held in memory, and `Keep` writes it in place: only there can a failure, or a kill, leave less than a
// whole one. A pipe or a device is not even opened before. What may not be written there is not replaced either:
// opening it fails as it does below.
#pragma once

#include "output/FilePlaces.h"
#include "output/MemoryOutputs.h"
#include "satwecvt/FileSystem.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace satwecvt {

class CSafeFiles : public CFileSystem {
public:
    /// `files` are files of the machine, whose descriptors are the system's. Both have to outlive the object.
    explicit CSafeFiles(CFileSystem& files, CFilePlaces& filePlaces = CFilePlaces::System());

    /// Removes what was not kept. Everything has been closed before.
    ~CSafeFiles() override;
    CSafeFiles(const CSafeFiles&) = delete;
    CSafeFiles& operator=(const CSafeFiles&) = delete;

    /// An output that is not kept yet is read from where it was written, a pipe or a device among them.
    int OpenForReading(const char* path) override;

    /// An output that is opened again before it is kept starts afresh.
    int OpenForWriting(const char* path) override;

    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override;
    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override;

    /// Brings an output to the disk before it closes it.
    int Close(int file) noexcept override;

    /// An output counts as one that exists in its place, whatever path leads there.
    bool IsSameFile(const char* a, const char* b) override;

    /// Writes what is held in memory, the more likely to fail, and lets all other outputs take their places then; both
    /// in the order in which they were opened. Throws CFileError when one is not whole: then none has been written or
    /// has taken its place. Throws CFileError, too, when one cannot be written or cannot take its place: those before
    /// it are where they belong then; it and those behind it are dropped, and what lies in their places is as it was,
    /// but for what was written in part.
    void Keep();

private:
    struct COutput {
        std::string path;                   // as it was given
        std::optional<COutputPlace> place;  // none for what names no place in a folder
        std::string temporary;              // empty when it is held in memory
        int file = -1;                      // the descriptor while it is open
        int failure = 0;                    // why it is not whole

        bool IsHeld() const noexcept { return temporary.empty(); }
    };

    int Open(COutput& output);
    int CreateTemporary(COutput& output);
    int CreateUnder(const std::string& beginning, COutput& output);
    std::vector<COutput>::iterator Find(const char* path);
    std::vector<COutput>::iterator Find(int file) noexcept;
    void ExpectWhole() const;
    void TakePlaces();
    void Forget(const char* path);
    void Remove(const COutput& output) noexcept;
    void Drop() noexcept;

    CFileSystem& below;
    CFilePlaces& places;
    CMemoryOutputs held;
    std::vector<COutput> outputs;
};

}  // namespace satwecvt
