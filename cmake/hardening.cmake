# What makes a fault harder to exploit, on Linux. For Windows the toolchain files have it.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)

    add_compile_options(-fstack-protector-strong)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i.86)$")
        add_compile_options(-fcf-protection)
    endif()
    add_link_options(-Wl,-z,relro,-z,now)

    # It takes an optimized build, and the sanitizers watch over the same functions themselves.
    if(NOT QUORVANE_SANITIZE AND NOT QUORVANE_SANITIZE_THREADS)
        add_compile_options($<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE>
                            $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=2>)
    endif()
endif()
