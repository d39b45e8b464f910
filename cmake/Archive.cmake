# What an archive holds. The target archive_folder leaves it, stripped, in the folder archive/NAME of the build tree,
# where NAME is satwecvt-VERSION-linux-x64, -linux-arm64, -windows-x64 or -windows-x86. scripts/package packs it.
# There is none of what Microsoft's compiler builds.
#
#   archive   what an installation has no place for, but who unpacks the archive wants to read and to try
if(MSVC)
    return()
endif()
set(SATWECVT_PAGE "${PROJECT_SOURCE_DIR}/build/satwecvt.html" CACHE FILEPATH
    "The page that converts, which the archive carries where it has been built")
set(archive_system linux)
set(archive_components program library archive)
set(archive_targets satwecvt satwecvt_library)
if(WIN32)
    set(archive_system windows)
    set(archive_components host program archive)
    set(archive_targets satwecvt satwecvt_dll)
endif()
if(TARGET manual_files)
    list(APPEND archive_targets manual_files)
endif()
set(archive_width x64)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64|ARM64)$")
    set(archive_width arm64)
elseif(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(archive_width x86)
endif()
set(archive_name "satwecvt-${PROJECT_VERSION}-${archive_system}-${archive_width}")

set(in_archive COMPONENT archive EXCLUDE_FROM_ALL)
install(FILES "${PROJECT_SOURCE_DIR}/README.md" "${PROJECT_SOURCE_DIR}/CONTRIBUTING.md"
    "${PROJECT_SOURCE_DIR}/CHANGELOG.md" DESTINATION . ${in_archive})
install(FILES "${PROJECT_SOURCE_DIR}/packaging/copyright" DESTINATION . RENAME COPYRIGHT.txt ${in_archive})
install(FILES "${SATWECVT_PAGE}" DESTINATION . RENAME satwecvt.html ${in_archive} OPTIONAL)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs" DESTINATION . ${in_archive}
    FILES_MATCHING PATTERN "*.md" PATTERN "*.json" PATTERN "*.png")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/samples/frame" "${PROJECT_SOURCE_DIR}/samples/tower"
    DESTINATION samples ${in_archive} FILES_MATCHING PATTERN "*.sat")
install(FILES "${PROJECT_SOURCE_DIR}/examples/host/host.cpp" DESTINATION examples/host ${in_archive})
if(NOT WIN32) # where the DLL brings it; the pages lead to it everywhere
    install(FILES "${PROJECT_BINARY_DIR}/package/satwecvt/satwecvt.h" DESTINATION include/satwecvt ${in_archive})
else()
    set(quick_start "${PROJECT_BINARY_DIR}/package/QUICK-START.txt")
    configure_file("${PROJECT_SOURCE_DIR}/packaging/QUICK-START.txt.in" "${quick_start}" @ONLY NEWLINE_STYLE CRLF)
    install(FILES "${quick_start}" DESTINATION . ${in_archive})
endif()

set(installation "")
foreach(component IN LISTS archive_components)
    list(APPEND installation COMMAND "${CMAKE_COMMAND}" --install "${PROJECT_BINARY_DIR}" --strip
        --component ${component} --prefix "${PROJECT_BINARY_DIR}/archive/${archive_name}")
endforeach()
add_custom_target(archive_folder
    COMMAND "${CMAKE_COMMAND}" -E rm -rf "${PROJECT_BINARY_DIR}/archive"
    ${installation}
    COMMENT "Laying out the archive" VERBATIM)
add_dependencies(archive_folder ${archive_targets})
