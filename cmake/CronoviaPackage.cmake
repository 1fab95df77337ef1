# SPDX-License-Identifier: GPL-3.0-or-later
# The Debian package, made from an installation by packaging/deb.sh.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME cronovia)
set(CPACK_PACKAGE_CONTACT "Cronovia <cronovia@cronovia.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "timetable of motorhome journeys, hour by hour")
set(CPACK_PACKAGE_DESCRIPTION
    "Cronovia plans journeys by motorhome. From the stages, their kilometres and
roads, the stops and a guide of what is worth a visit it computes the hour of
each arrival, with meals, nights, rest days, ferries and visits in between,
and until when one can go on and still be home in time. It prints schedules
and guides, exchanges journeys as files, and does all of it from the command
line too. The program speaks Italian.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/pacchetto")
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_SOURCE_DIR}/packaging/deb/completa.cmake")
set(CPACK_CRONOVIA_SOURCE "${CMAKE_SOURCE_DIR}")
set(CPACK_CRONOVIA_RELEASE_DATE ${CRONOVIA_RELEASE_DATE})

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded by name: the fonts of the paper, Qt's own Italian.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
include(CPack)
