# add_layer(NAME [DIRECTORY dir] USES layer... [LINKS library...] HEADERS file... [SOURCES file...])
#
# One static library per layer. A layer sees its own headers and those of the layers it USES, and no
# others: its only include root is a folder in the build tree that holds one link, to this layer's
# sources. `#include "app/NCDocument.h"` in a lower layer therefore fails with "No such file".
# Had the roots been src/ itself, every layer would see every other.
function(add_layer name)
  cmake_parse_arguments(LAYER "" "DIRECTORY" "USES;LINKS;HEADERS;SOURCES" ${ARGN})
  if(NOT LAYER_DIRECTORY)
    set(LAYER_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
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
  list(TRANSFORM LAYER_HEADERS PREPEND "${root}/${name}/")
  target_sources(${name} ${scope}
    FILE_SET HEADERS BASE_DIRS "${root}" FILES ${LAYER_HEADERS})
  # moc would run once on the file and once on its link.
  set_source_files_properties(${LAYER_HEADERS} PROPERTIES SKIP_AUTOMOC ON)
  set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)

  file(RELATIVE_PATH inSource "${CMAKE_SOURCE_DIR}" "${LAYER_DIRECTORY}")
  target_compile_options(${name} ${scope} "-ffile-prefix-map=${root}/${name}/=${inSource}/")
  if(LAYER_SOURCES)
    target_link_libraries(${name} PUBLIC nascor_options ${LAYER_USES} PRIVATE ${LAYER_LINKS})
  else()
    target_link_libraries(${name} INTERFACE nascor_options ${LAYER_USES} ${LAYER_LINKS})
  endif()
  set_property(GLOBAL APPEND PROPERTY NASCOR_LAYERS ${name})
endfunction()
