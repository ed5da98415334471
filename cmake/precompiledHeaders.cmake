# Parsing the standard headers takes about half of the time that compiling a small file takes. The
# presets with tests turn it on. The release build does without it, and so shows that each file
# includes what it needs.
option(QUORVANE_PRECOMPILE_HEADERS "Parse the standard headers once for each library" OFF)

function(quorvane_precompile_headers target)
    if(QUORVANE_PRECOMPILE_HEADERS)
        target_precompile_headers(${target} PRIVATE
            <algorithm> <array> <cstddef> <cstdint> <functional> <iterator> <memory> <optional>
            <span> <string> <string_view> <utility> <vector> ${ARGN})
    endif()
endfunction()
