# The code of the library is optimized once more as a whole when a program is linked with it, in
# release builds. Its objects have machine code as well: other linkers use that. Clang before
# version 17 cannot make such objects. The linker for Windows cannot join what is optimized then
# with what the compiler has finished: it takes inline functions that both have for an error.
option(QUORVANE_LTO "Optimize the library when linking, in release builds with GCC"
    ${PROJECT_IS_TOP_LEVEL})

set(QUORVANE_USES_LTO OFF)
if(QUORVANE_LTO AND CMAKE_BUILD_TYPE STREQUAL "Release" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU"
   AND NOT WIN32 AND CMAKE_OBJCOPY)
    include(CheckIPOSupported)
    check_ipo_supported(RESULT QUORVANE_USES_LTO OUTPUT output LANGUAGES CXX)
endif()

# optimize_when_linked(target): for a static library; programs of this project that link it need
# nothing more.
function(optimize_when_linked target)
    if(QUORVANE_USES_LTO)
        target_compile_options(${target} PRIVATE -flto=auto -ffat-lto-objects)
        target_link_options(${target} INTERFACE $<BUILD_INTERFACE:-flto=auto>)
    endif()
endfunction()

# install_machine_code_only(target): takes out of the installed library what only linkers of the
# same version of GCC can read, and what they would use unasked.
function(install_machine_code_only target)
    if(QUORVANE_USES_LTO)
        set(folder "\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}")
        if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
            set(folder "${CMAKE_INSTALL_LIBDIR}")
        endif()
        install(CODE "execute_process(COMMAND \"${CMAKE_OBJCOPY}\"
            --remove-section=.gnu.lto_* --remove-section=.gnu.debuglto_*
            \"\$ENV{DESTDIR}${folder}/$<TARGET_FILE_NAME:${target}>\"
            COMMAND_ERROR_IS_FATAL ANY)")
    endif()
endfunction()
