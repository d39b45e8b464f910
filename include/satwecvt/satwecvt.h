/*
 * What a host program needs to call satwecvt.dll, from C or C++.
 *
 * ConvertFile is plain C: any compiler of the right width may call it.
 *
 * ConvertFile2 also hands back the path of the file that was written, in a C++ std::string of the host. The library
 * writes into that string with its own code, and may free and allocate its memory, so the std::string of both has to be
 * the same. There are two kinds of the library, and each fits the hosts of its own kind:
 *
 *   MinGW-w64    built with g++ 12. The host: any g++ from 5 on, either threads model, with libstdc++'s newer string,
 *                the default (_GLIBCXX_USE_CXX11_ABI is 1), and msvcrt.dll, not the Universal C Runtime
 *   Microsoft    built with cl or clang-cl. The host: Visual Studio 2015 or later, with its own C++ library, the run
 *                time as DLLs (/MD) and no debug iterators (_ITERATOR_DEBUG_LEVEL is 0), as in a release build. Those
 *                DLLs are at least as new as the Visual Studio that built the library
 *
 * And for both: the host has the library's width, 32 or 64 bits, and has not replaced the global operators new and
 * delete.
 *
 * The header that comes with a library knows its kind, and checks what a compiler can tell: take no other. That of the
 * source tree takes every library for the host's own kind. Where the string fits, ConvertFile2 is declared and
 * SATWECVT_HAS_CONVERTFILE2 is defined. Where it does not, a call of ConvertFile2 in C++ stops the compiler with a
 * message (before C++11, because nothing declares it), and everything else goes on working. A host that cannot do
 * without ConvertFile2 - and one that looks it up with GetProcAddress, where no compiler sees the call - defines
 * SATWECVT_USE_CONVERTFILE2 before it includes this header: then the include itself stops the wrong compiler.
 */
#ifndef SATWECVT_SATWECVT_H
#define SATWECVT_SATWECVT_H

#ifndef _WIN32
#error \
    "satwecvt.h belongs to satwecvt.dll, which is a Windows library; elsewhere use the C++ library satwecvt::satwecvt"
#endif

/* The results of both functions. */
enum SatwecvtResult {
    SATWECVT_WRITTEN = 0,   /* the conversion ran to its end; see ConvertFile about a file that could not be written */
    SATWECVT_CANCELLED = 1, /* the user cancelled; nothing was written */
    SATWECVT_FAILED = -1 /* no path was given, an input file is missing or wrong, or a conversion is running already */
};

#if defined(__cplusplus)
#if __cplusplus >= 201103L
#define SATWECVT_NOEXCEPT noexcept
#elif defined(_MSC_VER)
#if _MSC_VER >= 1900 /* whatever __cplusplus says */
#define SATWECVT_NOEXCEPT noexcept
#endif
#endif
#endif
#ifndef SATWECVT_NOEXCEPT
#define SATWECVT_NOEXCEPT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Asks the user for a structure file and a load file, converts them, and returns a SatwecvtResult. It returns when the
 * last window is closed; the calling thread's messages are dispatched meanwhile.
 *
 * SATWECVT_WRITTEN is also the result when the output could not be written, or not completely: the user was told of it
 * in a message box.
 */
int __cdecl ConvertFile(void) SATWECVT_NOEXCEPT;

/* ConvertFile as a pointer, for GetProcAddress(library, "ConvertFile"). */
typedef int(__cdecl* SatwecvtConvertFile)(void);

#ifdef __cplusplus
}
#endif

/* The kinds of std::string. */
#define SATWECVT_NO_STRING 0
#define SATWECVT_MINGW_STRING 1
#define SATWECVT_MICROSOFT_STRING 2

