# Reads a .dll or .exe with objdump and fails unless
#   - it is of the width BITS,
#   - it exports EXPORTS, separated by commas, and nothing else,
#   - it imports from Windows' own libraries alone,
#   - it may be loaded at any address, has no executable data and, with 64 bits, uses all of the address space for that,
#   - it tells its version, and its manifest asks for MANIFEST.
# To be run as: cmake -DOBJDUMP=... -DBITS=32|64 -DIMAGE=... -DEXPORTS=... -DMANIFEST=... -P CheckImage.cmake
cmake_minimum_required(VERSION 3.25)

# These are parts of every Windows that we support, msvcrt.dll included.
set(windows_libraries comctl32.dll comdlg32.dll gdi32.dll kernel32.dll msvcrt.dll user32.dll)

execute_process(COMMAND "${OBJDUMP}" -p "${IMAGE}" OUTPUT_VARIABLE dump COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE ";" "," dump "${dump}")
string(REPLACE "[" "(" dump "${dump}") # brackets would keep CMake from cutting a list
string(REPLACE "]" ")" dump "${dump}")
string(REPLACE "\n" ";" lines "${dump}")

# The names below "(Ordinal/Name Pointer) Table", as in: "	(   0) +base(   1)  0000 ConvertFile"
set(exports "")
set(imports "")
set(in_names FALSE)
foreach(line IN LISTS lines)
    if(line MATCHES "Ordinal/Name Pointer. Table")
        set(in_names TRUE)
    elseif(in_names AND line MATCHES "^[ \t]+[(] *[0-9]+[)].* ([^ \t]+)$")
        list(APPEND exports "${CMAKE_MATCH_1}")
    elseif(in_names)
        set(in_names FALSE)
    elseif(line MATCHES "^[ \t]*DLL Name: (.+)$")
        string(TOLOWER "${CMAKE_MATCH_1}" name)
        list(APPEND imports "${name}")
    endif()
endforeach()

set(failures "")
string(REPLACE "," ";" expected_exports "${EXPORTS}")
list(SORT expected_exports)
list(SORT exports)
if(NOT exports STREQUAL expected_exports)
    string(APPEND failures "\n  exports \"${exports}\" instead of \"${expected_exports}\"")
endif()
# A name that the reading above passed over would still be counted in the header of the table.
list(LENGTH expected_exports expected_count)
if(expected_count GREATER 0 AND dump MATCHES "Export Address Table +([0-9a-f]+)")
    math(EXPR counted "0x${CMAKE_MATCH_1}")
    if(NOT counted EQUAL expected_count)
        string(APPEND failures "\n  has ${counted} export addresses instead of ${expected_count}")
    endif()
endif()

if(NOT "kernel32.dll" IN_LIST imports)
    string(APPEND failures "\n  no imports found: cannot be, so they were not read")
endif()
foreach(name IN LISTS imports)
    if(NOT name IN_LIST windows_libraries)
        string(APPEND failures "\n  imports from ${name}")
    endif()
endforeach()

set(format_64 "pei-x86-64")
set(format_32 "pei-i386")
if(NOT dump MATCHES "file format ${format_${BITS}}")
    string(APPEND failures "\n  is not an image of ${BITS} bits")
endif()
set(hardening DYNAMIC_BASE NX_COMPAT)
if(BITS EQUAL 64)
    list(APPEND hardening HIGH_ENTROPY_VA)
endif()
foreach(flag IN LISTS hardening)
    if(NOT dump MATCHES "[ \t]${flag}\n")
        string(APPEND failures "\n  lacks ${flag}")
    endif()
endforeach()
if(NOT dump MATCHES "Entry 5 [0-9a-f]+ 0*[1-9a-f][0-9a-f]* Base Relocation")
    string(APPEND failures "\n  has no relocations, so it could only be loaded at one address")
endif()

file(STRINGS "${IMAGE}" version ENCODING UTF-16LE REGEX "VS_VERSION_INFO" LIMIT_COUNT 1)
if(NOT version)
    string(APPEND failures "\n  does not tell its version")
endif()
file(STRINGS "${IMAGE}" manifest REGEX "${MANIFEST}" LIMIT_COUNT 1)
if(NOT manifest)
    string(APPEND failures "\n  has no manifest that asks for ${MANIFEST}")
endif()

if(failures)
    message(FATAL_ERROR "${IMAGE}:${failures}")
endif()
message(STATUS "${IMAGE}: exports ${exports}; imports from ${imports}")
