# What is installed beside the libraries and programs: the CMake package, the pkg-config ones, licence and samples.
#
# find_package(QuorConversions) gives QuorConversions::QuorConversions, QuorConversions::QuorProbeFile,
# QuorConversions::QuorIniFile, QuorConversions::QuorRegistryII and, for hosts in C, QuorConversions::Component; with
# COMPONENTS Qt also QuorConversions::QtToolkit, and only then it looks for Qt.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/QuorConversions)
set(kinds Static)
if(BUILD_SHARED_LIBS)
    set(kinds Shared)
    if(QUOR_BUILD_ARCHIVES)
        list(APPEND kinds Static)
    endif()
endif()
foreach(kind IN LISTS kinds)
    install(EXPORT QuorConversions${kind}Targets NAMESPACE QuorConversions:: DESTINATION ${package_dir}
        COMPONENT Development)
    if(TARGET QtToolkit)
        install(EXPORT QuorConversionsQt${kind}Targets NAMESPACE QuorConversions:: DESTINATION ${package_dir}
            COMPONENT Development)
    endif()
endforeach()
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QuorConversionsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
configure_package_config_file(cmake/QuorConversionsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/QuorConversionsConfig.cmake INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
install(FILES
    ${PROJECT_BINARY_DIR}/QuorConversionsConfig.cmake
    ${PROJECT_BINARY_DIR}/QuorConversionsConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT Development)

# For hosts without CMake: pkg-config quor (C) and quorconversions (C++). Wherever the folder is moved, the libraries
# stand beside it.
file(RELATIVE_PATH up /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
set(private .private) # what a shared library brings itself
set(runtime "")
set(cflags "")
if(NOT BUILD_SHARED_LIBS)
    set(private "")
    set(runtime " -lstdc++ -lm")
    set(cflags " -DQUORCOMPONENT_STATIC_DEFINE")
endif()
foreach(package IN ITEMS quor quorconversions)
    configure_file(cmake/${package}.pc.in ${PROJECT_BINARY_DIR}/${package}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT Development)
endforeach()

# Hosts in C# compile it with their own sources.
install(FILES bindings/csharp/Quor.cs DESTINATION ${CMAKE_INSTALL_DATADIR}/quor-conversions/csharp COMPONENT Development)

install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Development)
install(DIRECTORY samples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples COMPONENT Development
    PATTERN .gitattributes EXCLUDE)

# What a desktop knows of the window: its place in the menu, its icon, its description, and the files that it opens.
if(TARGET probe-setup)
    set(desktop packaging/desktop)
    install(FILES ${desktop}/probe-setup.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT Window)
    install(FILES ${desktop}/com.quorscientific.ProbeSetup.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT Window)
    install(FILES ${desktop}/probe-setup.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
        RENAME probe-setup.xml COMPONENT Window)
    set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
    install(FILES ${desktop}/probe-setup.svg DESTINATION ${icons}/scalable/apps COMPONENT Window)
    # Desktops without a renderer for SVG need the icon in their own sizes.
    find_program(RSVG_CONVERT rsvg-convert)
    mark_as_advanced(RSVG_CONVERT)
    if(RSVG_CONVERT)
        set(pictures "")
        foreach(size IN ITEMS 16 22 24 32 48 64 128 256 512)
            set(picture ${PROJECT_BINARY_DIR}/icons/${size}/probe-setup.png)
            add_custom_command(OUTPUT ${picture}
                COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/icons/${size}
                COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${picture}
                    ${PROJECT_SOURCE_DIR}/${desktop}/probe-setup.svg
                DEPENDS ${desktop}/probe-setup.svg VERBATIM)
            install(FILES ${picture} DESTINATION ${icons}/${size}x${size}/apps COMPONENT Window)
            list(APPEND pictures ${picture})
        endforeach()
        add_custom_target(icons ALL DEPENDS ${pictures})
    else()
        message(STATUS "rsvg-convert is missing (Debian: librsvg2-bin): the icon is installed as SVG only")
    endif()
endif()
