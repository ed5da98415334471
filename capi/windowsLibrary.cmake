# The library for C on Windows: quorvane-1.dll, beside the component, with its import library
# libquorvane.dll.a, and quorvane-1.def, of which other compilers make an import library of theirs.
include(${PROJECT_SOURCE_DIR}/cmake/windowsDll.cmake)

set(header ${CMAKE_CURRENT_SOURCE_DIR}/include/quorvane.h)
set(dllName quorvane-${PROJECT_VERSION_MAJOR})
set(definitionFile ${CMAKE_BINARY_DIR}/${dllName}.def)

# It relies on the layout that clang-format gives the header: the name of a function is on the line
# that its declaration begins with.
set(functions)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
file(STRINGS ${header} declarations REGEX "^QUORVANE_API ")
foreach(declaration ${declarations})
    string(REGEX MATCH " (quorvane_[a-z_]+)\\(" match "${declaration}")
    string(APPEND functions "    ${CMAKE_MATCH_1}\n")
endforeach()
file(CONFIGURE OUTPUT ${definitionFile}
    CONTENT "LIBRARY ${dllName}.dll\nEXPORTS\n${functions}" @ONLY)

target_sources(quorvaneC PRIVATE ${definitionFile})
make_windows_dll(quorvaneC ${dllName}.dll "Quorvane library for C")
set_target_properties(quorvaneC PROPERTIES
    PREFIX ""
    RUNTIME_OUTPUT_NAME ${dllName}
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}
    ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
install(FILES ${definitionFile} DESTINATION ${CMAKE_INSTALL_LIBDIR})
