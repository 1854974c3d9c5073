# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# What is read beside the programs: in the order of the checkout, so that what the pages say of files and the commands
# that they show hold where they are installed too. Guide and handbook: tools/user-guide.
include(GNUInstallDirs)
install(FILES "${CMAKE_SOURCE_DIR}/LICENSE" "${CMAKE_SOURCE_DIR}/README.md" "${CMAKE_SOURCE_DIR}/CHANGELOG.md"
  "${CMAKE_SOURCE_DIR}/SECURITY.md"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(DIRECTORY "${CMAKE_SOURCE_DIR}/docs" DESTINATION "${CMAKE_INSTALL_DOCDIR}" USE_SOURCE_PERMISSIONS)
install(DIRECTORY "${CMAKE_SOURCE_DIR}/resources/examples" "${CMAKE_SOURCE_DIR}/resources/samples"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}/resources" USE_SOURCE_PERMISSIONS)
