# Libraries that are headers alone. They are copied to a folder of the build tree, since the system's own include folder
# must not reach a cross compiler.
#
#   copy_headers(FOLDER...)   for whoever links satwecvt_headers
if(CMAKE_HOST_WIN32) # where they come from vcpkg.json
    find_path(SATWECVT_HEADERS CLI/CLI.hpp DOC "Where CLI11, nlohmann-json and fast_float are")
else()
    set(SATWECVT_HEADERS "/usr/include" CACHE PATH
        "Where CLI11, nlohmann-json and fast_float are (Debian: libcli11-dev, nlohmann-json3-dev, libfast-float-dev)")
endif()
add_library(satwecvt_headers INTERFACE)
target_include_directories(satwecvt_headers SYSTEM INTERFACE "${PROJECT_BINARY_DIR}/headers")

function(copy_headers)
    foreach(folder IN LISTS ARGN)
        if(NOT EXISTS "${SATWECVT_HEADERS}/${folder}")
            message(FATAL_ERROR "${SATWECVT_HEADERS} has no ${folder}: SATWECVT_HEADERS tells where to look")
        endif()
        file(COPY "${SATWECVT_HEADERS}/${folder}" DESTINATION "${PROJECT_BINARY_DIR}/headers")
    endforeach()
endfunction()
