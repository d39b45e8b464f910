# CLI11 and nlohmann-json are headers alone. They are copied to a folder of the build tree, since the system's own
# include folder must not reach a cross compiler.
set(SATWECVT_HEADERS "/usr/include" CACHE PATH "Where CLI11 and nlohmann-json are (Debian: libcli11-dev, nlohmann-json3-dev)")
file(COPY "${SATWECVT_HEADERS}/CLI" "${SATWECVT_HEADERS}/nlohmann" DESTINATION "${PROJECT_BINARY_DIR}/headers")
add_library(satwecvt_headers INTERFACE)
target_include_directories(satwecvt_headers SYSTEM INTERFACE "${PROJECT_BINARY_DIR}/headers")
