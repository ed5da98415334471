# Libraries that are headers only serve every system: a cross build takes the machine's own, by a
# folder of links that leads to them and to no other header of the machine.

# addHostHeaders(target header): an imported target for the library with that header.
function(addHostHeaders target header)
    string(REGEX REPLACE "/.*" "" folder ${header})
    find_path(${folder}_parentFolder ${header} PATHS /usr/include /usr/local/include
              NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    set(links ${CMAKE_BINARY_DIR}/hostHeaders)
    file(MAKE_DIRECTORY ${links})
    file(CREATE_LINK ${${folder}_parentFolder}/${folder} ${links}/${folder} SYMBOLIC)
    add_library(${target} INTERFACE IMPORTED)
    target_include_directories(${target} SYSTEM INTERFACE ${links})
endfunction()
