# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# Sourced by the tests of the house: `root` is the top of the checkout, `build` the build folder.
set -euo pipefail
root="$(realpath "$1")"
build="$(realpath "$2")"
failures=0
checks=0

# wrong SENTENCE: notes a failure and goes on.
wrong() {
  printf '%s\n' "$*" >&2
  failures=$((failures + 1))
}

# conclude: the verdict. A test that looked at nothing has failed.
conclude() {
  ((checks > 0)) || wrong "Nothing was checked."
  printf '%d checked, %d wrong\n' "$checks" "$failures"
  ((failures == 0))
}

# The table that CMake wrote of the add_layer calls, lowest layer first.
declare -a layers=()
declare -A folder_of=() uses_of=() headers_of=()
while IFS='|' read -r name folder uses headers; do
  [[ -n "$name" ]] || continue
  layers+=("$name")
  folder_of[$name]="$folder"
  uses_of[$name]="${uses//,/ }"
  headers_of[$name]="${headers//,/ }"
done <"$build/layers.txt"

# reaches LAYER: the layers that LAYER uses, directly or through others.
reaches() {
  local layer found=" " queue=(${uses_of[$1]})
  while ((${#queue[@]})); do
    layer="${queue[0]}"
    queue=("${queue[@]:1}")
    [[ "$found" == *" $layer "* ]] && continue
    found+="$layer "
    queue+=(${uses_of[$layer]:-})
  done
  printf '%s' "$found"
}

# The compile commands as pairs of lines: the file, then its command as a shell would read it.
compile_commands() {
  awk '
    /^ *"command": "/ { command = $0; sub(/^ *"command": "/, "", command); sub(/",?$/, "", command)
                        gsub(/\\"/, "\"", command); gsub(/\\\\/, "\\", command) }
    /^ *"file": "/    { file = $0; sub(/^ *"file": "/, "", file); sub(/",?$/, "", file); print file; print command }
  ' "$build/compile_commands.json"
}
