# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# The picture of the rooms shows those of the build and their arrows: each name and each arrow is looked up in it. A build
# without some rooms looks for its own alone.
. "$(dirname "$0")/common.sh" "$@"
picture="$root/docs/pictures/rooms.svg"

drawn="$(awk -f "$root/tools/rooms.awk" "$build/layers.txt" |
  sed -nE 's/^  ("[^"]+" -> "[^"]+");$/\1/p; s/^  subgraph ("cluster [^"]+") \{ label=[^;]*; style=[^;]*; color=[^;]*;/\1\n/p' |
  tr ';' '\n' | sed -nE 's/^ *//; s/ *\}$//; s/"//g; /./p' | sort)"
shown="$(sed -nE 's/^<title>(.*)<\/title>$/\1/p' "$picture" | sed 's/&#45;/-/g; s/&gt;/>/g; s/\([^ ]\)->/\1 -> /; /^rooms$/d' | sort)"
checks=$((checks + $(wc -l <<<"$drawn")))
# The groups stand in every drawing.
missing="$(comm -23 <(echo "$drawn") <(echo "$shown"))"
[[ -z "$missing" ]] || wrong "docs/pictures/rooms.svg is behind the build; with everything configured, build the target rooms. It lacks:"$'\n'"$missing"
if [[ " ${layers[*]} " == *" typeset "*" dicom_net "*" program "*" synthetic_clinic "* ]]; then
  beyond="$(comm -13 <(echo "$drawn") <(echo "$shown"))"
  [[ -z "$beyond" ]] || wrong "docs/pictures/rooms.svg shows what the build does not have:"$'\n'"$beyond"
fi
((checks >= 2 * ${#layers[@]})) || wrong "Of ${#layers[@]} rooms and their arrows only $checks were looked up."

# ARCHITECTURE.md has a row for each room.
for layer in "${layers[@]}"; do
  checks=$((checks + 1))
  name="${folder_of[$layer]#src/}"
  grep -qE "^\| [^|]*\`$name\`[^|]* \|" "$root/ARCHITECTURE.md" || wrong "ARCHITECTURE.md has no row for \`$name\`"
done
conclude
