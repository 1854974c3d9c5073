# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# What every target of this project is compiled with.

add_library(nascor_options INTERFACE)

target_compile_options(nascor_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  $<$<BOOL:${NASCOR_WERROR}>:-Werror>)

# A fused multiply-add moves the last bits of the formulas, and look-ups at a table's own mean by a whole
# week. No target may use it, whatever processor it is built for; so this stands above all of them.
add_compile_options(-ffp-contract=off)

# __FILE__ and debug information name files from the source root, on every machine alike. Of several maps that match
# the last one wins with g++, so this stands before those that AddLayer.cmake gives each layer: what is set for the
# folder comes first on the command line.
add_compile_options("-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=")
# A cache of compilations names files from the build folder, to know them again in another checkout.
file(RELATIVE_PATH way_up "${CMAKE_BINARY_DIR}" "${CMAKE_SOURCE_DIR}")
if(way_up MATCHES "^(\\.\\./)*$")
  add_compile_options("-ffile-prefix-map=${way_up}=")
endif()

if(NASCOR_SANITIZE)
  target_compile_options(nascor_options INTERFACE
    -fsanitize=${NASCOR_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(nascor_options INTERFACE -fsanitize=${NASCOR_SANITIZE})
endif()

if(NASCOR_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "The fuzzers need clang: cmake --preset checked")
  endif()
endif()

if(NASCOR_COVERAGE)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    # gcc counts the edges of exceptions as branches, most of which no test can take.
    message(FATAL_ERROR "Counting lines needs clang: cmake --preset checked")
  endif()
  # LLVM_PROFILE_FILE says where profiles go, and without it they go nowhere. The place that is compiled in is a whole path:
  # a cache of compilations would take one within the build folder for a reason to compile again in another checkout.
  target_compile_options(nascor_options INTERFACE -fprofile-instr-generate=/dev/null -fcoverage-mapping
    -fcoverage-compilation-dir=.)
  target_link_options(nascor_options INTERFACE -fprofile-instr-generate)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()
