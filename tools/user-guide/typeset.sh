#!/usr/bin/env bash
# Makes one document of chapters in Markdown: HTML in every case, and by pandoc and weasyprint the PDF too. In FOLDER lies
# the folder guide with the style and the pictures.
set -euo pipefail
if (($# < 5)) || [[ "$1" != pandoc && "$1" != lowdown ]]; then
  echo "usage: typeset.sh pandoc|lowdown TITLE VERSION FOLDER CHAPTER.md..." >&2
  exit 2
fi
# Without a locale pandoc opens no file whose path has letters beyond ASCII.
export LC_ALL=C.UTF-8
tool="$1" title="$2" version="$3" folder="$4"
shift 4
template="$(dirname "${BASH_SOURCE[0]}")/document.html"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# A link to the file of another chapter leads to its heading here; one to any other file keeps its words only.
links=()
for chapter in "$@"; do
  name="$(basename "$chapter")"
  heading="$(sed -n '/^# /{s///p;q}' "$chapter")"
  anchor="$(tr '[:upper:] ' '[:lower:]-' <<<"$heading" | tr -cd '[:alnum:]-')"
  links+=(-e "s/\[$name\]($name)/[$heading](#$anchor)/g" -e "s/\]($name)/](#$anchor)/g" -e "s/\]($name#/](#/g")
done
links+=(-e 's/\[\([^]]*\)\]([^):]*\.md[^)]*)/\1/g')
for chapter in "$@"; do cat "$chapter"; echo; done | sed "${links[@]}" >"$work/text.md"

if [[ "$tool" == lowdown ]]; then
  lowdown -t html -m baseheaderlevel=2 --parse-no-metadata --parse-no-super --parse-no-strike --out-no-smarty \
    -o "$work/body.html" "$work/text.md"
  { echo '<ul>'; sed -n 's/^<h2 id="\([^"]*\)">\(.*\)<\/h2>$/<li><a href="#\1">\2<\/a><\/li>/p' "$work/body.html"; echo '</ul>'; } >"$work/toc.html"
  sed -e "s/\$title\\$/$title/" -e "s/\$version\\$/$version/" -e "/\$toc\\$/{r $work/toc.html" -e 'd}' \
    -e "/\$body\\$/{r $work/body.html" -e 'd}' "$template" >"$folder/$title.html"
  exit
fi

# A table with a line longer than `columns` has columns as wide as its dashes instead of its cells.
pandoc --from=markdown_strict+pipe_tables+implicit_figures+auto_identifiers+gfm_auto_identifiers+lists_without_preceding_blankline+intraword_underscores+space_in_atx_header+all_symbols_escapable \
  --to=html5 --columns=10000 --preserve-tabs --shift-heading-level-by=1 --toc --toc-depth=3 --no-highlight \
  --template="$template" --variable=version="$version" --metadata=pagetitle="$title" --metadata=title="$title" \
  --output="$folder/$title.html" "$work/text.md"
# The same bytes in every folder and at every time: pictures have names made of their addresses in a PDF, and fonts a date.
cd "$folder"
export SOURCE_DATE_EPOCH="${SOURCE_DATE_EPOCH:-0}"
# The tags carry headings, paragraphs, lists, tables and links; version 57 gives pictures no alternative texts there.
weasyprint --quiet --pdf-variant=pdf/ua-1 --base-url=file:///proc/self/cwd/ "$title.html" "$title.pdf"
