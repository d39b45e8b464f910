// The files and places of this machine, of whose steps one fails.
#pragma once

#include "output/FilePlaces.h"
#include "satwecvt/FileSystem.h"

#include <cerrno>
#include <cstddef>
#include <string>
#include <vector>

namespace satwecvt {

enum class EStep { OpenForWriting, Write, Close, Create, Sync, Replace };

struct CFailure {
    EStep step = EStep::Write;
    int at = 0;  // the number of that step, counted from 1; 0: none
    int error = EIO;
    int taken = 0;

    bool Strikes(EStep each)
    {
        if (each != step || ++taken != at) {
            return false;
        }
        errno = error;
        return true;
    }
};

class CFailingSystem : public CFileSystem {
public:
    explicit CFailingSystem(CFailure& what) : failure(what) {}
    int OpenForWriting(const char* path) override
    {
        return failure.Strikes(EStep::OpenForWriting) ? -1 : CFileSystem::OpenForWriting(path);
    }
    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override
    {
        if (failure.Strikes(EStep::Write)) {
            return failure.error == 0 ? 0 : -1;
        }
        return CFileSystem::Write(file, bytes, size);
    }
    int Close(int file) noexcept override
    {
        const int result = CFileSystem::Close(file);
        return failure.Strikes(EStep::Close) ? -1 : result;
    }

private:
    CFailure& failure;
};

class CFailingPlaces : public CFilePlaces {
public:
    explicit CFailingPlaces(CFailure& what) : failure(what) {}
    int Create(const std::string& temporary, const COutputPlace& place) override
    {
        created.push_back(temporary);
        return failure.Strikes(EStep::Create) ? -1 : CFilePlaces::Create(temporary, place);
    }
    int Sync(int file) noexcept override { return failure.Strikes(EStep::Sync) ? -1 : CFilePlaces::Sync(file); }
    int Replace(const std::string& temporary, const COutputPlace& place) override
    {
        return failure.Strikes(EStep::Replace) ? -1 : CFilePlaces::Replace(temporary, place);
    }

    std::vector<std::string> created;  // the names that were tried

private:
    CFailure& failure;
};

}  // namespace satwecvt
