#include "output/SafeFiles.h"

#include "output/WholeFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <random>
#include <utility>

namespace satwecvt {

namespace {

std::string RandomLetters()
{
    constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyz0123456789";
    constexpr int kCount = 6;
    std::random_device random;
    std::uniform_int_distribution<std::size_t> anyLetter(0, sizeof kLetters - 2);
    std::string letters;
    for (int i = 0; i < kCount; ++i) {
        letters += kLetters[anyLetter(random)];
    }
    return letters;
}

/// Whether a name may be too long. Windows then says that there is no such path.
bool MayBeTooLong(int cause)
{
    return cause == ENAMETOOLONG || cause == ENOENT;
}

/// Whether no file can be put beside the place, whose own file may be written all the same. On a full disk it may not:
/// it would be emptied for nothing.
bool IsRefusedByFolder(int cause)
{
    return MayBeTooLong(cause) || cause == EACCES || cause == EPERM || cause == EROFS || cause == ENOTDIR;
}

}  // namespace

CSafeFiles::CSafeFiles(CFileSystem& files, CFilePlaces& filePlaces)
    : below(files),
      places(filePlaces),
      held(files, filePlaces)
{}

CSafeFiles::~CSafeFiles()
{
    Drop();
}

int CSafeFiles::OpenForReading(const char* path)
{
    const auto output = Find(path);
    if (output == outputs.end()) {
        return below.OpenForReading(path);
    }
    return output->IsHeld() ? held.OpenForReading(path) : below.OpenForReading(output->temporary.c_str());
}

int CSafeFiles::OpenForWriting(const char* path)
{
    Forget(path);
    outputs.reserve(outputs.size() + 1);  // nothing may fail between the creation and the note of it
    COutput output{path, places.PlaceOf(path), ""};
    output.file = Open(output);
    if (output.file < 0) {
        return -1;
    }
    outputs.push_back(std::move(output));
    return outputs.back().file;
}

std::ptrdiff_t CSafeFiles::Read(int file, char* buffer, std::size_t size)
{
    return held.Read(file, buffer, size);
}

std::ptrdiff_t CSafeFiles::Write(int file, const char* bytes, std::size_t size)
{
    const std::ptrdiff_t count = held.Write(file, bytes, size);
    const auto output = Find(file);
    if (output != outputs.end() && count <= 0 && size > 0) {
        output->failure = count == 0 ? ENOSPC : errno;
    }
    return count;
}

int CSafeFiles::Close(int file) noexcept
{
    const auto output = Find(file);
    if (output == outputs.end()) {
        return held.Close(file);
    }
    const int syncFailure = output->IsHeld() || places.Sync(file) == 0 ? 0 : errno;
    const int failure = held.Close(file) == 0 ? syncFailure : errno;
    output->file = -1;
    if (failure == 0) {
        return 0;
    }
    output->failure = failure;
    errno = failure;
    return -1;
}

bool CSafeFiles::IsSameFile(const char* a, const char* b)
{
    if (below.IsSameFile(a, b)) {
        return true;
    }
    const auto output = Find(a);
    return output != outputs.end() && output == Find(b);
}

void CSafeFiles::Keep()
{
    ExpectWhole();
    try {
        for (const COutput& output : outputs) {
            if (output.IsHeld()) {
                WriteWholeFile(below, output.path, *held.Bytes(output.path));
            }
        }
        TakePlaces();
    } catch (...) {
        Drop();
        throw;
    }
    held.Clear();
}

void CSafeFiles::ExpectWhole() const
{
    for (const COutput& output : outputs) {
        const int failure = output.file >= 0 ? EBUSY : output.failure;
        if (failure != 0) {
            throw CFileError(output.path, std::strerror(failure));
        }
    }
}

void CSafeFiles::TakePlaces()
{
    while (!outputs.empty()) {
        const COutput& first = outputs.front();
        if (!first.IsHeld() && places.Replace(first.temporary, *first.place) != 0) {
            throw CFileError(first.path, std::strerror(errno));
        }
        outputs.erase(outputs.begin());
    }
}

/// Opens an output under a temporary name or, where there can be none and it may be written in place, in memory.
int CSafeFiles::Open(COutput& output)
{
    if (output.place) {
        const int file = CreateTemporary(output);
        if (file >= 0 || !IsRefusedByFolder(errno)) {
            return file;
        }
        output.temporary.clear();
    }
    const char* const path = output.path.c_str();
    return places.TryWriting(path) == 0 ? held.OpenForWriting(path) : -1;
}

/// Creates the temporary file of an output. Its name tells whose it is, unless that is too long a name.
int CSafeFiles::CreateTemporary(COutput& output)
{
    const int file = CreateUnder("." + output.place->name, output);
    return file < 0 && MayBeTooLong(errno) ? CreateUnder("", output) : file;
}

int CSafeFiles::CreateUnder(const std::string& beginning, COutput& output)
{
    constexpr int kMostTries = 100;  // of a name in two thousand million
    int file = -1;
    for (int tries = 0; tries < kMostTries; ++tries) {
        output.temporary = output.place->folder + beginning + ".satwecvt-" + RandomLetters();
        file = places.Create(output.temporary, *output.place);
        if (file >= 0 || errno != EEXIST) {
            break;
        }
    }
    return file;
}

/// The output that a path leads to.
std::vector<CSafeFiles::COutput>::iterator CSafeFiles::Find(const char* path)
{
    return std::find_if(outputs.begin(), outputs.end(), [&](const COutput& output) {
        return output.path == path || (output.place && places.LeadsTo(path, *output.place, below));
    });
}

std::vector<CSafeFiles::COutput>::iterator CSafeFiles::Find(int file) noexcept
{
    return std::find_if(outputs.begin(), outputs.end(),
                        [file](const COutput& output) { return file >= 0 && output.file == file; });
}

/// Drops the output that a path leads to.
void CSafeFiles::Forget(const char* path)
{
    const auto output = Find(path);
    if (output != outputs.end()) {
        Remove(*output);
        outputs.erase(output);
    }
}

void CSafeFiles::Remove(const COutput& output) noexcept
{
    if (!output.IsHeld()) {
        places.Remove(output.temporary);  // what cannot be removed has nobody left to be told
    }
}

void CSafeFiles::Drop() noexcept
{
    for (const COutput& output : outputs) {
        Remove(output);
    }
    outputs.clear();
    held.Clear();
}

}  // namespace satwecvt
