# SPDX-License-Identifier: GPL-3.0-or-later
# Run by CPack between the installation into its staging folder and the package: what Debian wants of every package.
set(doc "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/doc/cronovia")

# The licence is among those that every Debian system holds; the copyright file names it.
file(REMOVE "${doc}/LICENSE")
file(COPY "${CPACK_CRONOVIA_SOURCE}/packaging/deb/copyright" DESTINATION "${doc}")
file(CHMOD "${doc}/copyright" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

execute_process(
  COMMAND "${CPACK_CRONOVIA_SOURCE}/packaging/deb/completa.sh" "${CPACK_TEMPORARY_INSTALL_DIRECTORY}"
          "${CPACK_PACKAGE_VERSION}" "${CPACK_CRONOVIA_RELEASE_DATE}" "${CPACK_PACKAGE_CONTACT}"
          COMMAND_ERROR_IS_FATAL ANY)
