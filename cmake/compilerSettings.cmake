set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

option(QUORVANE_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" ${PROJECT_IS_TOP_LEVEL})
option(QUORVANE_SANITIZE
    "Build with the address and undefined-behavior sanitizers, with clang the fuzzers too" OFF)
option(QUORVANE_SANITIZE_THREADS "Build with the thread sanitizer" OFF)
option(QUORVANE_COVERAGE "Build so that the tests' coverage can be measured" OFF)

# GCC 12 writes wrong unwinding tables for what it splits off as rarely used: an exception that
# passes it ends the program.
if(MINGW AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    add_compile_options(-fno-reorder-blocks-and-partition)
endif()

# The oldest Windows that the programs run on is Windows 7, which is version 6.1. The linker's own
# numbers are older ones.
if(MINGW)
    add_link_options(-Wl,--major-os-version,6,--minor-os-version,1
                     -Wl,--major-subsystem-version,6,--minor-subsystem-version,1)
endif()

# Settings for our own targets only: they are not part of what a consumer of the library gets.
add_library(quorvaneSettings INTERFACE)
target_compile_options(quorvaneSettings INTERFACE
    $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow>
    # GCC 12 sees an overlap in every concatenation of a literal and a string, and an access beyond
    # its end in every list of one string whose length is asked for.
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-array-bounds>
    $<$<AND:$<CXX_COMPILER_ID:GNU,Clang,AppleClang>,$<BOOL:${QUORVANE_WARNINGS_AS_ERRORS}>>:-Werror>)
if(QUORVANE_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
    # What the fuzzers learn from. It does not concern the tests.
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        # GCC defines the macro itself.
        add_compile_options(-fsanitize=fuzzer-no-link -D__SANITIZE_ADDRESS__)
    endif()
endif()
if(QUORVANE_SANITIZE_THREADS)
    add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
    add_link_options(-fsanitize=thread)
endif()
if(QUORVANE_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()
