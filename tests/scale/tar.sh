# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# A tar stream of the clinic that breaks off, at twenty places anywhere and the ends of ten blocks: whole rows only, and status 1.
. "$(dirname "$0")/common.sh"
documents="$(find -L clinic -name '*.nascor' | wc -l)"
# The documents have no names here, but places.
nascor-clinic "$documents" | nascor-cli rows --tar - --fixed >whole 2>/dev/null || true
[[ "$(wc -l <whole)" == "$(wc -l <"$expected")" ]] || fail "The stream has not the rows of the folder."
bytes="$(nascor-clinic "$documents" | wc -c)"
columns="$(sed -n 1p whole | tr -dc , | wc -c)"

# rows_of BYTES [OPTION...]: of a stream that breaks off behind so many.
rows_of() {
  nascor-clinic "$documents" 2>/dev/null | head -c "$1" | nascor-cli rows --tar - --fixed "${@:2}" >said 2>errors
  return "${PIPESTATUS[2]}"
}
RANDOM=1
for ((cut = 0; cut < 30; ++cut)); do
  length=$((((RANDOM << 30) + (RANDOM << 15) + RANDOM) % (bytes - 1024)))
  ((cut < 20)) || length=$((length / 512 * 512))
  result=0
  rows_of "$length" --jobs $((cut % 2 + 1)) || result=$?
  [[ "$result" == 1 ]] || fail "Cut off behind $length bytes, rows ends with $result."
  [[ -z "$(tail -c 1 said)" ]] || fail "Cut off behind $length bytes, the last row is not whole."
  lines="$(wc -l <said)"
  # The last row may be that of the document that is cut, with nothing but its place and an error.
  last="$(tail -n 1 said)"
  if [[ "$last" != "$(sed -n "${lines}p" whole)" ]]; then
    [[ "$last" =~ ^[0-9]+,{$((columns - 1))},[^,] ]] || fail "Cut off behind $length bytes, the last row is: $last"
    lines=$((lines - 1))
  fi
  cmp <(head -n "$lines" whole) <(head -n "$lines" said) || fail "Cut off behind $length bytes, rows differ."
  # No record of a document stands without the others: what follows in the whole is of another document.
  [[ "$(sed -n "$((lines + 1))p" whole | cut -d, -f1)" != "$(sed -n "${lines}p" whole | cut -d, -f1)" ]] ||
    fail "Cut off behind $length bytes, a document has not all its rows."
done
printf '  cut at %d places of %d bytes\n' "$cut" "$bytes"
