#include "ui/console/Utf8Console_win32.h"

#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include <cstdio>

namespace satwecvt {

namespace {

/// On its way to a console the C library may convert text by rules of its own, or send it byte by byte, which tears
/// characters apart: the bytes go through as they are, and many at a time.
void SendBytesTogether(std::FILE* stream) noexcept
{
    constexpr std::size_t kBufferSize = 4096;
    const int file = ::_fileno(stream);
    if (::_isatty(file) != 0) {
        ::_setmode(file, _O_BINARY);
        std::setvbuf(stream, nullptr, _IOFBF, kBufferSize);
    }
}

}  // namespace

CUtf8Console::CUtf8Console() noexcept : previous(::GetConsoleOutputCP())
{
    if (previous != 0) {
        ::SetConsoleOutputCP(CP_UTF8);
        SendBytesTogether(stdout);
        SendBytesTogether(stderr);
    }
}

CUtf8Console::~CUtf8Console()
{
    if (previous != 0) {
        std::fflush(nullptr);
        ::SetConsoleOutputCP(previous);
    }
}

}  // namespace satwecvt
