# SPDX-License-Identifier: GPL-3.0-or-later
# What `cmake --install` puts where, and the Debian package: `cpack --preset release`, or cpack in
# the build folder.
include(GNUInstallDirs)

set(programs varnholt-script)
if(VARNHOLT_DESKTOP)
    list(APPEND programs varnholt)
endif()
install(TARGETS ${programs} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(VARNHOLT_DESKTOP)
    # Where the program looks for it, whatever the system's folder of libraries is called.
    install(TARGETS varnholt_charts varnholt_printing LIBRARY DESTINATION lib/varnholt)
endif()

# The programs look for their files in ../share/varnholt. The windows' pictures are compiled in.
set(shared ${CMAKE_INSTALL_DATADIR}/varnholt)
install(DIRECTORY resources/ DESTINATION ${shared}
        PATTERN "*.py" EXCLUDE PATTERN pictures EXCLUDE)
install(DIRECTORY examples DESTINATION ${shared} PATTERN "*.py" EXCLUDE)

install(FILES packaging/varnholt.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/varnholt.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES packaging/varnholt.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES packaging/copyright README.md docs/scripting.md
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/varnholt)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME varnholt)
set(CPACK_PACKAGE_VENDOR Varnholt)
set(CPACK_PACKAGE_CONTACT "The Varnholt developers <developers@varnholt.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://varnholt.example)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DESCRIPTION
    "Varnholt computes how much pipe the ground heat exchanger of a heat pump system needs.
The designer enters the loads of a building, picks heat pumps from a catalogue, describes ground,
pipe and field, and reads the lengths for cooling and for heating.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-inter | fonts-dejavu-core, qt6-wayland")
include(CPack)
