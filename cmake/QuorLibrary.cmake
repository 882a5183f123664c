# What every target of this project shares: the language, the warnings, the sanitizers, and the way one of
# the three libraries is declared.

set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# Installed libraries find each other, and installed programs find them, wherever the folder is.
set(CMAKE_INSTALL_RPATH $ORIGIN $ORIGIN/../${CMAKE_INSTALL_LIBDIR})

add_library(quor_options INTERFACE)
target_compile_features(quor_options INTERFACE cxx_std_20)
target_compile_options(quor_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Werror)
if(QUOR_SANITIZE OR QUOR_FUZZ)
    target_compile_options(quor_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quor_options INTERFACE -fsanitize=address,undefined)
endif()
if(QUOR_FUZZ)
    target_compile_options(quor_options INTERFACE -fsanitize=fuzzer-no-link) # the fuzzer sees which code ran
endif()

# quor_library(NAME DEPENDS lib... SOURCES file...)
# Declares the library NAME, its alias QuorConversions::NAME, its export header NAME/Export.h and its install
# rules. Headers are installed under the path that the sources use: #include "NAME/...".
function(quor_library name)
    cmake_parse_arguments(arg "" "" "DEPENDS;SOURCES" ${ARGN})
    add_library(${name} ${arg_SOURCES})
    add_library(QuorConversions::${name} ALIAS ${name})
    string(TOUPPER ${name} upper)
    generate_export_header(${name} BASE_NAME ${upper}
        EXPORT_FILE_NAME ${PROJECT_BINARY_DIR}/include/${name}/Export.h)
    target_include_directories(${name} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_link_libraries(${name} PUBLIC ${arg_DEPENDS} PRIVATE $<BUILD_INTERFACE:quor_options>)
    if(QUOR_FUZZ)
        # Every test run builds the fuzzers, and most of that is reading these.
        target_precompile_headers(${name} PRIVATE <algorithm> <cmath> <functional> <map> <memory> <optional> <set>
            <string> <string_view> <variant> <vector>)
    endif()
    set_target_properties(${name} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        POSITION_INDEPENDENT_CODE ON)
    if(NOT BUILD_SHARED_LIBS)
        target_compile_definitions(${name} PUBLIC ${upper}_STATIC_DEFINE)
    endif()
    install(TARGETS ${name} EXPORT QuorConversionsTargets)
    install(DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${name}
        FILES_MATCHING PATTERN "*.h" PATTERN "*.def")
    install(FILES ${PROJECT_BINARY_DIR}/include/${name}/Export.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${name})
endfunction()
