# The archive for people who have no compiler of ours: `cpack` leaves satwecvt-VERSION-windows-x64.zip, -windows-x86.zip or
# -linux-x64.tar.gz. It carries satwecvt.html where that has been built.
set(SATWECVT_PAGE "${PROJECT_SOURCE_DIR}/build/satwecvt.html" CACHE FILEPATH "The page that converts")
set(archive_system linux)
set(archive_components program library archive)
set(CPACK_GENERATOR TGZ)
if(WIN32)
    set(archive_system windows)
    set(archive_components host program archive)
    set(CPACK_GENERATOR ZIP)
endif()
set(archive_width x64)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(archive_width x86)
endif()

# What an installation has no place for, but who unpacks the archive wants to read and to try.
install(FILES "${PROJECT_SOURCE_DIR}/README.md" "${PROJECT_SOURCE_DIR}/CONTRIBUTING.md"
    DESTINATION . COMPONENT archive EXCLUDE_FROM_ALL)
install(FILES "${SATWECVT_PAGE}" DESTINATION . COMPONENT archive EXCLUDE_FROM_ALL OPTIONAL)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs" DESTINATION . COMPONENT archive EXCLUDE_FROM_ALL
    FILES_MATCHING PATTERN "*.md" PATTERN "*.json" PATTERN "*.png")
if(WIN32)
    install(FILES "${PROJECT_SOURCE_DIR}/examples/host/host.cpp" DESTINATION examples/host
        COMPONENT archive EXCLUDE_FROM_ALL)
endif()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/samples/frame" "${PROJECT_SOURCE_DIR}/samples/tower"
    DESTINATION samples COMPONENT archive EXCLUDE_FROM_ALL
    FILES_MATCHING PATTERN "*.sat")

set(archive_name "satwecvt-${PROJECT_VERSION}-${archive_system}-${archive_width}")
set(CPACK_PACKAGE_FILE_NAME "${archive_name}")
set(CPACK_COMPONENTS_ALL ${archive_components})
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
