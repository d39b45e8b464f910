# Every build writes the same bytes: IEEE doubles in the order that the source tells.
#  -ffp-contract=off      a fused multiply-add would round once where the source rounds twice
#  -msse2 -mfpmath=sse    32-bit x86 would otherwise compute in the 80-bit registers of the x87
add_library(satwecvt_arithmetic INTERFACE)
target_compile_options(satwecvt_arithmetic INTERFACE -ffp-contract=off)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^i[3-6]86$")
    target_compile_options(satwecvt_arithmetic INTERFACE -msse2 -mfpmath=sse)
endif()
