#include "output/MemoryOutputs.h"

#include <algorithm>
#include <cerrno>
#include <exception>
#include <limits>
#include <new>
#include <utility>

namespace satwecvt {

namespace {

constexpr int kFirstDescriptor = std::numeric_limits<int>::max() / 2;  // no system opens so many files

bool IsOurs(int file)
{
    return file >= kFirstDescriptor;
}

}  // namespace

CMemoryOutputs::CMemoryOutputs(CFileSystem& files, CFilePlaces& filePlaces) : below(files), places(filePlaces) {}

int CMemoryOutputs::OpenForReading(const char* path)
{
    try {
        const auto output = Find(path);
        return output != outputs.end() ? Open(output, EUse::Reading) : below.OpenForReading(path);
    } catch (const std::bad_alloc&) {
        errno = ENOMEM;
        return -1;
    }
}

int CMemoryOutputs::OpenForWriting(const char* path)
{
    try {
        COutput fresh{path, places.PlaceOf(path), ""};
        auto output = Find(path);
        if (output == outputs.end()) {
            output = outputs.insert(output, std::move(fresh));
        } else {
            *output = std::move(fresh);
        }
        return Open(output, EUse::Writing);
    } catch (const std::bad_alloc&) {
        errno = ENOMEM;
        return -1;
    }
}

std::ptrdiff_t CMemoryOutputs::Read(int file, char* buffer, std::size_t size)
{
    if (!IsOurs(file)) {
        return below.Read(file, buffer, size);
    }
    CDescriptor* const from = Find(file, EUse::Reading);
    if (from == nullptr) {
        return -1;
    }
    const std::string& bytes = outputs[from->output].bytes;
    const std::size_t count = bytes.copy(buffer, size, std::min(from->position, bytes.size()));
    from->position += count;
    return static_cast<std::ptrdiff_t>(count);
}

std::ptrdiff_t CMemoryOutputs::Write(int file, const char* bytes, std::size_t size)
{
    if (!IsOurs(file)) {
        return below.Write(file, bytes, size);
    }
    const CDescriptor* const to = Find(file, EUse::Writing);
    if (to == nullptr) {
        return -1;
    }
    try {
        outputs[to->output].bytes.append(bytes, size);
        return static_cast<std::ptrdiff_t>(size);
    } catch (const std::exception&) {  // no memory, or more than a string ever holds
        errno = ENOMEM;
        return -1;
    }
}

int CMemoryOutputs::Close(int file) noexcept
{
    if (!IsOurs(file)) {
        return below.Close(file);
    }
    CDescriptor* descriptor = Find(file, EUse::Writing);
    descriptor = descriptor != nullptr ? descriptor : Find(file, EUse::Reading);
    if (descriptor == nullptr) {
        return -1;
    }
    descriptor->use = EUse::None;
    return 0;
}

bool CMemoryOutputs::IsSameFile(const char* a, const char* b)
{
    if (below.IsSameFile(a, b)) {
        return true;
    }
    const auto output = Find(a);
    return output != outputs.end() && output == Find(b);
}

std::optional<std::string_view> CMemoryOutputs::Bytes(std::string_view path) const
{
    const auto output =
        std::find_if(outputs.begin(), outputs.end(), [path](const COutput& each) { return each.path == path; });
    return output != outputs.end() ? std::optional<std::string_view>(output->bytes) : std::nullopt;
}

void CMemoryOutputs::Clear() noexcept
{
    outputs.clear();
    descriptors.clear();
}

/// The output that a path leads to.
std::vector<CMemoryOutputs::COutput>::iterator CMemoryOutputs::Find(const char* path)
{
    return std::find_if(outputs.begin(), outputs.end(), [&](const COutput& output) {
        return output.path == path || (output.place && places.LeadsTo(path, *output.place, below));
    });
}

/// A descriptor of ours that is open for this use; null, with the cause, when it is not.
CMemoryOutputs::CDescriptor* CMemoryOutputs::Find(int file, EUse use) noexcept
{
    const auto index = static_cast<std::size_t>(file - kFirstDescriptor);
    const bool isOpen = index < descriptors.size() && descriptors[index].use == use;
    errno = isOpen ? errno : EBADF;
    return isOpen ? &descriptors[index] : nullptr;
}

int CMemoryOutputs::Open(std::vector<COutput>::iterator output, EUse use)
{
    descriptors.push_back({static_cast<std::size_t>(output - outputs.begin()), use});
    return kFirstDescriptor + static_cast<int>(descriptors.size() - 1);
}

}  // namespace satwecvt
