# Installs the component anew, builds programs against it and runs them beside what was installed,
# those of the documentation too:
# cmake -DBUILD=folder -DPREFIX=folder -DCOMPILER=program -DWINDRES=program -DSOURCES=folder
# "-DRUN=program;argument" -P installed.cmake
file(REMOVE_RECURSE "${PREFIX}")
set(bin "${PREFIX}/bin")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" --prefix "${PREFIX}"
    COMMAND_ERROR_IS_FATAL ANY)

# build(name source): compiles a program as the documentation says, to use the component without
# registering it.
function(build name source)
    execute_process(
        COMMAND ${COMPILER} -std=c++17 -municode -static -I "${PREFIX}/include" "${source}"
                -o "${bin}/${name}.exe" -lole32 -loleaut32 -luuid
        COMMAND_ERROR_IS_FATAL ANY)
    file(COPY_FILE "${bin}/program.exe.manifest" "${bin}/${name}.exe.manifest")
endfunction()

# run(command...): runs a Windows program in the folder of the installed files and keeps what it
# writes in `output`.
function(run)
    execute_process(COMMAND ${RUN} ${ARGV} WORKING_DIRECTORY "${bin}"
        OUTPUT_VARIABLE output ECHO_OUTPUT_VARIABLE COMMAND_ERROR_IS_FATAL ANY)
    set(output "${output}" PARENT_SCOPE)
endfunction()

# documented(file language): writes the first program of the component's page in that language.
function(documented file language)
    file(READ "${SOURCES}/docs/component.md" page)
    string(FIND "${page}" "```${language}\n" begin)
    string(LENGTH "```${language}\n" length)
    math(EXPR begin "${begin} + ${length}")
    string(SUBSTRING "${page}" ${begin} -1 page)
    string(FIND "${page}" "```" end)
    string(SUBSTRING "${page}" 0 ${end} program)
    file(WRITE "${file}" "${program}")
endfunction()

function(require what)
    if(NOT (${ARGN}))
        message(FATAL_ERROR "${what}")
    endif()
endfunction()

require("the type library is not installed" EXISTS "${bin}/quorvane.tlb")
require("the license is not installed" EXISTS "${PREFIX}/share/doc/quorvane/LICENSE")
run(${bin}/quorvane.exe --version)
require("the command does not print its version" output MATCHES "^quorvane [0-9]")

build(invoice "${SOURCES}/examples/component/invoice.cpp")
run(${bin}/invoice.exe invoice.rtf)
require("the example has written no invoice" EXISTS "${bin}/invoice.rtf")

# The manifest can be a resource of the program instead of a file beside it.
file(WRITE "${bin}/manifest.rc" "1 24 \"program.exe.manifest\"\n")
execute_process(COMMAND ${WINDRES} manifest.rc manifest.o WORKING_DIRECTORY "${bin}"
    COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE "${bin}/invoice.exe.manifest")
execute_process(COMMAND ${RUN} ${bin}/invoice.exe alone.rtf WORKING_DIRECTORY "${bin}"
    OUTPUT_VARIABLE output ERROR_VARIABLE errors)
require("the example finds the component without a manifest" NOT EXISTS "${bin}/alone.rtf")
execute_process(
    COMMAND ${COMPILER} -std=c++17 -municode -static -I "${PREFIX}/include"
            "${SOURCES}/examples/component/invoice.cpp" "${bin}/manifest.o" -o "${bin}/embedded.exe"
            -lole32 -loleaut32 -luuid
    COMMAND_ERROR_IS_FATAL ANY)
run(${bin}/embedded.exe embedded.rtf)
require("the example with a manifest of its own has written no invoice"
    EXISTS "${bin}/embedded.rtf")

documented("${bin}/errors.cpp" cpp)
build(errors "${bin}/errors.cpp")
file(WRITE "${bin}/bad.rtfspec" "(doc\n(r\n(c\n(cb=Crimson)\nc)\nr)\ndoc)")
run(${bin}/errors.exe bad.rtfspec)
require("the documented program does not print the error"
    output MATCHES "80040008 Crimson isn't a recognized color")

documented("${bin}/hello.vbs" vb)
run(cmd /c "regsvr32 /s quorvane.dll && cscript //nologo hello.vbs")
require("the documented script has written no document" EXISTS "${bin}/hello.rtf")
