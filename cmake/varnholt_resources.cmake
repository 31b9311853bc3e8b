# SPDX-License-Identifier: GPL-3.0-or-later
# What the build makes of the resources: a folder with the layout of the installed one. The language
# gets its satellites, the facts become reference pages, the help its index and its compiled form;
# all else is a link to the source tree.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)

set(VARNHOLT_RESOURCES "${CMAKE_BINARY_DIR}/resources")
set(resource_source "${PROJECT_SOURCE_DIR}/resources")
file(MAKE_DIRECTORY "${VARNHOLT_RESOURCES}/language")
file(CREATE_LINK "${resource_source}/pumps" "${VARNHOLT_RESOURCES}/pumps" SYMBOLIC)
file(CREATE_LINK "${resource_source}/language/english" "${VARNHOLT_RESOURCES}/language/english"
     SYMBOLIC)

# Runs a script of the resources when one of the files it reads has changed.
# varnholt_make(NAME SCRIPT ARGUMENTS... DEPENDS FILES...)
function(varnholt_make NAME SCRIPT)
    cmake_parse_arguments(PARSE_ARGV 2 make "" "" "DEPENDS")
    set(stamp "${CMAKE_BINARY_DIR}/resources-${NAME}.stamp")
    add_custom_command(
        OUTPUT "${stamp}"
        COMMAND Python3::Interpreter "${resource_source}/${SCRIPT}" ${make_UNPARSED_ARGUMENTS}
        COMMAND ${CMAKE_COMMAND} -E touch "${stamp}"
        DEPENDS "${resource_source}/${SCRIPT}" ${make_DEPENDS}
        COMMENT "Making the ${NAME}"
        VERBATIM)
    add_custom_target(varnholt_make_${NAME} DEPENDS "${stamp}")
endfunction()

set(locales "${PROJECT_SOURCE_DIR}/src/tools/locales.cpp")
varnholt_make(satellites language/make_satellites.py
    "${locales}" "${VARNHOLT_RESOURCES}/language" DEPENDS "${locales}")

file(GLOB facts CONFIGURE_DEPENDS "${resource_source}/facts/*.csv"
     "${resource_source}/tables/tables.css" "${resource_source}/tables/sort.js")
varnholt_make(tables tables/make_tables.py
    "${resource_source}/facts" "${VARNHOLT_RESOURCES}/tables/english" DEPENDS ${facts})

add_custom_target(varnholt_resources ALL DEPENDS varnholt_make_satellites varnholt_make_tables)

# The captions of every window lead into the help's index, so a program that opens them all lists
# them first.
function(varnholt_add_help)
    add_executable(varnholt-captions "${resource_source}/help/list_captions.cpp")
    target_link_libraries(varnholt-captions PRIVATE varnholt_app)
    add_dependencies(varnholt-captions varnholt_make_satellites)
    set(captions "${CMAKE_BINARY_DIR}/help-captions.txt")
    add_custom_command(
        OUTPUT "${captions}"
        COMMAND varnholt-captions "${captions}"
        DEPENDS varnholt-captions
        COMMENT "Listing the captions of the windows"
        VERBATIM)
    file(GLOB pages CONFIGURE_DEPENDS "${resource_source}/help/*.html"
         "${resource_source}/help/*.css" "${resource_source}/help/*.txt"
         "${resource_source}/language/english/*.txt")
    varnholt_make(help help/make_help.py
        "${captions}" "${resource_source}/language/english" "${VARNHOLT_RESOURCES}/help"
        "${CMAKE_BINARY_DIR}/help"
        DEPENDS ${pages} "${captions}")
    add_dependencies(varnholt_resources varnholt_make_help)
    if(VARNHOLT_DESKTOP)
        get_target_property(rcc Qt6::rcc IMPORTED_LOCATION)
        cmake_path(GET rcc PARENT_PATH tools)
        find_program(VARNHOLT_QHELPGENERATOR qhelpgenerator HINTS "${tools}" REQUIRED)
        set(compiled "${VARNHOLT_RESOURCES}/help/vht.qch")
        add_custom_command(
            OUTPUT "${compiled}"
            COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
                    "${VARNHOLT_QHELPGENERATOR}" "${CMAKE_BINARY_DIR}/help/vht.qhp" -o "${compiled}"
            DEPENDS varnholt_make_help "${CMAKE_BINARY_DIR}/resources-help.stamp"
            COMMENT "Compiling the help"
            VERBATIM)
        add_custom_target(varnholt_compiled_help DEPENDS "${compiled}")
        add_dependencies(varnholt_resources varnholt_compiled_help)
    endif()
endfunction()
