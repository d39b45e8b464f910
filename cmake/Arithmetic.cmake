# Every build writes the same bytes: IEEE doubles in the order that the source tells.
#  -ffp-contract=off      a fused multiply-add would round once where the source rounds twice
#  -msse2 -mfpmath=sse    32-bit x86 would otherwise compute in the 80-bit registers of the x87
#  /fp:precise            the same of Microsoft's compiler, which fuses nothing since Visual Studio 2022
add_library(satwecvt_arithmetic INTERFACE)
if(NOT MSVC)
    target_compile_options(satwecvt_arithmetic INTERFACE -ffp-contract=off)
    # A system of 32 bits on a processor of 64 may be called by the processor's name; WebAssembly is called x86.
    if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND NOT EMSCRIPTEN AND
       CMAKE_SYSTEM_PROCESSOR MATCHES "^(i[3-6]86|x86|x86_64|AMD64)$")
        target_compile_options(satwecvt_arithmetic INTERFACE -msse2 -mfpmath=sse)
    endif()
    return()
endif()
target_compile_options(satwecvt_arithmetic INTERFACE $<$<COMPILE_LANGUAGE:CXX>:/fp:precise>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(satwecvt_arithmetic INTERFACE $<$<COMPILE_LANGUAGE:CXX>:/clang:-ffp-contract=off>)
elseif(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 19.30)
    message(FATAL_ERROR "This cl may fuse operations: Visual Studio 2022 is the oldest to build with")
endif()
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_compile_options(satwecvt_arithmetic INTERFACE $<$<COMPILE_LANGUAGE:CXX>:/arch:SSE2>)
endif()
