# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# ways.sh SOURCE BUILD CMAKE build|prefix: the programs where the build makes them, or as `cmake --install` puts them into a
# prefix. Packages meet the same in debian/tests.
set -euo pipefail
cd "$1"
build="$(realpath "$2")" cmake="$3" way="$4"
programs="$build/bin"
prefix=()
if [[ "$way" == prefix ]]; then
  work="$(mktemp -d)"
  trap 'rm -rf "$work"' EXIT
  "$cmake" --install "$build" --prefix "$work/a prefix" >"$work/log" 2>&1 || { cat "$work/log" >&2; exit 1; }
  programs="$work/a prefix/bin"
  prefix=("$work/a prefix")
fi
tests/ways/command-line "$programs" "${prefix[@]}"
[[ ! -x "$build/bin/nascor" ]] || tests/ways/desktop "$programs" "${prefix[@]}"
