# windows-x86, with programs that run: under the Wine of a small Debian for 32-bit x86.
include("${CMAKE_CURRENT_LIST_DIR}/windows-x86.cmake")
set(scripts "${CMAKE_CURRENT_LIST_DIR}/../../scripts")
set(CMAKE_CROSSCOMPILING_EMULATOR "${scripts}/x86-run" "${scripts}/wine-run")
