// Outputs that appear whole or not at all: each is written under a temporary name in the folder where it belongs, such
// as .tower.vkm.satwecvt-k3x0ab, and takes its place when `Keep` is called. Until then, and without it, nothing of what
// lay there has changed; only a kill leaves temporary files.
//
// An output that is a link replaces the file that the link leads to, and the link stays. A file with further hard links
// is replaced under the name that was given alone: the others keep the old bytes, whole.
//
// A replaced file leaves its permissions and its group to the new one, and its owner where the system lets us. Where
// that cannot be, where the folder takes no new file, and for what is no regular file (a device, a pipe, /dev/stdout),
// the output is opened as the files below do it: then it is written in place, and there is nothing to keep. What may
// not be written there is not replaced either: opening it fails as it does below.
#pragma once

#include "output/FilePlaces.h"
#include "satwecvt/FileSystem.h"

#include <cstddef>
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

    /// An output that is not kept yet is read from where it was written.
    int OpenForReading(const char* path) override;

    /// An output that is opened again before it is kept starts afresh.
    int OpenForWriting(const char* path) override;

    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override;
    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override;

    /// Brings an output to the disk before it closes it.
    int Close(int file) noexcept override;

    /// An output counts as one that exists in its place, whatever path leads there.
    bool IsSameFile(const char* a, const char* b) override;

    /// Lets all outputs take their places, in the order in which they were opened. Throws CFileError when one is not
    /// whole: then none has taken its place. Throws CFileError, too, when one cannot take its place: those before it
    /// have taken theirs then; it and those behind it are dropped, and what lies in their places is as it was.
    void Keep();

private:
    struct COutput {
        std::string path;  // as it was given
        COutputPlace place;
        std::string temporary;
        int file = -1;    // the descriptor while it is open
        int failure = 0;  // why it is not whole
    };

    int CreateTemporary(COutput& output);
    int CreateUnder(const std::string& beginning, COutput& output);
    std::vector<COutput>::iterator Find(const char* path);
    std::vector<COutput>::iterator Find(int file) noexcept;
    void Forget(const char* path);
    void Drop() noexcept;

    CFileSystem& below;
    CFilePlaces& places;
    std::vector<COutput> outputs;
};

}  // namespace satwecvt
