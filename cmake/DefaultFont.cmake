# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# default_font(FAMILY OUTPUT): writes the settings of a system whose default font that is, and puts their path into OUTPUT.
function(default_font family output)
  string(REPLACE " " "" files "${family}")
  # The path as XML has it.
  set(cache "${CMAKE_BINARY_DIR}/fonts/cache")
  string(REPLACE "&" "&amp;" cache "${cache}")
  string(REPLACE "<" "&lt;" cache "${cache}")
  set(path "${CMAKE_BINARY_DIR}/fonts/${files}.conf")
  configure_file("${CMAKE_SOURCE_DIR}/cmake/fonts.conf.in" "${path}" @ONLY)
  set(${output} "${path}" PARENT_SCOPE)
endfunction()

# With these the guide has the same bytes, and a test the same measures, on every machine.
default_font("DejaVu Sans" NASCOR_FONTS)
