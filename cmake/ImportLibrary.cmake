# The import library for Microsoft's linker; MinGW's linker writes its own. LLVM makes it from the .def file (Debian:
# package llvm), with the same bytes every time.
#
#   add_microsoft_import_library(TARGET DEF LIBRARY)   made whenever the DLL is linked
find_program(SATWECVT_DLLTOOL llvm-dlltool)

function(add_microsoft_import_library target def library)
    if(NOT SATWECVT_DLLTOOL)
        message(FATAL_ERROR "llvm-dlltool, which makes satwecvt.lib, is missing (Debian: package llvm)")
    endif()
    set(machine i386:x86-64)
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
        set(machine i386)
    endif()
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND "${SATWECVT_DLLTOOL}" -m ${machine} -d "${def}" -D "$<TARGET_FILE_NAME:${target}>" -l "${library}"
        BYPRODUCTS "${library}" VERBATIM)
endfunction()
