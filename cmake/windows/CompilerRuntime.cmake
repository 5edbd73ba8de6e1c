# VOR_COMPILER_RUNTIME: the DLLs of MinGW's runtime. All that is in a process shares them, so that
# memory and exceptions may go from one DLL to another.
foreach(name libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}.dll
        OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
    list(APPEND VOR_COMPILER_RUNTIME ${file})
endforeach()
if(CMAKE_RUNTIME_OUTPUT_DIRECTORY)
    file(COPY ${VOR_COMPILER_RUNTIME} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endif()
