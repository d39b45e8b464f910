# Makes the zip, fails unless it holds exactly what it should, unpacks it, and reads its .dll and .exe once more: what
# goes out has been stripped since the build.
# To be run as: cmake -DCPACK=... -DCONFIG=... -DNAME=... -DBUILD_TYPE=release -DWORK=... -DSOURCE=... -DVERSION=...
#                  -DBITS=... -P CheckZip.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
execute_process(COMMAND "${CPACK}" --config "${CONFIG}" -G ZIP -B "${WORK}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" -E tar tf "${WORK}/${NAME}.zip"
    OUTPUT_VARIABLE listing OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

set(expected
    CONTRIBUTING.md
    README.md
    bin/satwecvt.dll
    bin/satwecvt.exe
    examples/host/host.cpp
    include/satwecvt/satwecvt.h
    lib/cmake/satwecvt/satwecvtConfig.cmake
    lib/cmake/satwecvt/satwecvtConfigVersion.cmake
    lib/cmake/satwecvt/satwecvtDll-${BUILD_TYPE}.cmake
    lib/cmake/satwecvt/satwecvtDll.cmake
    lib/libsatwecvt.dll.a
    samples/frame/load.sat
    samples/frame/structure.sat
    samples/tower/load.sat
    samples/tower/structure.sat)
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
    message(FATAL_ERROR "${NAME}.zip holds\n  ${files}\ninstead of\n  ${expected}")
endif()

file(ARCHIVE_EXTRACT INPUT "${WORK}/${NAME}.zip" DESTINATION "${WORK}/unpacked")
set(ENV{SATWECVT_DLL} "${WORK}/unpacked/${NAME}/bin/satwecvt.dll")
set(ENV{SATWECVT_EXE} "${WORK}/unpacked/${NAME}/bin/satwecvt.exe")
set(ENV{SATWECVT_BITS} ${BITS})
set(ENV{SATWECVT_VERSION} ${VERSION})
execute_process(COMMAND /usr/bin/python3 -B "${SOURCE}/tests/exports/image_test.py" COMMAND_ERROR_IS_FATAL ANY)
