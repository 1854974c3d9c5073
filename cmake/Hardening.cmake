# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# What makes a slip in memory end the program instead of doing harm: records of patients come from files of strangers. The
# test house.hardening looks at what was built. Debian's compilers make programs that can be loaded anywhere by themselves.
include(CheckCXXCompilerFlag)

# Where returns and calls through pointers may lead, and stacks that grow by more than a page: as the processor permits.
foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection -mbranch-protection=standard)
  string(MAKE_C_IDENTIFIER "NASCOR_TAKES${flag}" known)
  check_cxx_compiler_flag("-Werror ${flag}" ${known})
  if(${known})
    add_compile_options(${flag})
  endif()
endforeach()

# An index beyond the end of a container ends the program.
add_compile_definitions(_GLIBCXX_ASSERTIONS)

# So does a call of the C library that writes beyond an object whose size the optimiser knows. The sanitizers do that better.
if(NOT NASCOR_SANITIZE)
  add_compile_options("$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:SHELL:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>")
endif()

# Nothing that the loader fills in can be written afterwards.
add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
