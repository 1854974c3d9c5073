# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# The program that writes synthetic clinics: a folder and a stream hold the same documents, and slices make the whole.
# Arguments: the folder of the programs.
set -euo pipefail
bin="$1"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

rows() { "$bin/nascor-cli" rows --file path "$@" 2>/dev/null || (($? == 1)); }
"$bin/nascor-clinic" 1010 --seed 5 | rows --tar - >"$work/stream"
"$bin/nascor-clinic" 600 --seed 5 --out "$work/clinic"
"$bin/nascor-clinic" 410 --seed 5 --first 600 --out "$work/clinic"
(cd "$work/clinic" && rows ./*) >"$work/folder"
(($(wc -l <"$work/stream") > 3000)) || { echo "There are hardly any rows."; exit 1; }
diff <(sed 's/"//g' "$work/stream") <(sed 's/"//g; s|^\./||' "$work/folder")
! "$bin/nascor-clinic" 10 >/dev/full 2>/dev/null || { echo "A full disk is no success."; exit 1; }
