# Cross compilation for Windows with Debian's packages. `mingwTriplet` names the processor.

set(CMAKE_SYSTEM_NAME Windows)

# The thread model with the standard library's own threads and mutexes.
set(CMAKE_C_COMPILER ${mingwTriplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingwTriplet}-g++-posix)
set(CMAKE_RC_COMPILER ${mingwTriplet}-windres)
set(QUORVANE_WIDL ${mingwTriplet}-widl CACHE STRING "The IDL compiler")

# GCC 12 sees overlaps in concatenations of strings that are not there.
string(APPEND CMAKE_CXX_FLAGS_INIT " -Wno-restrict")

# Everything of the compiler goes into the files themselves: they need the system's libraries only.
foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static -Wl,--dynamicbase,--nxcompat")
endforeach()

set(CMAKE_FIND_ROOT_PATH /usr/${mingwTriplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Finds the libraries that are headers only.
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/../hostHeaders)
