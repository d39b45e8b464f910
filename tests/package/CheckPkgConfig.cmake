# Builds the consumer with what pkg-config tells of the installed library, and runs it on the tower sample.
# To be run as:
# cmake -DVERSION=... -DPREFIX=... -DCOMPILER=... -DSAMPLE=... -DWORK=... -DSOURCE=... -P CheckPkgConfig.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${WORK}")
file(COPY "${SAMPLE}/structure.sat" "${SAMPLE}/load.sat" DESTINATION "${WORK}")
file(GLOB_RECURSE description "${PREFIX}/*/satwecvt.pc")
cmake_path(GET description PARENT_PATH folder)
set(ENV{PKG_CONFIG_PATH} "${folder}")
execute_process(COMMAND pkg-config --cflags --libs "satwecvt = ${VERSION}"
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
execute_process(COMMAND "${COMPILER}" -std=c++20 "${SOURCE}" ${flags} -o "${WORK}/consumer" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${WORK}/consumer" WORKING_DIRECTORY "${WORK}" COMMAND_ERROR_IS_FATAL ANY)
if(NOT EXISTS "${WORK}/structure.vkm")
    message(FATAL_ERROR "the consumer wrote no model")
endif()
