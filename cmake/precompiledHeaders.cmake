# Parsing the standard headers takes about half of the time that compiling a small file takes. The
# presets with tests turn it on. The builds of what is installed do without it: they show that each
# file includes what it needs, and optimized, GCC warns of what it then inlines from these headers.
option(QUORVANE_PRECOMPILE_HEADERS "Parse the standard headers once for each library" OFF)

function(quorvane_precompile_headers target)
    if(QUORVANE_PRECOMPILE_HEADERS)
        target_precompile_headers(${target} PRIVATE
            <algorithm> <array> <cstddef> <cstdint> <functional> <iterator> <memory> <optional>
            <span> <string> <string_view> <utility> <vector> ${ARGN})
    endif()
endfunction()
