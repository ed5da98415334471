# compile_headers_alone(TARGET headers...): an object library that includes each header in a unit of
# its own, first and twice.
function(compile_headers_alone target)
    foreach(header IN LISTS ARGN)
        set(unit "${CMAKE_CURRENT_BINARY_DIR}/${target}/${header}.cpp")
        file(CONFIGURE OUTPUT "${unit}" CONTENT "#include \"${header}\"\n#include \"${header}\"\n")
        list(APPEND units "${unit}")
    endforeach()
    add_library(${target} OBJECT ${units})
endfunction()
