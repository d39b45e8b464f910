# What `cmake --install` puts where, and the CMake and pkg-config files by which other projects find it.
#
#   host     what a host program of the library for Windows needs: DLL, import libraries, header
#   program  the program for the command line, its man page and its completions for shells
#   library  what a program links: one archive, the headers of include/satwecvt, satwecvt.pc
#
# The CMake package knows satwecvt::satwecvt, the archive, and satwecvt::dll where there is one.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/satwecvt")
set(header_folder "${CMAKE_INSTALL_INCLUDEDIR}/satwecvt")

install(TARGETS satwecvt_library EXPORT satwecvtLibrary
    ARCHIVE COMPONENT library
    INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(EXPORT satwecvtLibrary NAMESPACE satwecvt:: DESTINATION "${package_folder}" COMPONENT library)
foreach(room IN LISTS satwecvt_rooms)
    set(component library)
    set(folder "${PROJECT_SOURCE_DIR}/include/satwecvt")
    if(room_part_${room} STREQUAL "windows")
        set(component host)
        set(folder "${PROJECT_BINARY_DIR}/package/satwecvt") # see HostHeader.cmake
    endif()
    if(component STREQUAL "library" OR WIN32)
        list(TRANSFORM room_headers_${room} PREPEND "${folder}/" OUTPUT_VARIABLE headers)
        install(FILES ${headers} DESTINATION "${header_folder}" COMPONENT ${component})
    endif()
endforeach()
# Not for Windows, where -lsatwecvt is the import library of the DLL.
file(RELATIVE_PATH prefix_from_pc "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
configure_file("${PROJECT_SOURCE_DIR}/cmake/satwecvt.pc.in" "${PROJECT_BINARY_DIR}/package/satwecvt.pc" @ONLY)
if(NOT WIN32)
    install(FILES "${PROJECT_BINARY_DIR}/package/satwecvt.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT library)
endif()

install(TARGETS satwecvt RUNTIME COMPONENT program)
if(TARGET manual_files)
    set(manual "${PROJECT_BINARY_DIR}/src/manual")
    set(completions "${CMAKE_INSTALL_DATADIR}") # each shell looks into a folder of its own below it
    install(FILES "${manual}/satwecvt.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT program)
    install(FILES "${manual}/satwecvt.bash" DESTINATION "${completions}/bash-completion/completions"
        RENAME satwecvt COMPONENT program)
    install(FILES "${manual}/_satwecvt" DESTINATION "${completions}/zsh/site-functions" COMPONENT program)
    install(FILES "${manual}/satwecvt.fish" DESTINATION "${completions}/fish/vendor_completions.d" COMPONENT program)
endif()

if(WIN32)
    set_target_properties(satwecvt_dll PROPERTIES EXPORT_NAME dll)
    install(TARGETS satwecvt_dll EXPORT satwecvtDll
        RUNTIME COMPONENT host
        ARCHIVE COMPONENT host
        INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
    install(FILES "${PROJECT_SOURCE_DIR}/src/driver/win32/satwecvt.def"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT host)
    if(MINGW)
        install(FILES "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/satwecvt.lib"
            DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT host)
    endif()
    install(EXPORT satwecvtDll NAMESPACE satwecvt:: DESTINATION "${package_folder}" COMPONENT host)
endif()

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/satwecvtConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/package/satwecvtConfig.cmake" INSTALL_DESTINATION "${package_folder}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/satwecvtConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
foreach(component library host)
    if(WIN32 OR component STREQUAL library)
        install(FILES
            "${PROJECT_BINARY_DIR}/package/satwecvtConfig.cmake"
            "${PROJECT_BINARY_DIR}/package/satwecvtConfigVersion.cmake"
            DESTINATION "${package_folder}" COMPONENT ${component})
    endif()
endforeach()
