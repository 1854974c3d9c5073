# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# The links of README.md and the other pages lead to files that are there, and to headings that are in them. The pictures that a
# page shows load fast, and there is none that no page shows.
. "$(dirname "$0")/common.sh" "$@"
cd "$root"
shopt -s extglob nullglob

# headings FILE: as the ends of links name them.
headings() { sed -n 's/^##* //p' "$1" | tr '[:upper:] ' '[:lower:]-' | tr -cd '[:alnum:]\n_-'; }

# What the build puts beside the guide is looked up by the guide's own test.
for page in *.md docs/*.md docs/*/*.md .github/*.md; do
  folder="$(dirname "$page")"
  while IFS= read -r link; do
    [[ "$link" != +([a-z]):* ]] || continue
    checks=$((checks + 1))
    file="$folder/${link%%#*}"
    [[ -n "${link%%#*}" ]] || file="$page"
    if [[ ! -e "$file" ]]; then
      wrong "$page: there is no $link"
    elif [[ "$link" == *'#'* ]] && ! headings "$file" | grep -qx -- "${link#*#}"; then
      wrong "$page: $file has no heading ${link#*#}"
    fi
  done < <(awk '/^```/ { code = !code } !code && !/^    /' "$page" | sed "s/\`[^\`]*\`//g" |
    grep -oE '\]\([^) ]+\)|(src|srcset)="[^"]+"' | sed -E 's/^\]\(//; s/\)$//; s/^(src|srcset)="//; s/"$//')
done

for picture in docs/pictures/*; do
  checks=$((checks + 2))
  (($(stat -c %s "$picture") < 150000)) || wrong "$picture has $(stat -c %s "$picture") bytes"
  grep -qF "$(basename "$picture")" -- *.md docs/*.md || wrong "$picture is shown nowhere"
done
conclude
