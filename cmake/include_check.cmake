# The folders' order is checked before anything is compiled: see tools/check-includes.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
file(GLOB_RECURSE corvane_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/*.h ${CMAKE_SOURCE_DIR}/src/*.cpp)
add_custom_command(
    OUTPUT ${CMAKE_BINARY_DIR}/includes.checked
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/check-includes ${CMAKE_SOURCE_DIR}/src
    COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/includes.checked
    DEPENDS ${corvane_sources} ${CMAKE_SOURCE_DIR}/tools/check-includes
    COMMENT "Checking includes")
add_custom_target(check_includes ALL DEPENDS ${CMAKE_BINARY_DIR}/includes.checked)
