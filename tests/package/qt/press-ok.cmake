# Included by the project of the sample host, which stays as it is: gives its program a finger.
set(finger ${CMAKE_CURRENT_LIST_DIR}/PressOK.cpp)
cmake_language(DEFER CALL target_sources host PRIVATE ${finger})
cmake_language(DEFER CALL target_compile_definitions host PRIVATE FINGER_ASKS_FOR_HELP)
