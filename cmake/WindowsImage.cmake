# How our .dll and our .exe are linked: the run-time parts inside, so that nothing but Windows has to be installed, and
# with what Windows offers against attacks: addresses that change from start to start, and data that is never executed.
add_library(satwecvt_windows_image INTERFACE)
target_link_options(satwecvt_windows_image INTERFACE
    -static
    -Wl,--dynamicbase -Wl,--nxcompat
    $<$<EQUAL:${CMAKE_SIZEOF_VOID_P},8>:-Wl,--high-entropy-va>)
