# Installs the build anew, builds the order form in C with what was installed, in each way that
# docs/c.md names, and runs it in the folder of the library:
# cmake -DBUILD=folder -DPREFIX=folder -DCOMPILER=program -DTOOLCHAIN=file -DSOURCES=folder
# "-DRUN=program;argument" -P installed.cmake
file(REMOVE_RECURSE "${PREFIX}")
set(bin "${PREFIX}/bin")
set(source "${SOURCES}/examples/c/orderForm.c")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" --prefix "${PREFIX}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

foreach(file bin/quorvane-1.dll lib/libquorvane.dll.a lib/quorvane-1.def include/quorvane.h)
    if(NOT EXISTS "${PREFIX}/${file}")
        message(FATAL_ERROR "${file} is not installed")
    endif()
endforeach()

# expect_document(name): runs a program that was built. It writes a document, the same each time.
function(expect_document name)
    execute_process(
        COMMAND ${RUN} "${bin}/${name}.exe" "${SOURCES}/examples/parts-logo.png" ${name}.rtf
        WORKING_DIRECTORY "${bin}" COMMAND_ERROR_IS_FATAL ANY)
    file(READ "${bin}/${name}.rtf" document)
    if(NOT document MATCHES "^{.rtf1.*Blue vase")
        message(FATAL_ERROR "${name} has written no order form")
    endif()
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E compare_files "${bin}/${name}.rtf" "${bin}/plain.rtf"
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

execute_process(
    COMMAND ${COMPILER} -std=c99 "${source}" -I "${PREFIX}/include" -L "${PREFIX}/lib" -lquorvane
            -o "${bin}/plain.exe"
    COMMAND_ERROR_IS_FATAL ANY)
expect_document(plain)

execute_process(
    COMMAND ${CMAKE_COMMAND} -E env "PKG_CONFIG_PATH=${PREFIX}/lib/pkgconfig"
            pkg-config --cflags --libs quorvane-c
    OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
execute_process(
    COMMAND ${COMPILER} -std=c99 "${source}" ${flags} -o "${bin}/byPkgConfig.exe"
    COMMAND_ERROR_IS_FATAL ANY)
expect_document(byPkgConfig)

set(project "${PREFIX}/project")
execute_process(
    COMMAND ${CMAKE_COMMAND} -S "${SOURCES}/examples/c" -B "${project}" --toolchain "${TOOLCHAIN}"
            "-Dquorvane_DIR=${PREFIX}/lib/cmake/quorvane"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build "${project}" --target orderForm
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(COPY_FILE "${project}/orderForm.exe" "${bin}/byCMake.exe")
expect_document(byCMake)
