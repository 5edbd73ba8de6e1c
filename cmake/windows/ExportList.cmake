# Writes the .def file of a DLL, which exports those symbols of its object files that its exports.map
# lists:
#   cmake -DMAP=<exports.map> -DNM=<nm> -DDEF=<result> -P ExportList.cmake -- <object>...

cmake_minimum_required(VERSION 3.25)

foreach(i RANGE ${CMAKE_ARGC})
    if(DEFINED objects)
        list(APPEND objects ${CMAKE_ARGV${i}})
    elseif("${CMAKE_ARGV${i}}" STREQUAL "--")
        set(objects "")
    endif()
endforeach()

function(read_symbols result)
    execute_process(COMMAND ${NM} --extern-only --defined-only --format=posix ${ARGN} ${objects}
        OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+ [A-Z] [0-9a-f][^\n]*" symbols "${symbols}")
    list(TRANSFORM symbols REPLACE "( [A-Z]) [0-9a-f][^\n]*$" "\\1")
    set(${result} "${symbols}" PARENT_SCOPE)
endfunction()
read_symbols(mangled)
read_symbols(demangled --demangle)

# A quoted name stands for itself; without quotes * and ? have their usual meaning.
file(STRINGS ${MAP} listed REGEX "^        [^#]*;")
list(TRANSFORM listed REPLACE "^ *([^;]*);.*$" "\\1")
set(patterns ${listed})
list(FILTER patterns EXCLUDE REGEX "^\"")
list(TRANSFORM listed REPLACE "^\"(.*)\"$" "\\1")
list(TRANSFORM patterns REPLACE "\\*" ".*")
list(TRANSFORM patterns REPLACE "\\?" ".")
list(JOIN patterns "|" patterns)

set(exports "")
foreach(symbol name IN ZIP_LISTS mangled demangled)
    string(REGEX REPLACE " [A-Z]$" "" name "${name}")
    if(name IN_LIST listed OR (patterns AND name MATCHES "^(${patterns})$"))
        string(REGEX REPLACE " T$" "" symbol "${symbol}")
        string(REGEX REPLACE " [A-Z]$" " DATA" symbol "${symbol}")
        list(APPEND exports "    ${symbol}\n")
    endif()
endforeach()
list(REMOVE_DUPLICATES exports)
list(JOIN exports "" exports)
file(WRITE ${DEF} "EXPORTS\n${exports}")
