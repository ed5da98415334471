# Cross compilation for WebAssembly with Debian's package of Emscripten.
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)

# Engines have exceptions of their own since Node 18: with those of JavaScript every call that might
# throw is a call out of the module.
set(CMAKE_CXX_FLAGS_INIT "-fwasm-exceptions")

# Finds the libraries that are headers only.
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/../hostHeaders)
