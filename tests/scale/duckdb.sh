# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# DuckDB: to Parquet and back. Its npm package is in the folder of the copy of docs/scale/duckdb that DUCKDB names.
. "$(dirname "$0")/common.sh"
for kind in "--identify" "--relative-dates --standard all"; do
  read -r -a options <<<"$kind"
  rows=0
  nascor-cli rows clinic "${options[@]}" >one.csv 2>/dev/null || rows=$?
  said=0
  timed "to-parquet.sh $kind" "$DUCKDB/to-parquet.sh" clinic rows.parquet "${options[@]}" 2>errors || said=$?
  [[ "$said" == "$rows" ]] || { tail -n 20 errors; fail "to-parquet.sh ends with $said, where rows ends with $rows."; }
  timed "parquet.mjs read" node "$DUCKDB/parquet.mjs" read rows.parquet >back.csv
  equal one.csv back.csv
done

# A run that dies in the middle leaves the file as it was.
before="$(sha256sum rows.parquet)"
refuses_half "$DUCKDB/to-parquet.sh" clinic rows.parquet
[[ "$(sha256sum rows.parquet)" == "$before" && ! -e rows.parquet.begun ]] || fail "A file of a part of the rows is left."
