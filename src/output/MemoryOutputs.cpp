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

}  // namespace

CMemoryOutputs::CMemoryOutputs(CFileSystem& files, CFilePlaces& filePlaces) : below(files), places(filePlaces) {}

int CMemoryOutputs::OpenForReading(const char* path)
{
    return below.OpenForReading(path);
}

int CMemoryOutputs::OpenForWriting(const char* path)
{
    try {
        COutput fresh{path, places.PlaceOf(path), ""};
        const auto output = Find(path);
        const auto index = output - outputs.begin();
        if (output == outputs.end()) {
            outputs.push_back(std::move(fresh));
        } else {
            *output = std::move(fresh);
        }
        return kFirstDescriptor + static_cast<int>(index);
    } catch (const std::bad_alloc&) {
        errno = ENOMEM;
        return -1;
    }
}

std::ptrdiff_t CMemoryOutputs::Read(int file, char* buffer, std::size_t size)
{
    return below.Read(file, buffer, size);
}

std::ptrdiff_t CMemoryOutputs::Write(int file, const char* bytes, std::size_t size)
{
    COutput* const output = Find(file);
    if (output == nullptr) {
        errno = EBADF;
        return -1;
    }
    try {
        output->bytes.append(bytes, size);
        return static_cast<std::ptrdiff_t>(size);
    } catch (const std::exception&) {  // no memory, or more than a string ever holds
        errno = ENOMEM;
        return -1;
    }
}

int CMemoryOutputs::Close(int file) noexcept
{
    COutput* const output = Find(file);
    if (output == nullptr) {
        return below.Close(file);
    }
    output->isOpen = false;
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

/// The output that a path leads to.
std::vector<CMemoryOutputs::COutput>::iterator CMemoryOutputs::Find(const char* path)
{
    return std::find_if(outputs.begin(), outputs.end(), [&](const COutput& output) {
        return output.path == path || (output.place && places.LeadsTo(path, *output.place, below));
    });
}

/// The open output of a descriptor; null when it has none.
CMemoryOutputs::COutput* CMemoryOutputs::Find(int file) noexcept
{
    const auto index = static_cast<std::size_t>(file - kFirstDescriptor);
    const bool isOpen = file >= kFirstDescriptor && index < outputs.size() && outputs[index].isOpen;
    return isOpen ? &outputs[index] : nullptr;
}

}  // namespace satwecvt
