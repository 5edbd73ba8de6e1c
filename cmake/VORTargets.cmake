# What every target of the project shares.

# Language level, warnings and sanitizers.
function(vor_configure_target target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                           -Wnon-virtual-dtor -Wold-style-cast
                           $<$<BOOL:${VOR_WERROR}>:-Werror>)
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
    set(exports ${CMAKE_CURRENT_SOURCE_DIR}/exports.map)
    target_link_options(${target} PRIVATE LINKER:--version-script,${exports})
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${exports})
    set_target_properties(${target} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
endfunction()
