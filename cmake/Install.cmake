# What `cmake --install` puts where, and the CMake package by which other projects find it.
#
#   host     what a host program of the library for Windows needs: DLL, import library, header
#   program  the program for the command line
#   core     the rooms as static libraries, with their headers below include/satwecvt/core
#
# The package knows the targets satwecvt::core and satwecvt::console, and satwecvt::dll where there is one.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/satwecvt")

set_target_properties(satwecvt_ui_console PROPERTIES EXPORT_NAME console)
set(core_targets satwecvt_core satwecvt_arithmetic satwecvt_ui satwecvt_ui_console)
foreach(room geometry model file reader writer driver)
    list(APPEND core_targets satwecvt_${room})
endforeach()
foreach(target IN LISTS core_targets)
    get_target_property(export_name ${target} EXPORT_NAME)
    if(NOT export_name)
        string(REPLACE satwecvt_ "" export_name ${target})
        set_target_properties(${target} PROPERTIES EXPORT_NAME ${export_name})
    endif()
endforeach()
install(TARGETS ${core_targets} EXPORT satwecvtCore ARCHIVE COMPONENT core)
install(EXPORT satwecvtCore NAMESPACE satwecvt:: DESTINATION "${package_folder}" COMPONENT core)
foreach(room geometry model file reader writer driver ui)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/src/${room}" DESTINATION include/satwecvt/core COMPONENT core
        FILES_MATCHING PATTERN "*.h"
        PATTERN "*_win32.h" EXCLUDE
        PATTERN win32 EXCLUDE)
endforeach()

install(TARGETS satwecvt RUNTIME COMPONENT program)

if(WIN32)
    set_target_properties(satwecvt_dll PROPERTIES EXPORT_NAME dll)
    install(TARGETS satwecvt_dll EXPORT satwecvtDll
        RUNTIME COMPONENT host
        ARCHIVE COMPONENT host)
    install(EXPORT satwecvtDll NAMESPACE satwecvt:: DESTINATION "${package_folder}" COMPONENT host)
    install(FILES "${PROJECT_SOURCE_DIR}/include/satwecvt/satwecvt.h" DESTINATION include/satwecvt COMPONENT host)
endif()

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/satwecvtConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/package/satwecvtConfig.cmake" INSTALL_DESTINATION "${package_folder}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/satwecvtConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
foreach(component core host)
    if(WIN32 OR component STREQUAL core)
        install(FILES
            "${PROJECT_BINARY_DIR}/package/satwecvtConfig.cmake"
            "${PROJECT_BINARY_DIR}/package/satwecvtConfigVersion.cmake"
            DESTINATION "${package_folder}" COMPONENT ${component})
    endif()
endforeach()
