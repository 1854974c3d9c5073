#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# parallel.sh FOLDER [PROCESSES [OPTION...]]: the rows of a folder on standard output, made by several processes by GNU parallel,
# which can spread them over machines too (--sshlogin; the folder must be there by the same name). The bytes are those of
# `nascor-cli rows FOLDER --file path OPTION...`; the status is 1 where that is, and 2 where rows are missing.
set -euo pipefail
folder="$1" processes="${2:-$(nproc)}"
shift $(($# < 2 ? $# : 2))

nascor-cli rows --files-from /dev/null --file path "$@"
log="$(mktemp)"
trap 'rm -f "$log"' EXIT
# A thousand names at a time, in the order of the bytes of whole paths; --keep-order keeps the rows in it.
find -H "$folder" -name '.*' ! -path "$folder" -prune -o \( -type f -o -type l \) -name '*.nascor' -print0 | LC_ALL=C sort -z |
  parallel --will-cite --jobs "$processes" --pipe --recend '\0' -N 1000 --keep-order --quote --joblog "$log" \
    nascor-cli rows --files-from - --null --file path --no-header "$@" || [[ "${PIPESTATUS[*]:0:2}" == "0 0" ]] || exit 2
# How each process ended, and by which signal, stands in the seventh and eighth column.
awk 'NR > 1 && $7 > status { status = $7 } NR > 1 && $8 > 0 { status = 2 } END { exit NR == 0 || status > 1 ? 2 : status }' "$log"
