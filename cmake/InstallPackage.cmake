# The CMake package: find_package(QuorConversions) gives QuorConversions::QuorConversions,
# QuorConversions::QuorIniFile and QuorConversions::QuorRegistryII.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/QuorConversions)
install(EXPORT QuorConversionsTargets NAMESPACE QuorConversions:: DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QuorConversionsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
file(WRITE ${PROJECT_BINARY_DIR}/QuorConversionsConfig.cmake
    "include(\"\${CMAKE_CURRENT_LIST_DIR}/QuorConversionsTargets.cmake\")\n")
install(FILES
    ${PROJECT_BINARY_DIR}/QuorConversionsConfig.cmake
    ${PROJECT_BINARY_DIR}/QuorConversionsConfigVersion.cmake
    DESTINATION ${package_dir})
