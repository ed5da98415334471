# write_export_list(file headers...): writes a version script for the linker of an ELF system that
# exports the classes and functions that the headers declare, and hides all others. It relies on
# the layout that clang-format gives the headers: what the namespace declares begins a line, and a
# blank follows the name of a class unless it is only announced.
function(write_export_list file)
    set(patterns)
    foreach(header ${ARGN})
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${header}")
        file(STRINGS "${header}" declarations REGEX "^[A-Za-z]")
        foreach(declaration ${declarations})
            if(declaration MATCHES "^(class|struct) ([A-Za-z0-9_]+) ")
                set(name "quorvane::${CMAKE_MATCH_2}")
                string(APPEND patterns
                    "    ${name}::*;\n"
                    # The instances of a template.
                    "    ${name}?quorvane::*;\n"
                    "    \"vtable for ${name}\";\n"
                    "    \"VTT for ${name}\";\n"
                    "    \"typeinfo for ${name}\";\n"
                    "    \"typeinfo name for ${name}\";\n"
                    "    non-virtual?thunk?to?${name}::*;\n"
                    "    virtual?thunk?to?${name}::*;\n")
            elseif(declaration MATCHES "[ &*]([A-Za-z0-9_]+)\\(")
                # Its parameters follow the name, or a tag when it returns a string.
                string(APPEND patterns "    quorvane::${CMAKE_MATCH_1}[^a-zA-Z0-9_]*;\n")
            endif()
        endforeach()
    endforeach()
    file(CONFIGURE OUTPUT "${file}"
        CONTENT "{\n  global:\n  extern \"C++\" {\n${patterns}  };\n  local: *;\n};\n" @ONLY)
endfunction()
