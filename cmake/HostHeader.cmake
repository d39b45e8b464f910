# The header that goes out with the library for Windows: it names the std::string of its ConvertFile2. It is left in
# package/satwecvt of the build tree.
set(host_header "${PROJECT_SOURCE_DIR}/include/satwecvt/satwecvt.h")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${host_header}")
file(READ "${host_header}" host_header_text)
set(line "define SATWECVT_LIBRARY_STRING")
string(REPLACE "${line} SATWECVT_HOST_STRING" "${line} ${SATWECVT_HOST_STRING}" named_text "${host_header_text}")
if(named_text STREQUAL host_header_text)
    message(FATAL_ERROR "${host_header} has lost the line that tells the kind of the library")
endif()
file(CONFIGURE OUTPUT package/satwecvt/satwecvt.h CONTENT "${named_text}" @ONLY)
