# Compiles C#, warnings being errors:
# cmake -DCOMPILER=program -DSOURCE=file -DBEGIN=text -DEND=text -DNAME=path -P compileCSharp.cmake
#
# What is compiled is the part of the file between the first BEGIN and the END after it, or all of
# it where these are empty.
file(READ "${SOURCE}" source)
if(BEGIN)
    string(FIND "${source}" "${BEGIN}" begin)
    if(begin EQUAL -1)
        message(FATAL_ERROR "${SOURCE} has no ${BEGIN}")
    endif()
    string(LENGTH "${BEGIN}" length)
    math(EXPR begin "${begin} + ${length}")
    string(SUBSTRING "${source}" ${begin} -1 source)
    string(FIND "${source}" "${END}" end)
    string(SUBSTRING "${source}" 0 ${end} source)
endif()
file(WRITE "${NAME}.cs" "${source}")
set(kind library)
if(source MATCHES "static [a-z]+ Main\\(")
    set(kind exe)
endif()
execute_process(
    COMMAND ${COMPILER} -nologo -warnaserror -target:${kind} -r:Microsoft.CSharp.dll
            -out:${NAME}.${kind} ${NAME}.cs
    COMMAND_ERROR_IS_FATAL ANY)
