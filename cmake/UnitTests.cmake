# GoogleTest is built from Debian's sources with our own flags, so that every compiler and sanitizer has its own; where
# they are not, as on Windows, it comes as a package.
set(SATWECVT_GOOGLETEST "/usr/src/googletest" CACHE PATH "GoogleTest's sources (Debian: package googletest)")
set(INSTALL_GTEST OFF)
set(BUILD_GMOCK OFF)
if(MINGW OR EMSCRIPTEN)
    set(gtest_disable_pthreads ON)
endif()
if(EXISTS "${SATWECVT_GOOGLETEST}")
    add_subdirectory("${SATWECVT_GOOGLETEST}" "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
else()
    find_package(GTest CONFIG REQUIRED)
endif()

# Most tests are over in no time, but take long to compile: they are compiled without optimisation.
# Microsoft's compiler would warn: of options that contradict each other, and for the reason that CommonHeaders.cmake
# tells.
if(NOT MSVC)
    add_library(test_headers OBJECT "${PROJECT_SOURCE_DIR}/tests/support/Headers.cpp")
    target_link_libraries(test_headers PRIVATE satwecvt_arithmetic satwecvt_warnings GTest::gtest_main)
    target_compile_options(test_headers PRIVATE -O0)
    target_precompile_headers(test_headers PRIVATE <gtest/gtest.h> ${common_headers} <filesystem> <fstream>)
endif()

#   add_unit_test(NAME [OPTIMISED] SOURCES file... LINKS target...)
#
# OPTIMISED is for a test with long loops of its own.
function(add_unit_test name)
    cmake_parse_arguments(PARSE_ARGV 1 test "OPTIMISED" "" "SOURCES;LINKS")
    add_executable(${name} ${test_SOURCES})
    set_target_properties(${name} PROPERTIES UNITY_BUILD OFF) # the helpers of one test file know nothing of the next
    target_link_libraries(${name} PRIVATE ${test_LINKS} satwecvt_arithmetic satwecvt_warnings GTest::gtest_main)
    if(NOT test_OPTIMISED AND TARGET test_headers)
        target_compile_options(${name} PRIVATE -O0)
        target_precompile_headers(${name} REUSE_FROM test_headers)
    endif()
    if(EMSCRIPTEN) # a program for node, with the machine's own files; linked fast
        target_link_options(${name} PRIVATE -O0 -sENVIRONMENT=node -sNODERAWFS -sEXIT_RUNTIME -sALLOW_MEMORY_GROWTH)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
endfunction()
