# Fails unless an archive, laid out or unpacked in FOLDER, holds exactly what it should: satwecvt.html, too, where
# the file PAGE exists.
# To be run as: cmake -DFOLDER=.../satwecvt-VERSION-linux-x64 -DSOURCE=... -DPAGE=... -P CheckArchive.cmake
cmake_minimum_required(VERSION 3.25)

file(GLOB_RECURSE docs RELATIVE "${SOURCE}" "${SOURCE}/docs/*")
set(expected
    CHANGELOG.md
    CONTRIBUTING.md
    COPYRIGHT.txt
    README.md
    ${docs}
    examples/host/host.cpp
    include/satwecvt/satwecvt.h
    lib/cmake/satwecvt/satwecvtConfig.cmake
    lib/cmake/satwecvt/satwecvtConfigVersion.cmake
    samples/frame/load.sat
    samples/frame/structure.sat
    samples/tower/load.sat
    samples/tower/structure.sat)
if(EXISTS "${PAGE}")
    list(APPEND expected satwecvt.html)
endif()
if(FOLDER MATCHES "-windows-x(64|86)$")
    list(APPEND expected
        QUICK-START.txt
        bin/satwecvt.dll
        bin/satwecvt.exe
        lib/cmake/satwecvt/satwecvtDll.cmake
        lib/libsatwecvt.dll.a
        lib/satwecvt.def
        lib/satwecvt.lib)
    set(build_type_file "lib/cmake/satwecvt/satwecvtDll-[a-z]+[.]cmake")
else()
    file(GLOB headers RELATIVE "${SOURCE}" "${SOURCE}/include/satwecvt/*.h")
    list(APPEND expected
        ${headers}
        bin/satwecvt
        lib/cmake/satwecvt/satwecvtLibrary.cmake
        lib/libsatwecvt.a
        lib/pkgconfig/satwecvt.pc
        share/bash-completion/completions/satwecvt
        share/fish/vendor_completions.d/satwecvt.fish
        share/man/man1/satwecvt.1
        share/zsh/site-functions/_satwecvt)
    set(build_type_file "lib/cmake/satwecvt/satwecvtLibrary-[a-z]+[.]cmake")
endif()
list(REMOVE_DUPLICATES expected)
list(SORT expected)

file(GLOB_RECURSE files RELATIVE "${FOLDER}" "${FOLDER}/*")
set(of_build_type ${files})
list(FILTER of_build_type INCLUDE REGEX "^${build_type_file}$")
list(FILTER files EXCLUDE REGEX "^${build_type_file}$")
list(LENGTH of_build_type count)
list(SORT files)
if(NOT files STREQUAL expected OR NOT count EQUAL 1)
    list(JOIN files "\n  " files)
    list(JOIN expected "\n  " expected)
    message(FATAL_ERROR
        "${FOLDER} holds\n  ${files}\nand ${count} files of a build type, instead of\n  ${expected}\nand 1")
endif()
