# SPDX-License-Identifier: GPL-3.0-or-later
# Settings that every target shares, and the one way to declare a floor of the house.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

find_program(VARNHOLT_CCACHE ccache)
if(VARNHOLT_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${VARNHOLT_CCACHE}")
endif()

add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 sees overlapping and endless copies in "text" + std::string, and uninitialized texts in
    # rows of tables, falsely, when it optimises.
    add_compile_options(-Wno-restrict)
    add_compile_options(
        "$<$<NOT:$<CONFIG:Debug>>:-Wno-stringop-overflow;-Wno-array-bounds;-Wno-maybe-uninitialized>")
endif()
# What a file that is made to do harm would have to get past. The sanitizers bring their own.
include(CheckCXXCompilerFlag)
function(varnholt_hardening FLAG)
    string(MAKE_C_IDENTIFIER "varnholt_has${FLAG}" known)
    check_cxx_compiler_flag("${FLAG}" ${known})
    if(${known})
        add_compile_options("${FLAG}")
    endif()
endfunction()
if(NOT VARNHOLT_SANITIZE AND NOT VARNHOLT_FUZZ)
    varnholt_hardening(-fstack-protector-strong)
    varnholt_hardening(-fstack-clash-protection)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
        varnholt_hardening(-fcf-protection=full)
    elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "aarch64")
        varnholt_hardening(-mbranch-protection=standard)
    endif()
    # The checked calls need the optimiser.
    add_compile_options("$<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
    add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
    # A module is position-independent by itself, in the stricter way.
    set(isModule "$<STREQUAL:$<TARGET_PROPERTY:TYPE>,MODULE_LIBRARY>")
    set(isProgram "$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>")
    add_compile_options("$<$<NOT:${isModule}>:-fPIE>")
    add_link_options("$<${isProgram}:-pie>")
endif()
# No program names the folder in which it was built.
add_compile_options("-ffile-prefix-map=${CMAKE_BINARY_DIR}=."
                    "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.")
# Products must not be fused: the same design has the same digits on every machine.
add_compile_options(-ffp-contract=off)
if(VARNHOLT_SANITIZE)
    # GCC 12 takes the standard library's regular expressions for uninitialized when it sanitizes.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        add_compile_options(-Wno-maybe-uninitialized)
    endif()
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(VARNHOLT_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Lets TARGET include the files of FOLDER, a folder below src/, by their names from src/, and no
# others: the include directory holds a symbolic link to that folder and nothing else.
function(varnholt_sees TARGET SCOPE FOLDER)
    string(REPLACE "/" "_" name "${FOLDER}")
    set(directory "${CMAKE_BINARY_DIR}/floors/${name}")
    cmake_path(GET FOLDER PARENT_PATH parent)
    file(MAKE_DIRECTORY "${directory}/${parent}")
    file(CREATE_LINK "${PROJECT_SOURCE_DIR}/src/${FOLDER}" "${directory}/${FOLDER}" SYMBOLIC)
    target_include_directories(${TARGET} ${SCOPE} "${directory}")
    # What the target sees in all, for the test that tries to include what is above.
    set(seen "$<TARGET_PROPERTY:${TARGET},INCLUDE_DIRECTORIES>")
    if(SCOPE STREQUAL "INTERFACE")
        set(seen "$<TARGET_PROPERTY:${TARGET},INTERFACE_INCLUDE_DIRECTORIES>")
    endif()
    file(GENERATE OUTPUT "${directory}.txt" CONTENT "$<JOIN:${seen},\n>\n")
endfunction()

# What nearly every source includes, compiled once. The first of the floors makes it, all others but
# those of the windows, which have Qt's beside it, take it from there.
set(VARNHOLT_STANDARD_HEADERS
    <algorithm> <array> <chrono> <cmath> <cstdint> <filesystem> <fstream> <functional> <map> <memory>
    <numeric> <optional> <set> <span> <sstream> <string> <string_view> <utility> <variant> <vector>
    <fmt/format.h>)

# One static library a floor, from every source below its folder. FOLDER is the folder below src/,
# the other arguments are the libraries it may use: "loads/zone.h" is found by those who link the
# loads. A floor may be cut into rooms, such as "desktop/widgets", each with a library of its own,
# varnholt_desktop_widgets.
function(varnholt_floor FOLDER)
    string(REPLACE "/" "_" name "${FOLDER}")
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${FOLDER}/*.cpp")
    if(sources)
        add_library(varnholt_${name} STATIC ${sources})
        set(scope PUBLIC)
        if(FOLDER STREQUAL "basis")
            target_precompile_headers(varnholt_basis PRIVATE ${VARNHOLT_STANDARD_HEADERS})
        elseif(NOT FOLDER MATCHES "^desktop/")
            target_precompile_headers(varnholt_${name} REUSE_FROM varnholt_basis)
        endif()
    else()
        add_library(varnholt_${name} INTERFACE)
        set(scope INTERFACE)
    endif()
    varnholt_sees(varnholt_${name} ${scope} "${FOLDER}")
    target_link_libraries(varnholt_${name} ${scope} ${ARGN})
endfunction()

# A library that the desktop loads when it is first needed, varnholt_NAME in lib/varnholt/modules, from the
# sources of src/desktop/NAME. It sees the headers that the room SEEN sees and links the other
# arguments alone.
function(varnholt_module NAME SEEN)
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/desktop/${NAME}/*.cpp")
    add_library(varnholt_${NAME} MODULE ${sources})
    target_include_directories(varnholt_${NAME} PRIVATE
        "${CMAKE_CURRENT_SOURCE_DIR}"
        "$<TARGET_PROPERTY:${SEEN},INTERFACE_INCLUDE_DIRECTORIES>")
    target_compile_definitions(varnholt_${NAME} PRIVATE QT_NO_KEYWORDS)
    target_link_libraries(varnholt_${NAME} PRIVATE ${ARGN})
    set_target_properties(varnholt_${NAME} PROPERTIES
        PREFIX ""
        LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib/varnholt/modules"
        CXX_VISIBILITY_PRESET hidden)
    if(NOT TARGET varnholt_modules)
        add_custom_target(varnholt_modules)
    endif()
    add_dependencies(varnholt_modules varnholt_${NAME})
endfunction()
