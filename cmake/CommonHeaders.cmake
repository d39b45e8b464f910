# What most files include is compiled once for a developer, and kept for all. Builds for others compile every file as it
# stands, and so find an include that is missing. g++ warns at -O3, with which we cross-compile, of its own headers if
# they were compiled before: there, only the tests are compiled in this way. Microsoft's compiler warns of a file that
# takes them and has a macro of its own.
set(common_headers <algorithm> <functional> <map> <memory> <optional> <string> <string_view> <vector>)
if(SATWECVT_DEVELOPER AND NOT MSVC AND NOT (CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CROSSCOMPILING))
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        # Otherwise what was compiled once has a time in it, and ccache never has it.
        add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:SHELL:-Xclang -fno-pch-timestamp>")
    endif()
    add_library(satwecvt_common_headers OBJECT "${PROJECT_SOURCE_DIR}/tests/support/Headers.cpp")
    target_link_libraries(satwecvt_common_headers PRIVATE satwecvt_arithmetic satwecvt_warnings)
    target_compile_features(satwecvt_common_headers PRIVATE cxx_std_20)
    target_precompile_headers(satwecvt_common_headers PRIVATE ${common_headers})
endif()
