#!/usr/bin/env bash
# parallel.sh FOLDER [PROCESSES [OPTION...]]: the rows of a folder on standard output, made by several processes by GNU parallel,
# which can spread them over machines too (--sshlogin; the folder must be there by the same name). The bytes are those of
# `nascor-cli rows FOLDER --file path OPTION...`; the status is 1 where that is.
set -euo pipefail
folder="$1" processes="${2:-$(nproc)}"
shift $(($# < 2 ? $# : 2))

nascor-cli rows --files-from /dev/null --file path "$@"
status=0
# A thousand names at a time, in the order of the bytes of whole paths; --keep-order keeps the rows in it.
find "$folder" -name '.*' ! -path "$folder" -prune -o \( -type f -o -type l \) -name '*.nascor' -print0 | LC_ALL=C sort -z |
  parallel --will-cite --jobs "$processes" --pipe --recend '\0' -N 1000 --keep-order --quote \
    nascor-cli rows --files-from - --null --file path --no-header "$@" || status=1
exit "$status"
