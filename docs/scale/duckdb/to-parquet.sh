#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# to-parquet.sh FOLDER FILE [OPTION...]: the rows of a folder as a Parquet file, by DuckDB; `npm ci` in this folder installs it. The file
# has its name when it is complete. The status is that of `nascor-cli rows FOLDER OPTION...`, or 2 when there is no file.
set -euo pipefail
folder="$1" file="$2"
shift 2
[[ -d "$folder" ]] || { echo "There is no folder $folder." >&2; exit 2; }
header="$(nascor-cli rows --files-from /dev/null "$@")" || exit 2

# Half of the rows must not pass for all: behind those of a run that died stands a line that DuckDB refuses.
rows() {
  local status=0
  nascor-cli rows "$folder" --no-header "$@" || status=$?
  ((status <= 1)) || printf '\n%s,unfinished\n' "$header"
  return "$status"
}
rows "$@" | { node "$(dirname "$0")/parquet.mjs" write "$file.begun" "$header" && mv "$file.begun" "$file" ||
  { rm -f "$file.begun"; exit 2; }; }
