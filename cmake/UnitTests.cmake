# GoogleTest is built from Debian's sources with our own flags, so that every compiler and sanitizer has its own.
set(SATWECVT_GOOGLETEST "/usr/src/googletest" CACHE PATH "GoogleTest's sources (Debian: package googletest)")
set(INSTALL_GTEST OFF)
set(BUILD_GMOCK OFF)
if(MINGW OR EMSCRIPTEN)
    set(gtest_disable_pthreads ON)
endif()
add_subdirectory("${SATWECVT_GOOGLETEST}" "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)

#   add_unit_test(NAME SOURCES file... LINKS target...)
function(add_unit_test name)
    cmake_parse_arguments(PARSE_ARGV 1 test "" "" "SOURCES;LINKS")
    add_executable(${name} ${test_SOURCES})
    set_target_properties(${name} PROPERTIES UNITY_BUILD OFF) # the helpers of one test file know nothing of the next
    target_link_libraries(${name} PRIVATE ${test_LINKS} satwecvt_arithmetic satwecvt_warnings GTest::gtest_main)
    if(MINGW)
        target_link_options(${name} PRIVATE -static)
    elseif(EMSCRIPTEN) # a program for node, with the machine's own files
        target_link_options(${name} PRIVATE -sENVIRONMENT=node -sNODERAWFS -sEXIT_RUNTIME -sALLOW_MEMORY_GROWTH)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
endfunction()
