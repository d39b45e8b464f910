# Emscripten (Debian: package emscripten): WebAssembly for browsers. Programs run under node.
#  -fwasm-exceptions   exceptions of WebAssembly's own, which cost nothing until one is thrown
set(EMSCRIPTEN_FOLDER "/usr/share/emscripten" CACHE PATH "Emscripten (Debian: package emscripten)")
include("${EMSCRIPTEN_FOLDER}/cmake/Modules/Platform/Emscripten.cmake")
set(CMAKE_CXX_FLAGS_INIT "-fwasm-exceptions")
set(CMAKE_CXX_COMPILER_LAUNCHER "") # ccache does not know this compiler
# Its linker is in part JavaScript, whose libraries Debian keeps apart.
set(CMAKE_CXX_LINKER_LAUNCHER "${CMAKE_COMMAND}" -E env NODE_PATH=/usr/share/nodejs)
# Without `fetch`, by which programs would otherwise look for their module, and fail to find a file.
set(CMAKE_CROSSCOMPILING_EMULATOR node --no-experimental-fetch)
