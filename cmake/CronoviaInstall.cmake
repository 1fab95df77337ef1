# SPDX-License-Identifier: GPL-3.0-or-later
# What an installation consists of, besides the program and its library: both are installed where they are built.

install(FILES CHANGELOG.md LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(DIRECTORY examples DESTINATION "${CMAKE_INSTALL_DOCDIR}")

# The page of the manual is written by the table of the verbs.
set(manual_page "${CMAKE_BINARY_DIR}/cronovia.1")
add_custom_command(
  OUTPUT "${manual_page}"
  COMMAND cronovia_manuale "${manual_page}" ${CRONOVIA_RELEASE_DATE}
  DEPENDS cronovia_manuale
  VERBATIM)
add_custom_target(cronovia_pagina_manuale ALL DEPENDS "${manual_page}")
install(FILES "${manual_page}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")

# What shells complete, told by the program itself.
if(UNIX AND NOT APPLE)
  set(completion_bash "bash-completion/completions/cronovia")
  set(completion_zsh "zsh/vendor-completions/_cronovia")
  set(completion_fish "fish/vendor_completions.d/cronovia.fish")
  foreach(shell bash zsh fish)
    set(completion "${CMAKE_BINARY_DIR}/completamento/${completion_${shell}}")
    get_filename_component(completion_folder "${completion_${shell}}" DIRECTORY)
    file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/completamento/${completion_folder}")
    add_custom_command(
      OUTPUT "${completion}"
      COMMAND cronovia completamento ${shell} > "${completion}"
      DEPENDS cronovia
      VERBATIM)
    list(APPEND completions "${completion}")
    install(FILES "${completion}" DESTINATION "${CMAKE_INSTALL_DATADIR}/${completion_folder}")
  endforeach()
  add_custom_target(cronovia_completamento ALL DEPENDS ${completions})
endif()

# How a desktop shows the program and its exchange files.
if(UNIX AND NOT APPLE)
  set(CRONOVIA_ID it.cronovia.Cronovia)
  set(CRONOVIA_SITE "https://cronovia.example" CACHE STRING "Where the pictures of the software centres are published")
  set(desktop_source "${CMAKE_SOURCE_DIR}/packaging/desktop")
  configure_file("${desktop_source}/metainfo.xml.in" "${CMAKE_BINARY_DIR}/${CRONOVIA_ID}.metainfo.xml" @ONLY)
  configure_file("${desktop_source}/applicazione.desktop.in" "${CMAKE_BINARY_DIR}/${CRONOVIA_ID}.desktop" @ONLY)
  install(FILES "${CMAKE_BINARY_DIR}/${CRONOVIA_ID}.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
  install(FILES "${CMAKE_BINARY_DIR}/${CRONOVIA_ID}.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(
    FILES "${desktop_source}/mime.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages"
    RENAME ${CRONOVIA_ID}.xml)
  set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable")
  install(FILES "${CMAKE_SOURCE_DIR}/src/ui/icone/cronovia.svg" DESTINATION "${icons}/apps" RENAME ${CRONOVIA_ID}.svg)
  install(FILES "${desktop_source}/application-x-cronovia-iei.svg" DESTINATION "${icons}/mimetypes")
endif()
