set(mingwTriplet i686-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR i686)
# Arithmetic in 64 bits as everywhere else, not in the 80 bits of the old coprocessor.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
