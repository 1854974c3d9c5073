# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# add_layer(NAME [DIRECTORY dir] USES layer... [LINKS library...] HEADERS file... [SOURCES file...])
#
# One static library per layer. A layer sees its own headers and those of the layers it USES, and no
# others: its only include root is a folder in the build tree that holds one link, to this layer's
# sources. `#include "app/NCDocument.h"` in a lower layer therefore fails with "No such file".
# Had the roots been src/ itself, every layer would see every other.
#
# USES names every layer whose headers this layer's files include; tests/house compares. LINKS names
# libraries that are not ours.
function(add_layer name)
  cmake_parse_arguments(LAYER "" "DIRECTORY" "USES;LINKS;HEADERS;SOURCES" ${ARGN})
  if(NOT LAYER_DIRECTORY)
    set(LAYER_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
  endif()
  if(LAYER_UNPARSED_ARGUMENTS OR NOT LAYER_HEADERS)
    message(FATAL_ERROR "add_layer(${name}): ${LAYER_UNPARSED_ARGUMENTS} is no part of it, or HEADERS is missing")
  endif()

  set(root "${CMAKE_BINARY_DIR}/include/${name}")
  file(MAKE_DIRECTORY "${root}")
  file(CREATE_LINK "${LAYER_DIRECTORY}" "${root}/${name}" SYMBOLIC)

  if(LAYER_SOURCES)
    add_library(${name} STATIC ${LAYER_SOURCES})
    set(scope PUBLIC)
  else()
    add_library(${name} INTERFACE)
    set(scope INTERFACE)
  endif()
  # A source includes the header of its own name first, which tests/house checks, so that header compiles alone. The
  # target all_verify_interface_header_sets compiles the others alone.
  set(headers "")
  set(alone "")
  foreach(header IN LISTS LAYER_HEADERS)
    string(REGEX REPLACE "\\.h$" ".cpp" source "${header}")
    if(source IN_LIST LAYER_SOURCES)
      list(APPEND headers "${root}/${name}/${header}")
    else()
      list(APPEND alone "${root}/${name}/${header}")
    endif()
  endforeach()
  target_sources(${name} ${scope}
    FILE_SET HEADERS BASE_DIRS "${root}" FILES ${headers}
    FILE_SET without_source TYPE HEADERS BASE_DIRS "${root}" FILES ${alone})
  set_target_properties(${name} PROPERTIES
    VERIFY_INTERFACE_HEADER_SETS ON INTERFACE_HEADER_SETS_TO_VERIFY without_source)
  # moc would run once on the file and once on its link.
  set_source_files_properties(${headers} ${alone} PROPERTIES SKIP_AUTOMOC ON)

  file(RELATIVE_PATH inSource "${CMAKE_SOURCE_DIR}" "${LAYER_DIRECTORY}")
  file(RELATIVE_PATH inBuild "${CMAKE_BINARY_DIR}" "${root}/${name}")
  target_compile_options(${name} ${scope}
    "$<BUILD_INTERFACE:-ffile-prefix-map=${root}/${name}/=${inSource}/>"
    "$<BUILD_INTERFACE:-ffile-prefix-map=${inBuild}/=${inSource}/>")
  # The options are those of this project, and not of what takes an installed layer (cmake/InstallLibrary.cmake).
  if(LAYER_SOURCES)
    target_link_libraries(${name} PUBLIC $<BUILD_INTERFACE:nascor_options> ${LAYER_USES} PRIVATE ${LAYER_LINKS})
  else()
    target_link_libraries(${name} INTERFACE $<BUILD_INTERFACE:nascor_options> ${LAYER_USES} ${LAYER_LINKS})
  endif()

  if(NASCOR_FUZZ AND LAYER_SOURCES)
    # The fuzzers follow the branches that they take through the layers.
    target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link)
  endif()

  list(JOIN LAYER_USES "," uses)
  list(JOIN LAYER_HEADERS "," headers)
  set_property(GLOBAL APPEND PROPERTY NASCOR_LAYERS ${name})
  set_property(GLOBAL APPEND_STRING PROPERTY NASCOR_LAYER_TABLE "${name}|${inSource}|${uses}|${headers}\n")
endfunction()

# Writes the table of layers, lowest first, for the tests of the layer wall: name|folder|USES|HEADERS,
# the last two separated by commas.
function(write_layer_table file)
  get_property(table GLOBAL PROPERTY NASCOR_LAYER_TABLE)
  file(CONFIGURE OUTPUT "${file}" CONTENT "${table}" @ONLY)
endfunction()
