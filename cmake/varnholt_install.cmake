# SPDX-License-Identifier: GPL-3.0-or-later
# What `cmake --install` puts where, and the Debian packages: `cpack --preset release`, or cpack in
# the build folder. The module for pages of the web is a package of its own, varnholt-web: the
# engine behind it is larger than all the rest.
include(GNUInstallDirs)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME program)

set(programs varnholt-script)
if(VARNHOLT_DESKTOP)
    list(APPEND programs varnholt)
endif()
install(TARGETS ${programs} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(VARNHOLT_DESKTOP)
    # Where the program looks for it, whatever the system's folder of libraries is called, and as deep
    # as no library lies that others link.
    set(modules lib/varnholt/modules)
    install(TARGETS varnholt_charts varnholt_printing varnholt_help LIBRARY DESTINATION ${modules})
    if(TARGET varnholt_web)
        install(TARGETS varnholt_web LIBRARY DESTINATION ${modules} COMPONENT web)
        install(FILES packaging/copyright
                DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/varnholt-web COMPONENT web)
    endif()
endif()

# The programs look for their files in ../share/varnholt. The windows' pictures are compiled in.
set(shared ${CMAKE_INSTALL_DATADIR}/varnholt)
install(DIRECTORY resources/pumps DESTINATION ${shared})
install(DIRECTORY resources/language/english DESTINATION ${shared}/language)
# What the build has made; the links to the source tree beside it are left out.
install(DIRECTORY "${VARNHOLT_RESOURCES}/tables" "${VARNHOLT_RESOURCES}/help"
        DESTINATION ${shared})
install(DIRECTORY "${VARNHOLT_RESOURCES}/language/" DESTINATION ${shared}/language
        FILES_MATCHING PATTERN "vhtSat*.txt" PATTERN english EXCLUDE)
install(DIRECTORY examples DESTINATION ${shared} PATTERN "*.py" EXCLUDE)

install(FILES packaging/varnholt.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/varnholt.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES packaging/varnholt.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
# What Debian wants of every program: its changes and a manual page, both compressed without a date,
# so that the same sources make the same package.
find_program(VARNHOLT_GZIP gzip REQUIRED)
function(varnholt_install_compressed SOURCE DESTINATION)
    cmake_path(GET SOURCE FILENAME name)
    set(compressed "${CMAKE_BINARY_DIR}/packaging/${name}.gz")
    file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/packaging")
    add_custom_command(
        OUTPUT "${compressed}"
        COMMAND "${VARNHOLT_GZIP}" -9nc "${PROJECT_SOURCE_DIR}/${SOURCE}" > "${compressed}"
        DEPENDS "${PROJECT_SOURCE_DIR}/${SOURCE}"
        COMMENT "Compressing ${name}")
    add_custom_target(varnholt_compressed_${name} ALL DEPENDS "${compressed}")
    # Whoever packs builds the programs alone.
    add_dependencies(varnholt-script varnholt_compressed_${name})
    install(FILES "${compressed}" DESTINATION "${DESTINATION}" ${ARGN})
endfunction()
varnholt_install_compressed(packaging/changelog ${CMAKE_INSTALL_DATADIR}/doc/varnholt)
foreach(program ${programs})
    varnholt_install_compressed(packaging/${program}.1 ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
if(TARGET varnholt_web)
    install(FILES "${CMAKE_BINARY_DIR}/packaging/changelog.gz"
            DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/varnholt-web COMPONENT web)
endif()

install(FILES packaging/copyright README.md docs/scripting.md
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/varnholt)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME varnholt)
set(CPACK_PACKAGE_VENDOR Varnholt)
set(CPACK_PACKAGE_CONTACT "The Varnholt developers <developers@varnholt.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://varnholt.example)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION
    "Varnholt computes how much pipe the ground heat exchanger of a heat pump
system needs. The designer enters the loads of a building, picks heat pumps
from a catalogue, describes ground, pipe and field, and reads the lengths for
cooling and for heating.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL program)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME varnholt)
# The help's engine reads its files through a plugin, which no library names.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "libqt6sql6-sqlite")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS
    "fonts-inter | fonts-dejavu-core, qt6-wayland, varnholt-web")
if(TARGET varnholt_web)
    list(APPEND CPACK_COMPONENTS_ALL web)
    set(CPACK_DEBIAN_WEB_PACKAGE_NAME varnholt-web)
    set(CPACK_DEBIAN_WEB_PACKAGE_DEPENDS "varnholt (= ${PROJECT_VERSION})")
    set(CPACK_DEBIAN_WEB_DESCRIPTION
        "With this package the browser window of Varnholt shows pages of the web, and
sorts the tables of its reference pages. Without it web addresses are handed
to the system's browser.")
endif()
include(CPack)
