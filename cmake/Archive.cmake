# The zip for people who have no compiler of ours: `cpack` leaves satwecvt-VERSION-windows-x64.zip or -x86.zip.
set(archive_width x64)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(archive_width x86)
endif()

# What an installation has no place for, but who unpacks the zip wants to read and to try.
install(FILES "${PROJECT_SOURCE_DIR}/README.md" "${PROJECT_SOURCE_DIR}/CONTRIBUTING.md"
    DESTINATION . COMPONENT archive EXCLUDE_FROM_ALL)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs" DESTINATION . COMPONENT archive EXCLUDE_FROM_ALL
    FILES_MATCHING PATTERN "*.md" PATTERN "*.json" PATTERN "*.png")
install(FILES "${PROJECT_SOURCE_DIR}/examples/host/host.cpp" DESTINATION examples/host
    COMPONENT archive EXCLUDE_FROM_ALL)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/samples/frame" "${PROJECT_SOURCE_DIR}/samples/tower"
    DESTINATION samples COMPONENT archive EXCLUDE_FROM_ALL
    FILES_MATCHING PATTERN "*.sat")

set(archive_name "satwecvt-${PROJECT_VERSION}-windows-${archive_width}")
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME "${archive_name}")
set(CPACK_COMPONENTS_ALL host program archive)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
