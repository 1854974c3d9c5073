# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# add_shared_headers(NAME header... LINKS library...): headers of libraries that many sources read, compiled once. A target
# takes them by `target_precompile_headers(target REUSE_FROM NAME)`, and must be compiled with the same options.
function(add_shared_headers name)
  cmake_parse_arguments(HEADERS "" "" "LINKS" ${ARGN})
  file(CONFIGURE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp" CONTENT "" @ONLY)
  add_library(${name} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
  target_link_libraries(${name} PRIVATE nascor_options ${HEADERS_LINKS})
  target_precompile_headers(${name} PRIVATE ${HEADERS_UNPARSED_ARGUMENTS})
  # A cache of compilations brings the compiled headers back with another time.
  target_compile_options(${name} PRIVATE "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
endfunction()
