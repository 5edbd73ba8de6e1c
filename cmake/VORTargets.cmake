# What every target of the project shares.

# Language level, warnings and sanitizers.
function(vor_configure_target target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                           -Wnon-virtual-dtor -Wold-style-cast
                           $<$<BOOL:${VOR_WERROR}>:-Werror>)
    get_target_property(type ${target} TYPE)
    if(WIN32 AND type STREQUAL EXECUTABLE)
        target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/windows/utf-8.rc)
    endif()
    if(VOR_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${VOR_SANITIZE}
                               -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${VOR_SANITIZE})
    endif()
endfunction()

# A library of the project. A shared one exports what its exports.map lists; a program runs with the
# minor version that it was built with.
function(vor_configure_library target)
    vor_configure_target(${target})
    vor_export_as_listed(${target} ${CMAKE_CURRENT_SOURCE_DIR}/exports.map)
    set_target_properties(${target} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
endfunction()

# The list is a version script; for Windows the linker gets what it asks for from its object files.
function(vor_export_as_listed target exports)
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${exports})
    if(NOT WIN32)
        target_link_options(${target} PRIVATE LINKER:--version-script,${exports})
        return()
    endif()
    get_target_property(type ${target} TYPE)
    if(type STREQUAL SHARED_LIBRARY)
        set(list ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
        add_custom_command(TARGET ${target} PRE_LINK
            COMMAND ${CMAKE_COMMAND} -DMAP=${exports} -DNM=${CMAKE_NM} -DDEF=${list}
                -P ${PROJECT_SOURCE_DIR}/cmake/windows/ExportList.cmake -- $<TARGET_OBJECTS:${target}>
            COMMAND_EXPAND_LISTS VERBATIM)
        target_link_options(${target} PRIVATE ${list})
    endif()
endfunction()
