# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# What was built is hardened as cmake/Hardening.cmake says: looked up in the programs themselves.
. "$(dirname "$0")/common.sh" "$@"
shift 2

# has FILE WHAT COMMAND...: the output of COMMAND has a line that matches WHAT.
has() {
  local file="$1" what="$2"
  shift 2
  checks=$((checks + 1))
  # Not -q: a command that cannot write on has failed.
  "$@" "$file" 2>/dev/null | grep -E "$what" >/dev/null || wrong "$file: nothing matches $what in: $*"
}

for file in "$@"; do
  [[ -f "$file" ]] || { wrong "$file was not built"; continue; }
  has "$file" 'Type:[[:space:]]+DYN' readelf -hW
  has "$file" 'GNU_RELRO' readelf -lW
  has "$file" 'BIND_NOW|FLAGS_1.*NOW' readelf -dW
  has "$file" '__stack_chk_fail' readelf --dyn-syms -W
  checks=$((checks + 1))
  ! readelf -lW "$file" | grep -E 'GNU_STACK.*RWE' >/dev/null || wrong "$file has a stack that can be executed"
  checks=$((checks + 1))
  ! readelf -dW "$file" | grep 'TEXTREL' >/dev/null || wrong "$file is changed where it can be executed"
  checks=$((checks + 1))
  ! readelf -dW "$file" | grep -E 'RPATH|RUNPATH' >/dev/null || [[ "$file" == "$build"/* ]] ||
    wrong "$file looks for libraries where it was built"
  if [[ "$(uname -m)" == x86_64 ]]; then
    # Debian's start files keep the property of the whole program away; the functions have what it stands for.
    has "$file" 'endbr64' objdump -d --no-show-raw-insn
  fi
done

# The program that is the core's alone: its libraries are no one else's, so what is found comes of this build.
program="$1"
has "$program" '__[a-z]+_chk(@|$)' bash -c 'readelf --dyn-syms -W "$1" | grep -v __stack_chk | sed "s/ ([0-9]*)$//" | grep -oE "__[a-z]+_chk[@A-Z_.0-9]*"' bash
has "$program" '__glibcxx_assert_fail' readelf --dyn-syms -W
if [[ "$(uname -m)" == x86_64 ]]; then
  has "$program" 'orq?[[:space:]]+\$0x0,\(%rsp\)|or[[:space:]]+QWORD PTR \[rsp\],0x0' objdump -d --no-show-raw-insn
fi
conclude
