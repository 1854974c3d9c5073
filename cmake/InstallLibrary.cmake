# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# install_library(LAYER...): what other programs take by find_package(nascor), docs/library.md: these layers as static
# libraries nascor::LAYER, with their headers. The layers that they use must be among them. An install component of its
# own, `development`.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

function(install_library)
  set(headers "${CMAKE_INSTALL_INCLUDEDIR}/nascor")
  set(package "${CMAKE_INSTALL_LIBDIR}/cmake/nascor")
  # The names of the files, such as libarchive.a, are others' too, so they lie in a folder of this project.
  install(TARGETS ${ARGN} EXPORT nascor-targets
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}/nascor" COMPONENT development
    FILE_SET HEADERS DESTINATION "${headers}" COMPONENT development
    FILE_SET without_source DESTINATION "${headers}" COMPONENT development)
  foreach(layer IN LISTS ARGN)
    target_compile_features(${layer} PUBLIC cxx_std_20)
  endforeach()
  install(EXPORT nascor-targets NAMESPACE nascor:: DESTINATION "${package}" COMPONENT development)

  set(config "${CMAKE_BINARY_DIR}/nascor-config.cmake")
  configure_package_config_file("${CMAKE_SOURCE_DIR}/cmake/nascor-config.cmake.in" "${config}"
    INSTALL_DESTINATION "${package}")
  # Static libraries and the headers of one installation belong together; a program is compiled anew for another. What
  # compiles with 0.1.0 compiles with each 0.1.x.
  write_basic_package_version_file("${CMAKE_BINARY_DIR}/nascor-config-version.cmake" COMPATIBILITY SameMinorVersion)
  install(FILES "${config}" "${CMAKE_BINARY_DIR}/nascor-config-version.cmake" "${CMAKE_SOURCE_DIR}/cmake/FindUnistring.cmake"
    DESTINATION "${package}" COMPONENT development)
  add_dependencies(installed ${ARGN})
endfunction()
