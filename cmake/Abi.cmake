# What a host and a user have to know of a build: its compiler, and what its C++ functions mean by a std::string.
#
#   SATWECVT_COMPILER     "GNU 12.2.0"
#   SATWECVT_ABI          "Windows x86_64, MinGW-w64 with msvcrt.dll"
#   SATWECVT_HOST_STRING  the name in satwecvt.h of the std::string that ConvertFile2 takes; packages for other
#                         systems have the header of the library that is released
set(compiler_version "${CMAKE_CXX_COMPILER_VERSION}")
set(SATWECVT_ABI "${CMAKE_SYSTEM_NAME} ${CMAKE_SYSTEM_PROCESSOR}")
set(SATWECVT_HOST_STRING SATWECVT_MINGW_STRING)
if(MSVC) # where the processor is that of the machine
    set(SATWECVT_ABI "Windows ${CMAKE_CXX_COMPILER_ARCHITECTURE_ID}, Microsoft C++ with its run time as DLLs")
    set(SATWECVT_HOST_STRING SATWECVT_MICROSOFT_STRING)
elseif(MINGW)
    string(APPEND SATWECVT_ABI ", MinGW-w64 with msvcrt.dll")
    string(REGEX REPLACE "[.]0[.]0$" "" compiler_version "${compiler_version}") # Debian tells no more
endif()
set(SATWECVT_COMPILER "${CMAKE_CXX_COMPILER_ID} ${compiler_version}")
