# What every target of the project shares.

# Language level, warnings and sanitizers.
function(vor_configure_target target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF UNITY_BUILD OFF)
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

# A library of the project. A shared one exports what its exports.map lists, and a program runs with
# the minor version that it was built with.
function(vor_configure_library target)
    vor_configure_target(${target})
    set_target_properties(${target} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
    if(BUILD_SHARED_LIBS)
        vor_export_as_listed(${target})
    endif()
endfunction()

# The list is a version script, but that it says size_t where symbols name the type that this is on
# the system. For Windows the linker gets what the list asks for from its object files.
function(vor_export_as_listed target)
    set(listed ${CMAKE_CURRENT_SOURCE_DIR}/exports.map)
    set(exports ${CMAKE_CURRENT_BINARY_DIR}/exports.map)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${listed})
    set(size_t "unsigned long")
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
        set(size_t "unsigned int")
    elseif(WIN32)
        set(size_t "unsigned long long")
    endif()
    file(READ ${listed} symbols)
    string(REPLACE "size_t" "${size_t}" symbols "${symbols}")
    file(CONFIGURE OUTPUT ${exports} CONTENT "${symbols}" @ONLY)
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${exports})
    if(WIN32)
        set(list ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
        add_custom_command(TARGET ${target} PRE_LINK
            COMMAND ${CMAKE_COMMAND} -DMAP=${exports} -DNM=${CMAKE_NM} -DDEF=${list}
                -P ${PROJECT_SOURCE_DIR}/cmake/windows/ExportList.cmake -- $<TARGET_OBJECTS:${target}>
            COMMAND_EXPAND_LISTS VERBATIM)
        target_link_options(${target} PRIVATE ${list})
    else()
        target_link_options(${target} PRIVATE LINKER:--version-script,${exports})
    endif()
endfunction()
