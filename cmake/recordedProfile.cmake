# Optimization for what programs do most. A build with "record" makes programs that count what they
# do while they run, in files beside their objects. A build with "use" in the same folder is
# optimized for that. scripts/build-profiled does both.
set(QUORVANE_PROFILE "" CACHE STRING "record: programs count what they do; use: optimize for it")
set_property(CACHE QUORVANE_PROFILE PROPERTY STRINGS "" record use)

if(QUORVANE_PROFILE AND NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    message(FATAL_ERROR "QUORVANE_PROFILE takes GCC.")
endif()
if(QUORVANE_PROFILE STREQUAL "record")
    add_compile_options(-fprofile-generate -fprofile-update=atomic)
    add_link_options(-fprofile-generate)
elseif(QUORVANE_PROFILE STREQUAL "use")
    # What was not recorded is compiled as without a profile.
    add_compile_options(-fprofile-use -fprofile-partial-training -Wno-missing-profile)
elseif(QUORVANE_PROFILE)
    message(FATAL_ERROR "QUORVANE_PROFILE is record or use, not ${QUORVANE_PROFILE}.")
endif()
