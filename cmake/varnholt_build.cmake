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
    # GCC 12 sees overlapping and endless copies in "text" + std::string, falsely, when it
    # optimises.
    add_compile_options(-Wno-restrict)
    add_compile_options("$<$<NOT:$<CONFIG:Debug>>:-Wno-stringop-overflow;-Wno-array-bounds>")
endif()
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

# One static library a floor, from every source below its folder. FOLDER is the folder below src/,
# the other arguments are the libraries it may use: a floor cannot include what it does not link.
function(varnholt_floor FOLDER)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${FOLDER}/*.cpp")
    if(sources)
        add_library(varnholt_${FOLDER} STATIC ${sources})
        set(scope PUBLIC)
    else()
        add_library(varnholt_${FOLDER} INTERFACE)
        set(scope INTERFACE)
    endif()
    target_include_directories(varnholt_${FOLDER} ${scope} "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(varnholt_${FOLDER} ${scope} ${ARGN})
endfunction()
