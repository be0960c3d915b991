# What `cmake --install` puts in place: library, headers, CMake package, pkg-config file, theme.

set(VELLUM_INSTALL_THEMEDIR ${CMAKE_INSTALL_DATAROOTDIR}/vellum/theme)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Vellum)

install(TARGETS Vellum EXPORT VellumTargets)
install(EXPORT VellumTargets NAMESPACE Vellum:: DESTINATION ${package_dir})
install(DIRECTORY ${PROJECT_BINARY_DIR}/include/Vellum DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES
    ${PROJECT_BINARY_DIR}/src/vellum_export.h
    ${PROJECT_BINARY_DIR}/src/vellum_version.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Vellum)
install(DIRECTORY theme/ DESTINATION ${VELLUM_INSTALL_THEMEDIR})

configure_package_config_file(cmake/VellumConfig.cmake.in ${PROJECT_BINARY_DIR}/VellumConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    PATH_VARS VELLUM_INSTALL_THEMEDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VellumConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/VellumConfig.cmake
    ${PROJECT_BINARY_DIR}/VellumConfigVersion.cmake
    cmake/VellumStarterTheme.cmake
    DESTINATION ${package_dir})

set(pc_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH VELLUM_PC_PREFIX /${pc_dir} /)
string(REGEX REPLACE "/$" "" VELLUM_PC_PREFIX "${VELLUM_PC_PREFIX}")
configure_file(cmake/vellum.pc.in ${PROJECT_BINARY_DIR}/vellum.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vellum.pc DESTINATION ${pc_dir})
