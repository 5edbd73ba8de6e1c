# Installation and packages. Components: Runtime (the libraries), Development (headers, CMake package,
# pkg-config files), Kit (all of VORReportKit), Documentation.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/${PROJECT_NAME})
# The way from a pkg-config file up to the prefix, so that the prefix can be moved.
file(RELATIVE_PATH VOR_PREFIX_FROM_PC /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)

# Links a library of the project to another one, for its users too. A layer of somebody else in the
# place of VORSystem is not installed: who uses the installed library links that layer as well.
function(vor_link_libraries target library)
    get_property(installed GLOBAL PROPERTY VOR_INSTALLED)
    if(library IN_LIST installed OR NOT VOR_INSTALL)
        target_link_libraries(${target} PUBLIC VOR::${library})
        set_property(TARGET ${target} APPEND_STRING PROPERTY VOR_REQUIRES "${library} ")
    else()
        target_link_libraries(${target} PUBLIC $<BUILD_INTERFACE:VOR::${library}>)
    endif()
endfunction()

# Installs a library, its folder of exported headers and its pkg-config file; with a component named,
# all in that one.
function(vor_install_library target VOR_DESCRIPTION)
    if(NOT VOR_INSTALL)
        return()
    endif()
    set(runtime Runtime)
    set(development Development)
    if(ARGC GREATER 2)
        set(runtime ${ARGV2})
        set(development ${ARGV2})
    endif()
    set_property(GLOBAL APPEND PROPERTY VOR_INSTALLED ${target})
    install(TARGETS ${target} EXPORT ${target}Targets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${development}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
            COMPONENT ${runtime} NAMELINK_COMPONENT ${development}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${runtime}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${target})
    install(EXPORT ${target}Targets NAMESPACE VOR:: DESTINATION ${package_directory}
        COMPONENT ${development})
    install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${target}
        COMPONENT ${development} FILES_MATCHING PATTERN "*.h")
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")

    set(VOR_TARGET ${target})
    get_target_property(VOR_REQUIRES ${target} VOR_REQUIRES)
    if(NOT VOR_REQUIRES)
        set(VOR_REQUIRES "")
    endif()
    configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in ${target}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT ${development})
endfunction()

if(NOT VOR_INSTALL)
    return()
endif()

configure_package_config_file(cmake/${PROJECT_NAME}Config.cmake.in
    ${PROJECT_BINARY_DIR}/${PROJECT_NAME}Config.cmake INSTALL_DESTINATION ${package_directory})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/${PROJECT_NAME}Config.cmake
    ${PROJECT_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake
    DESTINATION ${package_directory} COMPONENT Development)

install(FILES README.md CHANGELOG.md CONTRIBUTING.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT Documentation)
install(FILES cmake/Supported.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/cmake COMPONENT Documentation)
install(FILES VORSystem/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/VORSystem
    COMPONENT Documentation)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation
    USE_SOURCE_PERMISSIONS)
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT Documentation
    FILES_MATCHING PATTERN "*.md" PATTERN "*.png")

install(FILES ${VOR_COMPILER_RUNTIME} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime)

if(NOT VOR_IS_TOP_PROJECT)
    return() # packages are the project's around
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME voranalysisreportinterfaces)
set(CPACK_PACKAGE_CONTACT "The VORAnalysisReportInterfaces team <team@voranalysisreport.invalid>")
if(WIN32)
    set(CPACK_GENERATOR ZIP)
else()
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "chromium, python3-pikepdf") # vor-print-report
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/VORSystem)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
include(CPack)
