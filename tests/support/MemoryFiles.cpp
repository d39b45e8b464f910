#include "support/MemoryFiles.h"

#include <algorithm>
#include <cerrno>

namespace satwecvt {

int CMemoryFiles::OpenForReading(const char* path)
{
    const auto found = files.find(path);
    if (found == files.end()) {
        errno = ENOENT;
        return -1;
    }
    return Add(path, EUse::Reading, found->second);
}

int CMemoryFiles::OpenForWriting(const char* path)
{
    std::string& bytes = files[path];
    bytes.clear();
    return Add(path, EUse::Writing, bytes);
}

std::ptrdiff_t CMemoryFiles::Read(int file, char* buffer, std::size_t size)
{
    CDescriptor* const descriptor = Find(file, EUse::Reading);
    if (descriptor == nullptr) {
        return -1;
    }
    const std::size_t count = descriptor->bytes->copy(buffer, std::min(size, mostBytesPerCall), descriptor->position);
    descriptor->position += count;
    return static_cast<std::ptrdiff_t>(count);
}

std::ptrdiff_t CMemoryFiles::Write(int file, const char* bytes, std::size_t size)
{
    CDescriptor* const descriptor = Find(file, EUse::Writing);
    if (descriptor == nullptr) {
        return -1;
    }
    const std::size_t count = std::min(size, mostBytesPerCall);
    descriptor->bytes->append(bytes, count);
    return static_cast<std::ptrdiff_t>(count);
}

int CMemoryFiles::Close(int file)
{
    const auto index = static_cast<std::size_t>(file);
    if (file < 0 || index >= descriptors.size() || descriptors[index].use == EUse::None) {
        errno = EBADF;
        return -1;
    }
    descriptors[index].use = EUse::None;
    return 0;
}

bool CMemoryFiles::IsSameFile(const char* a, const char* b)
{
    return files.contains(a) && std::string(a) == b;
}

std::optional<std::string> CMemoryFiles::Bytes(const std::string& path) const
{
    const auto found = files.find(path);
    return found != files.end() ? std::optional(found->second) : std::nullopt;
}

std::size_t CMemoryFiles::OpenCount() const noexcept
{
    return static_cast<std::size_t>(std::count_if(descriptors.begin(), descriptors.end(),
                                                  [](const CDescriptor& d) { return d.use != EUse::None; }));
}

int CMemoryFiles::Add(const char* path, EUse use, std::string& bytes)
{
    descriptors.push_back({path, use, &bytes, 0});
    return static_cast<int>(descriptors.size() - 1);
}

CMemoryFiles::CDescriptor* CMemoryFiles::Find(int file, EUse use)
{
    const auto index = static_cast<std::size_t>(file);
    if (file < 0 || index >= descriptors.size() || descriptors[index].use != use) {
        errno = EBADF;
        return nullptr;
    }
    return &descriptors[index];
}

}  // namespace satwecvt
