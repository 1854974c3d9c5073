#!/usr/bin/env bash
# instructions.sh BENCH-CORE: the instructions that each work of bench-core takes. They are the difference of two runs under
# callgrind, so what a program does once does not count.
set -euo pipefail
program="$1"
cost() { valgrind --tool=callgrind --callgrind-out-file=/dev/null "$program" "$1" "$2" 2>&1 | awk '/Collected/ { print $4 }'; }
for name in encode decode look-up calc; do
  few="$(cost "$name" 5)"
  many="$(cost "$name" 25)"
  printf '%-8s %d\n' "$name" $(((many - few) / 20))
done
