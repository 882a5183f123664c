# GoogleTest, built for Windows from the sources of the Debian package googletest.
set(INSTALL_GTEST OFF)
set(BUILD_GMOCK OFF)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
foreach(library IN ITEMS gtest gtest_main)
    target_compile_options(${library} PRIVATE -Wno-error)
endforeach()
set(GTest_FOUND TRUE)
