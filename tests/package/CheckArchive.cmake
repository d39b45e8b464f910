# Makes the archive, fails unless it holds exactly what it should, and unpacks it. What goes out has been stripped since
# the build: its .dll and .exe are read once more, and the program for Linux converts a sample.
# To be run as: cmake -DCPACK=... -DCONFIG=... -DARCHIVE=NAME.zip -DBUILD_TYPE=release -DWORK=... -DSOURCE=...
#                  -DPAGE=... -DVERSION=... -DBITS=... -DHEADERS=... -P CheckArchive.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
execute_process(COMMAND "${CPACK}" --config "${CONFIG}" -B "${WORK}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" -E tar tf "${WORK}/${ARCHIVE}"
    OUTPUT_VARIABLE listing OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

string(REGEX REPLACE "\\.(zip|tar\\.gz)$" "" NAME "${ARCHIVE}")
set(expected
    CONTRIBUTING.md
    README.md
    lib/cmake/satwecvt/satwecvtConfig.cmake
    lib/cmake/satwecvt/satwecvtConfigVersion.cmake
    samples/frame/load.sat
    samples/frame/structure.sat
    samples/tower/load.sat
    samples/tower/structure.sat)
if(NAME MATCHES "windows")
    list(APPEND expected
        bin/satwecvt.dll
        bin/satwecvt.exe
        examples/host/host.cpp
        include/satwecvt/satwecvt.h
        lib/cmake/satwecvt/satwecvtDll-${BUILD_TYPE}.cmake
        lib/cmake/satwecvt/satwecvtDll.cmake
        lib/libsatwecvt.dll.a)
else()
    string(REPLACE "," ";" HEADERS "${HEADERS}")
    list(TRANSFORM HEADERS PREPEND include/)
    list(APPEND expected
        ${HEADERS}
        bin/satwecvt
        lib/cmake/satwecvt/satwecvtLibrary-${BUILD_TYPE}.cmake
        lib/cmake/satwecvt/satwecvtLibrary.cmake
        lib/libsatwecvt.a
        lib/pkgconfig/satwecvt.pc
        share/bash-completion/completions/satwecvt
        share/fish/vendor_completions.d/satwecvt.fish
        share/man/man1/satwecvt.1
        share/zsh/site-functions/_satwecvt)
endif()
if(EXISTS "${PAGE}")
    list(APPEND expected satwecvt.html)
endif()
file(GLOB_RECURSE docs RELATIVE "${SOURCE}" "${SOURCE}/docs/*")
list(APPEND expected ${docs})
list(TRANSFORM expected PREPEND "${NAME}/")
list(SORT expected)

string(REPLACE "\n" ";" files "${listing}")
list(FILTER files EXCLUDE REGEX "/$")
list(SORT files)
if(NOT files STREQUAL expected)
    list(JOIN files "\n  " files)
    list(JOIN expected "\n  " expected)
    message(FATAL_ERROR "${ARCHIVE} holds\n  ${files}\ninstead of\n  ${expected}")
endif()

file(ARCHIVE_EXTRACT INPUT "${WORK}/${ARCHIVE}" DESTINATION "${WORK}/unpacked")
set(unpacked "${WORK}/unpacked/${NAME}")
if(NAME MATCHES "windows")
    set(ENV{SATWECVT_DLL} "${unpacked}/bin/satwecvt.dll")
    set(ENV{SATWECVT_EXE} "${unpacked}/bin/satwecvt.exe")
    set(ENV{SATWECVT_BITS} ${BITS})
    set(ENV{SATWECVT_VERSION} ${VERSION})
    execute_process(COMMAND /usr/bin/python3 -B "${SOURCE}/tests/exports/image_test.py" COMMAND_ERROR_IS_FATAL ANY)
else()
    execute_process(COMMAND "${unpacked}/bin/satwecvt" convert structure.sat load.sat
        WORKING_DIRECTORY "${unpacked}/samples/frame" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    if(NOT EXISTS "${unpacked}/samples/frame/structure.vkm")
        message(FATAL_ERROR "the unpacked program wrote no model")
    endif()
endif()
