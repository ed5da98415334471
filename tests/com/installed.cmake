# Installs the component anew, builds a program against it and runs it beside what was installed:
# cmake -DBUILD=folder -DPREFIX=folder -DCOMPILER=program -DSOURCE=file "-DRUN=program;argument"
# -P installed.cmake
file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" --prefix "${PREFIX}"
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND ${COMPILER} -std=c++17 -municode -static -I "${PREFIX}/include" "${SOURCE}"
            -o "${PREFIX}/bin/invoice.exe" -lole32 -loleaut32 -luuid
    COMMAND_ERROR_IS_FATAL ANY)
file(RENAME "${PREFIX}/bin/program.exe.manifest" "${PREFIX}/bin/invoice.exe.manifest")
execute_process(
    COMMAND ${RUN} "${PREFIX}/bin/invoice.exe" invoice.rtf
    WORKING_DIRECTORY "${PREFIX}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND ${RUN} "${PREFIX}/bin/quorvane.exe" --version
    WORKING_DIRECTORY "${PREFIX}" COMMAND_ERROR_IS_FATAL ANY)
foreach(file bin/quorvane.tlb invoice.rtf)
    if(NOT EXISTS "${PREFIX}/${file}")
        message(FATAL_ERROR "${file} is not there")
    endif()
endforeach()