/* That of this compiler. What tells it is known once a header of the C++ library has been read. */
#if defined(__cplusplus) && (defined(__MINGW32__) || defined(_MSC_VER))
#include <string>
#endif
#if defined(__MINGW32__) && defined(__GLIBCXX__) && defined(_GLIBCXX_USE_CXX11_ABI) && __cplusplus >= 201103L
#if _GLIBCXX_USE_CXX11_ABI && defined(__MSVCRT_VERSION__) && !defined(_UCRT)
#if __MSVCRT_VERSION__ == 0x600 || __MSVCRT_VERSION__ == 0x700 /* both mean msvcrt.dll to MinGW-w64 */
#define SATWECVT_HOST_STRING SATWECVT_MINGW_STRING
#endif
#endif
#elif defined(__cplusplus) && defined(_MSC_VER) && defined(_CPPLIB_VER) && defined(_DLL) && !defined(_DEBUG)
#if _MSC_VER >= 1900 && _ITERATOR_DEBUG_LEVEL == 0
#define SATWECVT_HOST_STRING SATWECVT_MICROSOFT_STRING
#endif
#endif
#ifndef SATWECVT_HOST_STRING
#define SATWECVT_HOST_STRING SATWECVT_NO_STRING
#endif

/* That of the library: in the source tree that of the compiler which builds it. The header of a library names it. */
#define SATWECVT_LIBRARY_STRING SATWECVT_HOST_STRING

#if SATWECVT_LIBRARY_STRING == SATWECVT_HOST_STRING && SATWECVT_HOST_STRING != SATWECVT_NO_STRING

#define SATWECVT_HAS_CONVERTFILE2 1

static_assert(
    sizeof(std::string) == 2 * sizeof(void*) + 16,
    "this std::string is not the one that satwecvt.dll writes into: call ConvertFile instead of ConvertFile2");

/*
 * As ConvertFile. On SATWECVT_WRITTEN the path of the model text file stands in `outputPath`; otherwise `outputPath`
 * keeps what it held. The path is in the process's ANSI code page, as the user chose the structure file.
 */
extern "C" int __cdecl ConvertFile2(std::string& outputPath) noexcept;

/* ConvertFile2 as a pointer, for GetProcAddress(library, "ConvertFile2"). */
extern "C" {
typedef int(__cdecl* SatwecvtConvertFile2)(std::string& outputPath);
}

#elif defined(SATWECVT_USE_CONVERTFILE2) && SATWECVT_LIBRARY_STRING == SATWECVT_MINGW_STRING

#error \
    "ConvertFile2 needs MinGW-w64's g++ with libstdc++'s newer std::string and msvcrt.dll, in C++11 or later: \
this compiler's std::string is another one, or it is none. Call ConvertFile, which is safe from every compiler."

#elif defined(SATWECVT_USE_CONVERTFILE2) && SATWECVT_LIBRARY_STRING == SATWECVT_MICROSOFT_STRING

#error \
    "ConvertFile2 needs Microsoft's C++ library, of Visual Studio 2015 or later, with its release run time as DLLs \
(/MD): this compiler's std::string is another one, or it is none. Call ConvertFile, which is safe from every compiler."

#elif defined(SATWECVT_USE_CONVERTFILE2)

#error \
    "ConvertFile2 needs the std::string of MinGW-w64's g++ with msvcrt.dll, or of Microsoft's C++ library with its \
release run time as DLLs (/MD): this compiler's is another one, or it is none."

#elif defined(__cplusplus) && (__cplusplus >= 201103L || defined(_MSC_VER))

#if SATWECVT_LIBRARY_STRING == SATWECVT_MICROSOFT_STRING
#define SATWECVT_STRING_NEEDED "Microsoft's C++ library, of Visual Studio 2015 or later, with its release DLLs"
#else
#define SATWECVT_STRING_NEEDED "MinGW-w64's g++ with libstdc++'s newer std::string and msvcrt.dll"
#endif

/* Stands where ConvertFile2 cannot be: whoever calls it reads why. */
template <class String>
int ConvertFile2(String&)
{
    static_assert(sizeof(String) == 0,
                  "ConvertFile2 needs " SATWECVT_STRING_NEEDED
                  ": this compiler's std::string is another one. Call ConvertFile, which is safe from every compiler.");
    return SATWECVT_FAILED;
}

#endif

#endif
