# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

include_guard()

option(VOK_WERROR "Make warnings errors" ON)

# What every target is compiled with.
add_library(vok_options INTERFACE)
target_compile_features(vok_options INTERFACE cxx_std_20)
target_compile_options(vok_options INTERFACE -Wall -Wextra -Wpedantic
    $<$<BOOL:${VOK_WERROR}>:-Werror>)
target_compile_definitions(vok_options INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_include_directories(vok_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

set(VOK_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them")
if(VOK_SANITIZE)
    target_compile_options(vok_options INTERFACE -fsanitize=${VOK_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(vok_options INTERFACE -fsanitize=${VOK_SANITIZE})
    target_compile_definitions(vok_options INTERFACE VOK_SANITIZED)
endif()

# vok_room(NAME [LINKS TARGET...]): the static library vok_NAME of this folder's sources. It sees
# only the rooms that it links, so an include against the layout does not link.
function(vok_room name)
    cmake_parse_arguments(ARG "" "" "LINKS;SOURCES" ${ARGN})
    if(NOT ARG_SOURCES)
        file(GLOB ARG_SOURCES CONFIGURE_DEPENDS *.cpp *.h)
    endif()
    add_library(vok_${name} STATIC ${ARG_SOURCES})
    target_link_libraries(vok_${name} PUBLIC vok_options ${ARG_LINKS})
endfunction()

# vok_test(NAME SOURCE... [LINKS TARGET...]): one test program, run offscreen against the build's
# share directory.
function(vok_test name)
    cmake_parse_arguments(ARG "" "" "LINKS;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${ARG_UNPARSED_ARGUMENTS})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_link_libraries(${name} PRIVATE vok_options Qt6::Test ${ARG_LINKS})
    add_dependencies(${name} share)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;VOKSHARE=${VOK_SHARE_DIR};LC_ALL=C.UTF-8;LANGUAGE=;TZ=UTC;${ARG_ENVIRONMENT}")
endfunction()
