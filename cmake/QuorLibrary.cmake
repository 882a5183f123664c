# What every target of this project shares: the language, the warnings, the sanitizers, and the way one of
# the libraries is declared.

set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# What is asked of the operating system stands in files of its own: NamePosix.cpp, NameWindows.cpp.
set(QUOR_SYSTEM Posix)
if(WIN32)
    set(QUOR_SYSTEM Windows)
endif()

# Installed libraries find each other, and installed programs find them, wherever the folder is.
set(CMAKE_INSTALL_RPATH $ORIGIN $ORIGIN/../${CMAKE_INSTALL_LIBDIR})

add_library(quor_options INTERFACE)
target_compile_features(quor_options INTERFACE cxx_std_20)
target_compile_options(quor_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast)
# Sources that are compiled together have no file of their own whose types could be seen elsewhere.
target_compile_options(quor_options INTERFACE
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>:-Wno-subobject-linkage>)
if(MINGW) # in optimised code it takes copies of wide texts of one character for ones past their end
    target_compile_options(quor_options INTERFACE -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
endif()
# Warnings are errors for those who work on this project, not for those who build it with compilers of their own.
if(PROJECT_IS_TOP_LEVEL AND NOT DEFINED CMAKE_COMPILE_WARNING_AS_ERROR)
    set(CMAKE_COMPILE_WARNING_AS_ERROR ON)
endif()
if(QUOR_SANITIZE OR QUOR_FUZZ)
    # What a host builds has every check. The tests' own code goes without those that look at each access, a third of
    # its compilation: AddressSanitizer looks at the same accesses.
    define_property(TARGET PROPERTY QUOR_TEST_CODE INITIALIZE_FROM_VARIABLE QUOR_TEST_CODE)
    target_compile_options(quor_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
        $<$<BOOL:$<TARGET_PROPERTY:QUOR_TEST_CODE>>:-fno-sanitize=alignment,null,object-size,vptr>)
    target_link_options(quor_options INTERFACE -fsanitize=address,undefined)
endif()
if(QUOR_FUZZ)
    target_compile_options(quor_options INTERFACE -fsanitize=fuzzer-no-link) # the fuzzer sees which code ran
endif()

# quor_precompile(TARGET header...)
# Reading the headers of the standard library, and of those given, is most of a build: where tests are built
# all of it is, and reads them once a target. Every other build reads what each source includes.
function(quor_precompile target)
    if(QUOR_BUILD_TESTS OR QUOR_FUZZ)
        target_precompile_headers(${target} PRIVATE <algorithm> <functional> <map> <memory> <optional> <set> <string>
            <string_view> <unordered_map> <variant> <vector> ${ARGN})
    endif()
endfunction()

# quor_library(NAME DEPENDS lib... HEADERS file... SOURCES file...)
# Declares the library NAME, its alias QuorConversions::NAME, its export header NAME/Export.h and its install
# rules. HEADERS are what a host may include, under the path that the sources use: #include "NAME/...". All
# others are internal: they are not installed, and nothing that they declare is exported.
function(quor_library name)
    cmake_parse_arguments(arg "" "" "DEPENDS;HEADERS;SOURCES" ${ARGN})
    add_library(${name} ${arg_SOURCES})
    add_library(QuorConversions::${name} ALIAS ${name})
    string(TOUPPER ${name} upper)
    set(generated ${PROJECT_BINARY_DIR}/include)
    generate_export_header(${name} BASE_NAME ${upper} EXPORT_FILE_NAME ${generated}/${name}/Export.h)
    target_sources(${name} PUBLIC
        FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${arg_HEADERS}
        FILE_SET generated TYPE HEADERS BASE_DIRS ${generated} FILES ${generated}/${name}/Export.h)
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_link_libraries(${name} PUBLIC ${arg_DEPENDS} PRIVATE $<BUILD_INTERFACE:quor_options>)
    quor_precompile(${name})
    quor_exports(${name} ${name})
    quor_install(${name} DEPENDS ${arg_DEPENDS})
endfunction()

# quor_install(NAME [EXPORT set] [DEPENDS lib...] [LIBS lib...])
# Installs a library with its headers as one of the CMake package's, and, where QUOR_BUILD_ARCHIVES asks for it, beside
# the shared one a static one of the same objects. DEPENDS are libraries of this project that it needs, LIBS those of
# others. The package has one file of targets a set and kind: a host that asks for static libraries gets those.
function(quor_install name)
    if(NOT QUOR_INSTALL)
        return()
    endif()
    cmake_parse_arguments(arg "" "EXPORT" "DEPENDS;LIBS" ${ARGN})
    get_target_property(type ${name} TYPE)
    set(kind Static)
    if(type STREQUAL SHARED_LIBRARY)
        set(kind Shared)
    endif()
    get_target_property(sets ${name} INTERFACE_HEADER_SETS)
    set(file_sets "")
    foreach(set IN LISTS sets)
        list(APPEND file_sets FILE_SET ${set} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT Development)
    endforeach()
    install(TARGETS ${name} EXPORT QuorConversions${arg_EXPORT}${kind}Targets
        RUNTIME COMPONENT Runtime
        LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
        ARCHIVE COMPONENT Development
        ${file_sets})

    if(NOT QUOR_BUILD_ARCHIVES OR kind STREQUAL Static)
        return()
    endif()
    set(archive ${name}Archive)
    add_library(${archive} STATIC $<TARGET_OBJECTS:${name}>)
    foreach(property IN ITEMS OUTPUT_NAME EXPORT_NAME)
        get_target_property(value ${name} ${property})
        if(NOT value)
            set(value ${name})
        endif()
        set_target_properties(${archive} PROPERTIES ${property} ${value})
    endforeach()
    list(TRANSFORM arg_DEPENDS APPEND Archive)
    target_link_libraries(${archive} INTERFACE ${arg_DEPENDS} ${arg_LIBS})
    target_compile_features(${archive} INTERFACE cxx_std_20)
    target_include_directories(${archive} INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    set_target_properties(${archive} PROPERTIES LINKER_LANGUAGE CXX)
    install(TARGETS ${archive} EXPORT QuorConversions${arg_EXPORT}StaticTargets ARCHIVE COMPONENT Development)
endfunction()

# What a library of this project shares with the others: its version, and that it exports what stands in
# `namespace` and is marked for it, but no template of the standard library that it has filled in.
function(quor_exports name namespace)
    string(CONFIGURE [[{
    global: extern "C++" {
        @namespace@::*;
        typeinfo?for?@namespace@::*;
        typeinfo?name?for?@namespace@::*;
        vtable?for?@namespace@::*;
        non-virtual?thunk?to?@namespace@::*;
    };
    local: *;
};
]] map @ONLY)
    quor_version_script(${name} "${map}")
endfunction()

# The same for a library of C functions: it exports those whose names begin with `prefix`, and nothing else.
function(quor_exports_c name prefix)
    quor_version_script(${name} "{\n    global: ${prefix}*;\n    local: *;\n};\n")
endfunction()

function(quor_version_script name content)
    set_target_properties(${name} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        POSITION_INDEPENDENT_CODE ON)
    get_target_property(type ${name} TYPE)
    if(NOT type STREQUAL SHARED_LIBRARY)
        string(TOUPPER ${name} upper)
        target_compile_definitions(${name} PUBLIC ${upper}_STATIC_DEFINE)
        return()
    endif()
    if(WIN32) # it exports what is marked for it, and nothing else
        return()
    endif()
    set(map ${CMAKE_CURRENT_BINARY_DIR}/${name}.map)
    file(CONFIGURE OUTPUT ${map} @ONLY CONTENT "${content}")
    target_link_options(${name} PRIVATE LINKER:--version-script=${map} LINKER:-z,defs)
    set_target_properties(${name} PROPERTIES LINK_DEPENDS ${map})
endfunction()
