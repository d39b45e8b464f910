// Files in memory, with calls that fail when they are told to.
#pragma once

#include "file/MemoryFiles_test.h"

#include <cerrno>
#include <limits>
#include <map>
#include <new>
#include <string>

namespace satwecvt {

enum class ECall { OpenForReading, OpenForWriting, Read, Write, Close, IsSameFile };
enum class EFailure { Error, NothingWritten, OutOfMemory };

class CFailingFiles : public CMemoryFiles {
public:
    ECall failingCall = ECall::Read;
    int failAt = 0;  // the number of that call, counted from 1
    int failUntil = 0;
    EFailure failure = EFailure::Error;
    int error = EIO;

    std::string failedPath;
    std::map<ECall, int> calls;

    void FailOnce(ECall call, int number)
    {
        failingCall = call;
        failAt = failUntil = number;
    }
    void FailFrom(ECall call, int number)
    {
        FailOnce(call, number);
        failUntil = std::numeric_limits<int>::max();
    }

    int OpenForReading(const char* path) override
    {
        return Fails(ECall::OpenForReading, path) ? -1 : CMemoryFiles::OpenForReading(path);
    }
    int OpenForWriting(const char* path) override
    {
        return Fails(ECall::OpenForWriting, path) ? -1 : CMemoryFiles::OpenForWriting(path);
    }
    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override
    {
        return Fails(ECall::Read, PathOf(file)) ? -1 : CMemoryFiles::Read(file, buffer, size);
    }
    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override
    {
        if (Fails(ECall::Write, PathOf(file))) {
            return failure == EFailure::NothingWritten ? 0 : -1;
        }
        return CMemoryFiles::Write(file, bytes, size);
    }
    int Close(int file) noexcept override
    {
        const bool isClosed = CMemoryFiles::Close(file) == 0;  // the descriptor is gone in any case
        return Fails(ECall::Close, PathOf(file)) || !isClosed ? -1 : 0;
    }
    bool IsSameFile(const char* a, const char* b) override
    {
        return !Fails(ECall::IsSameFile, a) && CMemoryFiles::IsSameFile(a, b);
    }

private:
    bool Fails(ECall call, const std::string& path)
    {
        const int number = ++calls[call];
        if (call != failingCall || number < failAt || number > failUntil) {
            return false;
        }
        failedPath = path;
        if (failure == EFailure::OutOfMemory) {
            throw std::bad_alloc();
        }
        errno = error;
        return true;
    }
};

}  // namespace satwecvt
