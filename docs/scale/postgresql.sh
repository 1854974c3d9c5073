#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# postgresql.sh FOLDER [OPTION...]: puts the rows of a folder, with reference IDs and notes, into the table `rows` of the database that
# PGHOST, PGDATABASE and the other variables of PostgreSQL name, in place of an older one. Others see the old rows until all are there,
# and go on seeing them when it fails, with status 2. Else the status is that of `nascor-cli rows FOLDER --identify OPTION...`.
set -euo pipefail
folder="$1"
shift
options=(--identify "$@")
[[ -d "$folder" ]] || { echo "There is no folder $folder." >&2; exit 2; }
header="$(nascor-cli rows --files-from /dev/null "${options[@]}")" || exit 2

columns="$(tr ',' '\n' <<<"$header" | sed -E '
  s/^(exam|fetus|days_to_edd)$/& integer/
  s/^(exam_date|edd)$/& date/
  s/^(file|standard|reference_id|note|warning|error)$/& text/
  s/^[^ ]+$/& double precision/' | paste -sd,)"

# Half of the rows must not pass for all: behind those of a run that died stands a line that \copy refuses.
rows() {
  local status=0
  nascor-cli rows "$folder" "${options[@]}" || status=$?
  ((status <= 1)) || printf '\n%s,unfinished\n' "$header"
  return "$status"
}
rows | {
  PGOPTIONS="-c client_min_messages=warning" psql --no-psqlrc --quiet --single-transaction -v ON_ERROR_STOP=1 \
    -c 'drop table if exists rows' -c "create table rows ($columns)" -c '\copy rows from pstdin with (format csv, header)' \
    -c 'create index on rows (edd)' -c 'create index on rows (file)' -c 'analyze rows' || exit 2
}
