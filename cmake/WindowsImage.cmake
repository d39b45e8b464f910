# How files for Windows are made.
#
# MinGW-w64: the run-time parts go inside, so that nothing but Windows has to be installed.
#
# Microsoft's compilers, cl and clang-cl:
#  /permissive- /Zc:__cplusplus   C++ as the standard has it
#  /utf-8                         the encoding of the sources, and of the texts in them
#  /MD                            ConvertFile2 shares the memory of a string with its host: one run time for both
if(MINGW)
    add_link_options(-static)
elseif(MSVC)
    add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:/permissive-;/Zc:__cplusplus;/utf-8>")
    if(PROJECT_IS_TOP_LEVEL) # a project that adds ours has its own
        set(CMAKE_MSVC_RUNTIME_LIBRARY MultiThreadedDLL)
    endif()
endif()

# Our .dll and our .exe: with what Windows offers against attacks: addresses that change from start to start, and data
# that is never executed. Microsoft's linker does so by itself. The manifests stand in our own resource scripts.
add_library(satwecvt_windows_image INTERFACE)
if(MINGW)
    target_link_options(satwecvt_windows_image INTERFACE
        -Wl,--dynamicbase -Wl,--nxcompat
        $<$<EQUAL:${CMAKE_SIZEOF_VOID_P},8>:-Wl,--high-entropy-va>)
elseif(MSVC)
    target_link_options(satwecvt_windows_image INTERFACE /MANIFEST:NO)
endif()
