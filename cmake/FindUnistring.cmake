# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# Finds libunistring, as Unistring::Unistring. The build reads this, and so does the installed package of the libraries.
find_library(UNISTRING_LIBRARY unistring)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Unistring REQUIRED_VARS UNISTRING_LIBRARY)
mark_as_advanced(UNISTRING_LIBRARY)
if(Unistring_FOUND AND NOT TARGET Unistring::Unistring)
  add_library(Unistring::Unistring UNKNOWN IMPORTED)
  set_target_properties(Unistring::Unistring PROPERTIES IMPORTED_LOCATION "${UNISTRING_LIBRARY}")
endif()
