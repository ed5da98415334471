enable_language(RC)

# make_windows_dll(target fileName fileDescription): gives a DLL its entry, the resources of its
# version, and the same bytes in every build. `moreVersionTexts` and `moreResources` of the caller
# are for its resources too.
function(make_windows_dll target fileName fileDescription)
    set(resources "${CMAKE_CURRENT_BINARY_DIR}/generated/${fileName}.rc")
    set(fileType VFT_DLL)
    configure_file("${PROJECT_SOURCE_DIR}/packaging/windows/resources.rc.in" "${resources}" @ONLY)
    target_sources(${target} PRIVATE
        "${PROJECT_SOURCE_DIR}/packaging/windows/dllEntry.cpp" "${resources}")
    set(entry enterDll)
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
        set(entry _enterDll@12)
    endif()
    target_link_options(${target} PRIVATE
        -Wl,--entry=${entry},--no-insert-timestamp $<$<CONFIG:Release>:-s>)
endfunction()
