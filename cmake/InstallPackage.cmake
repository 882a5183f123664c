# The CMake package. find_package(QuorConversions) gives QuorConversions::QuorConversions,
# QuorConversions::QuorProbeFile, QuorConversions::QuorIniFile, QuorConversions::QuorRegistryII and, for hosts in C,
# QuorConversions::Component; with COMPONENTS Qt also
# QuorConversions::QtToolkit, and only then it looks for Qt.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/QuorConversions)
install(EXPORT QuorConversionsTargets NAMESPACE QuorConversions:: DESTINATION ${package_dir})
set(qt_components Widgets)
if(TARGET QtToolkit)
    install(EXPORT QuorConversionsQtTargets NAMESPACE QuorConversions:: DESTINATION ${package_dir})
    if(NOT BUILD_SHARED_LIBS)
        list(APPEND qt_components Help) # the host links what the archive needs
    endif()
endif()
list(JOIN qt_components " " qt_components)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QuorConversionsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
configure_package_config_file(cmake/QuorConversionsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/QuorConversionsConfig.cmake INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
install(FILES
    ${PROJECT_BINARY_DIR}/QuorConversionsConfig.cmake
    ${PROJECT_BINARY_DIR}/QuorConversionsConfigVersion.cmake
    DESTINATION ${package_dir})

# For hosts in C, which have no CMake: pkg-config quor. Wherever the folder is moved, the libraries stand beside it.
file(RELATIVE_PATH up /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
set(libs -lquor)
set(cflags "")
if(NOT BUILD_SHARED_LIBS)
    set(libs "-lquor -lQuorConversions -lQuorRegistryII -lQuorIniFile -lstdc++ -lm")
    set(cflags " -DQUORCOMPONENT_STATIC_DEFINE")
endif()
configure_file(cmake/quor.pc.in ${PROJECT_BINARY_DIR}/quor.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/quor.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
