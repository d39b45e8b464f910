# The program takes file names that no ANSI code page holds together: its manifest makes UTF-8 the code page.
# To be run as: cmake -DPROGRAM="emulator;satwecvt.exe" -DSAMPLE=... -DWORK=... -P CheckFileNames.cmake
cmake_minimum_required(VERSION 3.25)

set(ENV{LC_ALL} C.UTF-8) # by which Wine reads the names of the system below it
file(REMOVE_RECURSE "${WORK}")
file(COPY "${SAMPLE}/load.sat" DESTINATION "${WORK}/Gebäude 塔楼")
configure_file("${SAMPLE}/structure.sat" "${WORK}/Gebäude 塔楼/Türme-结构.sat" COPYONLY)
execute_process(
    COMMAND ${PROGRAM} convert "Gebäude 塔楼/Türme-结构.sat" "Gebäude 塔楼/load.sat" --json "报告.json"
    WORKING_DIRECTORY "${WORK}" OUTPUT_VARIABLE output ENCODING UTF-8 COMMAND_ERROR_IS_FATAL ANY)
if(NOT output MATCHES "^Model  Gebäude 塔楼/Türme-结构[.]vkm")
    message(FATAL_ERROR "The summary names another file:\n${output}")
endif()
foreach(file IN ITEMS "Gebäude 塔楼/Türme-结构.vkm" "报告.json" satwecvt.msg)
    if(NOT EXISTS "${WORK}/${file}")
        message(FATAL_ERROR "${file} was not written")
    endif()
endforeach()
