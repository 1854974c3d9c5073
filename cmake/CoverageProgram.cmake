# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# A program that holds every layer whole. Test programs hold of a layer what they use, so a function that no test
# knows would be in none of them, and coverage would not count it.
function(add_coverage_program)
  get_property(layers GLOBAL PROPERTY NASCOR_LAYERS)
  set(whole "")
  set(files "")
  foreach(layer IN LISTS layers)
    get_target_property(type ${layer} TYPE)
    if(type STREQUAL "STATIC_LIBRARY")
      list(APPEND whole ${layer})
      list(APPEND files "$<TARGET_FILE:${layer}>")
    endif()
  endforeach()
  file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/every_layer.cpp" CONTENT "int main() {}\n" @ONLY)
  add_executable(every_layer "${CMAKE_BINARY_DIR}/every_layer.cpp")
  target_link_libraries(every_layer PRIVATE nascor_options ${whole})
  target_link_options(every_layer PRIVATE -Wl,--whole-archive ${files} -Wl,--no-whole-archive)
  set_property(TARGET every_layer APPEND PROPERTY LINK_DEPENDS "${files}")
endfunction()
