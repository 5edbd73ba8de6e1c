# Installation and packages. Components: Runtime (the libraries), Development (headers, CMake package,
# pkg-config file), Documentation.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/${PROJECT_NAME})

# Installs a library and its folder of exported headers.
function(vor_install_library target)
    install(TARGETS ${target} EXPORT ${PROJECT_NAME}Targets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
            COMPONENT Runtime NAMELINK_COMPONENT Development
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${target})
    install(DIRECTORY ${target}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${target}
        COMPONENT Development FILES_MATCHING PATTERN "*.h")
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
endfunction()

vor_install_library(VORSystem)
vor_install_library(VORAnalysisReportInterfaces)

install(EXPORT ${PROJECT_NAME}Targets NAMESPACE VOR:: DESTINATION ${package_directory}
    COMPONENT Development)
configure_package_config_file(cmake/${PROJECT_NAME}Config.cmake.in
    ${PROJECT_BINARY_DIR}/${PROJECT_NAME}Config.cmake INSTALL_DESTINATION ${package_directory})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/${PROJECT_NAME}Config.cmake
    ${PROJECT_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake
    DESTINATION ${package_directory} COMPONENT Development)

# The way from the pkg-config file up to the prefix, so that the prefix can be moved.
file(RELATIVE_PATH VOR_PREFIX_FROM_PC /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(cmake/${PROJECT_NAME}.pc.in ${PROJECT_BINARY_DIR}/${PROJECT_NAME}.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/${PROJECT_NAME}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)

install(FILES README.md CHANGELOG.md CONTRIBUTING.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT Documentation)
install(FILES VORSystem/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/VORSystem
    COMPONENT Documentation)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation
    USE_SOURCE_PERMISSIONS)
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT Documentation
    FILES_MATCHING PATTERN "*.md" PATTERN "*.png")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME voranalysisreportinterfaces)
set(CPACK_PACKAGE_CONTACT "The VORAnalysisReportInterfaces team <team@voranalysisreport.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/VORSystem)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
include(CPack)
