# Warnings for our own code; errors for developers and for CI, but not of Microsoft's compiler, which nobody has seen
# compile it.
#  -Wconversion -Wsign-conversion  a number of a file must not change its value unseen
#  -Wshadow                        two things with one name are one too many
#  -Wuseless-cast                  not where pointers have 32 bits: a cast that does nothing there does elsewhere
#  -Wno-restrict                   g++ 12 sees overlaps in std::string's operator+ that are not there
#  -Wundef, -Wold-style-cast       C habits that hide mistakes
#  _CRT_SECURE_NO_WARNINGS         Microsoft would have us call functions that no other system has
add_library(satwecvt_warnings INTERFACE)
if(MSVC)
    target_compile_options(satwecvt_warnings INTERFACE $<$<COMPILE_LANGUAGE:CXX>:/W4>)
    target_compile_definitions(satwecvt_warnings INTERFACE _CRT_SECURE_NO_WARNINGS)
    return()
endif()
target_compile_options(satwecvt_warnings INTERFACE
    -Wall -Wextra -Wpedantic
    -Wconversion -Wsign-conversion -Wdouble-promotion
    -Wshadow -Wundef -Wold-style-cast -Wcast-qual -Wcast-align
    -Wnon-virtual-dtor -Woverloaded-virtual -Wextra-semi
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wno-restrict>
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<EQUAL:${CMAKE_SIZEOF_VOID_P},8>>:-Wuseless-cast>
    $<$<BOOL:${SATWECVT_DEVELOPER}>:-Werror>)
