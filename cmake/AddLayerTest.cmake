# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# add_layer_test(LAYER SOURCES file... [LINKS library...])
#
# One test program per layer, which links that layer alone: a call upward then fails to link.
# The program runs once in each of several time zones; New York and Paris have daylight saving on
# the northern rule, Sydney on the southern, and none of them is the machine's own.
find_package(GTest REQUIRED)
find_package(Threads REQUIRED)

set(NASCOR_TEST_ZONES UTC America/New_York Europe/Paris Australia/Sydney)

# pin_tests(NAME... LABELS label... [ZONE zone] [ENVIRONMENT NAME=value...] [PROPERTIES name value...])
#
# What the tests of these names find around them, wherever they run: language, folders, default font, style and scale
# are theirs, and no display is. ENVIRONMENT comes on top.
function(pin_tests)
  cmake_parse_arguments(PIN "" "ZONE" "LABELS;ENVIRONMENT;PROPERTIES" ${ARGN})
  set(home "${CMAKE_BINARY_DIR}/tests/home")
  file(MAKE_DIRECTORY "${home}")
  set(environment "LANG=C.UTF-8" "LC_ALL=C.UTF-8" "HOME=${home}"
    "FONTCONFIG_FILE=${NASCOR_FONTS}")
  if(PIN_ZONE)
    list(APPEND environment "TZ=${PIN_ZONE}")
  endif()
  set(unset LANGUAGE DISPLAY WAYLAND_DISPLAY XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XDG_STATE_HOME
    XDG_CURRENT_DESKTOP XDG_SESSION_TYPE DESKTOP_SESSION QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME QT_FONT_DPI
    QT_SCREEN_SCALE_FACTORS QT_ENABLE_HIGHDPI_SCALING QT_AUTO_SCREEN_SCALE_FACTOR)
  list(TRANSFORM unset APPEND "=unset:")
  set_tests_properties(${PIN_UNPARSED_ARGUMENTS} PROPERTIES LABELS "${PIN_LABELS}"
    ENVIRONMENT "${environment};${PIN_ENVIRONMENT}" ENVIRONMENT_MODIFICATION "${unset}" ${PIN_PROPERTIES})
endfunction()

function(add_layer_test layer)
  cmake_parse_arguments(TEST "" "" "SOURCES;LINKS" ${ARGN})
  set(program ${layer}_tests)
  add_executable(${program} ${TEST_SOURCES})
  target_link_libraries(${program} PRIVATE
    nascor_options ${layer} test_support ${TEST_LINKS} GTest::gmock_main Threads::Threads)
  target_precompile_headers(${program} REUSE_FROM test_headers)
  foreach(zone IN LISTS NASCOR_TEST_ZONES)
    add_test(NAME "${layer}@${zone}" COMMAND ${program} --gtest_brief=1)
    pin_tests("${layer}@${zone}" ZONE ${zone} LABELS core)
  endforeach()
endfunction()
