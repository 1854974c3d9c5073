# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# add_catalogues(TARGET table.ts...): compiles tables of texts for programs without Qt, which find them by gettext beside
# themselves: nascor_XX.ts becomes share/locale/XX/LC_MESSAGES/nascor.mo, in the build folder and where it is installed.
# Without the tools for it there are none, and such programs speak English.
include(GNUInstallDirs)

# /usr/bin/lconvert may be a switch between versions of Qt that are not installed.
find_program(NASCOR_LCONVERT NAMES lconvert PATHS /usr/lib/qt6/bin /usr/lib64/qt6/bin NO_DEFAULT_PATH)
find_program(NASCOR_LCONVERT NAMES lconvert-qt6 lconvert6)
find_program(NASCOR_MSGFMT NAMES msgfmt)

function(add_catalogues target)
  add_custom_target(${target} ALL)
  if(NOT NASCOR_LCONVERT OR NOT NASCOR_MSGFMT)
    if(ARGN)
      message(STATUS "The command line will speak English alone: lconvert of Qt 6 or msgfmt of gettext is missing")
    endif()
    return()
  endif()
  file(RELATIVE_PATH beside "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LOCALEDIR}")
  foreach(table IN LISTS ARGN)
    string(REGEX REPLACE "^.*/nascor_([^/]*)\\.ts$" "\\1" language "${table}")
    cmake_path(SET folder NORMALIZE "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${beside}/${language}/LC_MESSAGES")
    set(between "${CMAKE_CURRENT_BINARY_DIR}/nascor_${language}.po")
    file(MAKE_DIRECTORY "${folder}")
    add_custom_command(OUTPUT "${folder}/nascor.mo" DEPENDS "${table}" VERBATIM
      COMMAND "${NASCOR_LCONVERT}" -i "${table}" -o "${between}"
      COMMAND "${NASCOR_MSGFMT}" -o "${folder}/nascor.mo" "${between}")
    # A target of its own orders the command for all that need the file.
    add_custom_target(${target}_${language} DEPENDS "${folder}/nascor.mo")
    add_dependencies(${target} ${target}_${language})
    install(FILES "${folder}/nascor.mo" DESTINATION "${CMAKE_INSTALL_LOCALEDIR}/${language}/LC_MESSAGES")
  endforeach()
endfunction()
