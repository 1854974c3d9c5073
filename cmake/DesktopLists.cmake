# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# Run by `cmake --install`. Desktops read lists of the kinds of files and applications that a prefix has. Of packages the
# system brings them up to date, and a staged installation is moved elsewhere first; what is installed for good is listed here.
if("$ENV{DESTDIR}" STREQUAL "")
  set(programs update-mime-database update-desktop-database)
  set(folders mime applications)
  foreach(program folder IN ZIP_LISTS programs folders)
    find_program(NASCOR_${program} ${program})
    get_filename_component(folder "${NASCOR_DATADIR}/${folder}" ABSOLUTE BASE_DIR "${CMAKE_INSTALL_PREFIX}")
    if(NASCOR_${program})
      message(STATUS "Updating the lists in ${folder}")
      execute_process(COMMAND "${NASCOR_${program}}" "${folder}")
    endif()
  endforeach()
endif()
