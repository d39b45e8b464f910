# A room is a folder below src/ and the static library of the same name. What it links is what it may include.
#
#   add_room(NAME SOURCES file... [LINKS room...] [TESTS file...])
#
# TESTS stand beside the units that they test and become the program NAME_test.
function(add_room name)
    cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;LINKS;TESTS")
    add_library(satwecvt_${name} STATIC ${room_SOURCES})
    target_compile_features(satwecvt_${name} PUBLIC cxx_std_20)
    target_include_directories(satwecvt_${name} PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>"
        "$<INSTALL_INTERFACE:include/satwecvt/core>")
    target_link_libraries(satwecvt_${name} PUBLIC satwecvt_arithmetic PRIVATE $<BUILD_INTERFACE:satwecvt_warnings>)
    foreach(link IN LISTS room_LINKS)
        target_link_libraries(satwecvt_${name} PUBLIC satwecvt_${link})
    endforeach()
    if(SATWECVT_DEVELOPER AND room_TESTS)
        add_unit_test(${name}_test SOURCES ${room_TESTS} LINKS satwecvt_${name})
    endif()
endfunction()
