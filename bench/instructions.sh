#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# instructions.sh BENCH-CORE: the instructions that each work of bench-core takes. They are the difference of two runs under
# callgrind, so what a program does once does not count.
# instructions.sh --check BENCH-CORE: the same of those in ceilings.txt; fails when one is above its ceiling.
set -euo pipefail
check=""
[[ "${1:-}" != --check ]] || { check=yes; shift; }
program="$1"
ceilings="$(dirname "${BASH_SOURCE[0]}")/ceilings.txt"
cost() { valgrind --tool=callgrind --callgrind-out-file=/dev/null "$program" "$1" "$2" 2>&1 | awk '/Collected/ { print $4 }'; }
instructions() {
  local few many
  few="$(cost "$1" 5)"
  many="$(cost "$1" 25)"
  # A program that does not know this work, or no valgrind.
  [[ -n "$few" && -n "$many" ]] && ((many > few)) || { echo "instructions.sh: $1 was not counted" >&2; return 1; }
  echo $(((many - few) / 20))
}

if [[ -z "$check" ]]; then
  for name in encode decode look-up scan calc encode-protobuf decode-protobuf encode-boost decode-boost; do
    [[ -n "$(cost "$name" 1)" ]] && "$program" "$name" 1 >/dev/null 2>&1 || continue
    printf '%-16s %d\n' "$name" "$(instructions "$name")"
  done
  exit 0
fi

above=0
while read -r name ceiling; do
  taken="$(instructions "$name")"
  verdict=""
  ((taken <= ceiling)) || { verdict=", ABOVE ITS CEILING"; above=1; }
  printf '%-8s %8d of %d%s\n' "$name" "$taken" "$ceiling" "$verdict"
done < <(grep -vE '^(#|$)' "$ceilings")
((above == 0)) || { echo "A work takes more instructions than $ceilings permits." >&2; exit 1; }
