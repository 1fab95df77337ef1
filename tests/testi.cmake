# SPDX-License-Identifier: GPL-3.0-or-later
# What the window shows goes through the gate in ui/comuni/testo_mostrato.h: whoever makes a label or a box, or gives a
# tooltip or a title, by himself would show a name as markup one day.
#   cmake -D ROOT=<checkout> -P testi.cmake
cmake_minimum_required(VERSION 3.25)

set(raw "new QLabel|QLabel\\(|QMessageBox [a-z]|QMessageBox\\(|QMessageBox::[a-z]|QInputDialog|QErrorMessage")
string(APPEND raw "|QProgressDialog|setToolTip\\(|showText\\(|setWhatsThis\\(|setStatusTip\\(|setWindowTitle\\(")
file(GLOB_RECURSE files "${ROOT}/src/ui/*.h" "${ROOT}/src/ui/*.cpp" "${ROOT}/src/app/*.cpp" "${ROOT}/src/grafica/*.cpp")
list(FILTER files EXCLUDE REGEX "/testo_mostrato\\.(h|cpp)$")
list(LENGTH files count)
if(count LESS 50)
  message(FATAL_ERROR "Only ${count} files were found: they are no longer where this looks.")
endif()
foreach(file IN LISTS files)
  file(STRINGS "${file}" lines REGEX "${raw}")
  list(FILTER lines EXCLUDE REGEX "TestoPiano\\(")
  if(lines)
    list(APPEND wrong "${file}: ${lines}")
  endif()
endforeach()
if(wrong)
  list(JOIN wrong "\n" wrong)
  message(FATAL_ERROR "Shown past the gate:\n${wrong}")
endif()
message(STATUS "${count} files")
