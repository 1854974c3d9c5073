#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# xargs.sh FOLDER [PROCESSES [OPTION...]]: the rows of a folder on standard output, made by several processes with nothing but
# split and xargs. The bytes are those of `nascor-cli rows FOLDER --file path OPTION...`; the status is 1 where that is, and 2 where
# rows are missing.
set -euo pipefail
folder="$1" processes="${2:-$(nproc)}"
shift $(($# < 2 ? $# : 2))

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
status=0

# A thousand names a part, in the order of the bytes of whole paths. Hidden names are no documents.
find -H "$folder" -name '.*' ! -path "$folder" -prune -o \( -type f -o -type l \) -name '*.nascor' -print0 | LC_ALL=C sort -z |
  split -t '\0' -l 1000 -a 6 -d - "$work/names." || exit 2
part() {
  local names="$1"
  shift
  nascor-cli rows --files-from "$names" --null --file path --no-header "$@" >"$names.rows" || echo "$?" >"$names.status"
}
export -f part
find "$work" -name 'names.*' -print0 | xargs -0 -r -P "$processes" -I NAMES bash -c 'part "$@"' bash NAMES "$@" || status=2

nascor-cli rows --files-from /dev/null --file path "$@"
for rows in "$work"/names.*.rows; do [[ ! -e "$rows" ]] || cat "$rows"; done
for ended in "$work"/names.*.status; do
  [[ -e "$ended" ]] || continue
  its="$(<"$ended")"
  ((its <= status)) || status="$its"
done
((status <= 1)) || exit 2
exit "$status"
