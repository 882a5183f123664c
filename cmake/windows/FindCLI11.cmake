# CLI11 and RapidJSON of the Debian packages libcli11-dev and rapidjson-dev: headers alone, which must not bring those
# of the C library along that stand beside them.
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/headers)
foreach(headers IN ITEMS CLI rapidjson)
    file(CREATE_LINK /usr/include/${headers} ${CMAKE_BINARY_DIR}/headers/${headers} SYMBOLIC)
endforeach()
if(NOT TARGET CLI11::CLI11)
    add_library(CLI11::CLI11 INTERFACE IMPORTED GLOBAL)
    target_include_directories(CLI11::CLI11 INTERFACE ${CMAKE_BINARY_DIR}/headers)
endif()
set(CLI11_FOUND TRUE)
