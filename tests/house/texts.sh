# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# The table of visible texts holds those of the sources, no more and no fewer.
. "$(dirname "$0")/common.sh" "$@"

lupdate="$3"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

for table in "$root"/resources/texts/*.ts; do
  checks=$((checks + 1))
  cp "$table" "$work/table.ts"
  "$BASH" "$root/cmake/gather-texts.sh" "$lupdate" "$work/table.ts" || wrong "lupdate cannot read the sources"
  diff -u "$table" "$work/table.ts" >"$work/difference" ||
    wrong "${table#"$root"/} is behind the sources. Build the target texts. What differs:"$'\n'"$(grep '^[-+]' "$work/difference")"
done
conclude
