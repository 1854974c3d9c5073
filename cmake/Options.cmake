# What every target of this project is compiled with.

add_library(nascor_options INTERFACE)

target_compile_options(nascor_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  $<$<BOOL:${NASCOR_WERROR}>:-Werror>
  # A fused multiply-add moves the last bits of the formulas, and look-ups at a table's own mean by a
  # whole week. No target may use it, whatever processor it is built for.
  -ffp-contract=off
  # Diagnostics, __FILE__ and coverage name files from the source root, on every machine alike.
  # The last map that matches wins; AddLayer.cmake adds one per layer behind this one.
  "-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=")

if(NASCOR_SANITIZE)
  target_compile_options(nascor_options INTERFACE
    -fsanitize=${NASCOR_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(nascor_options INTERFACE -fsanitize=${NASCOR_SANITIZE})
endif()

if(NASCOR_COVERAGE)
  target_compile_options(nascor_options INTERFACE -fprofile-instr-generate -fcoverage-mapping)
  target_link_options(nascor_options INTERFACE -fprofile-instr-generate)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()
