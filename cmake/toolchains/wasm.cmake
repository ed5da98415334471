# Cross compilation for WebAssembly with Debian's package of Emscripten.
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)

# Engines have exceptions of their own since Node 18: with those of JavaScript every call that might
# throw is a call out of the module. Those engines have the other features too, which make the module
# smaller, as does compiling it as a whole. The time of a precompiled header would keep what is
# compiled with it out of a cache.
string(CONCAT CMAKE_CXX_FLAGS_INIT
    "-fwasm-exceptions -mbulk-memory -msign-ext -mnontrapping-fptoint -flto"
    " -Xclang -fno-pch-timestamp")

# Finds the libraries that are headers only.
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/../hostHeaders)
