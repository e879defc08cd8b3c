# Compiler settings that every target of ours is built with.
add_library(corvane_settings INTERFACE)
target_compile_options(corvane_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference -Wformat=2
    -fstack-protector-strong -fstack-clash-protection)
# Some processors alone check where jumps and returns lead.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection CORVANE_HAS_CF_PROTECTION)
if(CORVANE_HAS_CF_PROTECTION)
    target_compile_options(corvane_settings INTERFACE -fcf-protection)
endif()
# A compiler that came later warns of more: that stops us, not somebody who only wants to build it.
option(CORVANE_WARNINGS_AS_ERRORS "Fail the build on a warning" OFF)
if(CORVANE_WARNINGS_AS_ERRORS)
    target_compile_options(corvane_settings INTERFACE -Werror)
endif()
# Sources that are read together see each other's private names; what these warnings look for is found
# where each is read alone.
set(are_joined $<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>)
target_compile_options(corvane_settings INTERFACE $<${are_joined}:-Wno-shadow>
    $<$<AND:${are_joined},$<CXX_COMPILER_ID:GNU>>:-Wno-subobject-linkage>)
target_compile_definitions(corvane_settings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_USE_QSTRINGBUILDER
    _GLIBCXX_ASSERTIONS)
target_link_options(corvane_settings INTERFACE -Wl,-z,relro,-z,now)
# Fortification needs the optimiser, and the sanitizers do the same work better.
if(NOT CORVANE_SANITIZE AND NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
    target_compile_options(corvane_settings INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
endif()

if(CORVANE_SANITIZE)
    add_compile_options(-fsanitize=${CORVANE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${CORVANE_SANITIZE})
endif()
