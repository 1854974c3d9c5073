# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# Sourced by the tests of docs/scale, which .ci/scale runs: `scripts` is that folder, `work` a folder of the test's own, which holds a
# link to the clinic; `expected` has its rows as one process writes them, with --file path --fixed, `status` that process's status.
# The programs are in PATH.
set -euo pipefail
scripts="$1" work="$2" expected="$3" status="$4"
tests="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
cd "$work"

fail() { printf '%s\n' "$*" >&2; exit 1; }

# until_true SECONDS COMMAND...: waits for a command to succeed.
until_true() {
  local end=$((SECONDS + $1))
  shift
  until "$@" >/dev/null 2>&1; do
    ((SECONDS < end)) || return 1
    sleep 0.05
  done
}

# free_port: a port that nothing listens to.
free_port() {
  python3 -c 'import socket; port = socket.create_server(("127.0.0.1", 0)); print(port.getsockname()[1])'
}

# equal EXPECTED SAID: the same lines, byte for byte, and some.
equal() {
  [[ -s "$1" ]] || fail "There is nothing to compare with in $1."
  LC_ALL=C sort -o "$1.sorted" "$1"
  LC_ALL=C sort -o "$2.sorted" "$2"
  cmp "$1.sorted" "$2.sorted" || fail "$2 differs from $1."
}

# timed NAME COMMAND...: says how long it took.
timed() {
  local name="$1" started="$EPOCHREALTIME" result=0
  shift
  "$@" || result=$?
  awk -v name="$name" -v from="$started" -v to="$EPOCHREALTIME" 'BEGIN { printf "  %s: %.1f s\n", name, to - from }' >&3
  return "$result"
}
exec 3>&1

# same_rows COMMAND...: the command prints the rows of one process and ends as it did.
same_rows() {
  local said=0
  timed "$(basename "$1")" "$@" >said 2>errors || said=$?
  [[ "$said" == "$status" ]] || { tail -n 20 errors >&2; fail "$1 ends with $said, where one process ends with $status."; }
  equal "$expected" said
}

# refuses_no_folder COMMAND...: the command ends with 2 where there is no folder.
refuses_no_folder() {
  local said=0
  "$@" >refused 2>errors || said=$?
  [[ "$said" == 2 && -s errors ]] || fail "$1 ends with $said where there is no folder."
}

# refuses_half COMMAND...: the command ends with 2 where `rows` dies behind a whole row.
refuses_half() {
  local said=0
  mkdir dying
  cat >dying/nascor-cli <<DYING
#!/usr/bin/env bash
[[ " \$* " != *" /dev/null "* ]] || exec "$(type -P nascor-cli)" "\$@"
"$(type -P nascor-cli)" "\$@" | head -n 50
kill -KILL \$\$
DYING
  chmod +x dying/nascor-cli
  PATH="$work/dying:$PATH" "$@" >half 2>errors || said=$?
  [[ "$said" == 2 ]] || { tail -n 20 errors >&2; fail "$1 ends with $said where rows died."; }
}
