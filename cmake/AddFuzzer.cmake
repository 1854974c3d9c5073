# add_fuzzer(NAME SOURCES file... [LINKS library...])
#
# One libFuzzer program, bin/NAME. Its seed corpus lies in fuzz/corpus/NAME/. The layers under it are
# instrumented too when NASCOR_FUZZ is on, or the fuzzer would be blind.
function(add_fuzzer name)
  cmake_parse_arguments(FUZZER "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${FUZZER_SOURCES})
  target_link_libraries(${name} PRIVATE nascor_options ${FUZZER_LINKS})
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  set_property(GLOBAL APPEND PROPERTY NASCOR_FUZZERS ${name})
endfunction()

# Writes the names of all fuzzers, one a line, for .ci/run.
function(write_fuzzer_list file)
  get_property(fuzzers GLOBAL PROPERTY NASCOR_FUZZERS)
  list(JOIN fuzzers "\n" text)
  file(CONFIGURE OUTPUT "${file}" CONTENT "${text}\n" @ONLY)
endfunction()
