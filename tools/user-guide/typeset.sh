#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# Makes one document of chapters in Markdown: HTML in every case, and by pandoc and weasyprint the PDF too. In FOLDER lies
# the folder guide with the style and the pictures. WORDS has what stands around the chapters in their language; a heading
# of its own takes the place of NAME, which the files have.
set -euo pipefail
if (($# < 6)) || [[ "$1" != pandoc && "$1" != lowdown ]]; then
  echo "usage: typeset.sh pandoc|lowdown NAME VERSION FOLDER WORDS CHAPTER.md..." >&2
  exit 2
fi
# Without a locale pandoc opens no file whose path has letters beyond ASCII.
export LC_ALL=C.UTF-8
tool="$1" name="$2" version="$3" folder="$4" words="$5"
shift 5
word() { sed -n "s/^$1=//p" "$words"; }
title="$(word heading)"
title="${title:-$name}"
introduction="$(word introduction)"
declare -A around=([lang]="$(word language)" [title]="$title" [introduction]="${introduction//VERSION/"$version"}"
  [warning]="$(word warning)" [contents]="$(word contents)")
template="$(dirname "${BASH_SOURCE[0]}")/document.html"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# A link to the file of another chapter leads to its heading here; one to any other file keeps its words only.
links=()
for chapter in "$@"; do
  file="$(basename "$chapter")"
  heading="$(sed -n '/^# /{s///p;q}' "$chapter")"
  anchor="$(tr '[:upper:] ' '[:lower:]-' <<<"$heading" | tr -cd '[:alnum:]-')"
  links+=(-e "s/\[$file\]($file)/[$heading](#$anchor)/g" -e "s/\]($file)/](#$anchor)/g" -e "s/\]($file#/](#/g")
done
links+=(-e 's/\[\([^]]*\)\]([^):]*\.md[^)]*)/\1/g')
for chapter in "$@"; do cat "$chapter"; echo; done | sed "${links[@]}" >"$work/text.md"

if [[ "$tool" == lowdown ]]; then
  # It names a heading by the ASCII letters alone, with single hyphens.
  LC_ALL=C sed -E -i ':letter; s/(\]\(#[^)]*)[\x80-\xff]/\1/; t letter; :hyphen; s/(\]\(#[^)]*)--/\1-/; t hyphen' "$work/text.md"
  lowdown -t html -m baseheaderlevel=2 --parse-no-metadata --parse-no-super --parse-no-strike --out-no-smarty \
    -o "$work/body.html" "$work/text.md"
  { echo '<ul>'; sed -n 's/^<h2 id="\([^"]*\)">\(.*\)<\/h2>$/<li><a href="#\1">\2<\/a><\/li>/p' "$work/body.html"; echo '</ul>'; } >"$work/toc.html"
  page="$(<"$template")"
  around+=([toc]="$(<"$work/toc.html")" [body]="$(<"$work/body.html")")
  for key in lang title introduction warning contents toc body; do page="${page//"\$$key\$"/"${around[$key]}"}"; done
  printf '%s\n' "$page" >"$folder/$name.html"
  exit
fi

# A table with a line longer than `columns` has columns as wide as its dashes instead of its cells.
pandoc --from=markdown_strict+pipe_tables+implicit_figures+auto_identifiers+gfm_auto_identifiers+lists_without_preceding_blankline+intraword_underscores+space_in_atx_header+all_symbols_escapable \
  --to=html5 --columns=10000 --preserve-tabs --shift-heading-level-by=1 --toc --toc-depth=3 --no-highlight \
  --template="$template" --metadata=pagetitle="$title" --metadata=title="$title" --metadata=lang="${around[lang]}" \
  --variable=introduction="${around[introduction]}" --variable=warning="${around[warning]}" --variable=contents="${around[contents]}" \
  --output="$folder/$name.html" "$work/text.md"
# The same bytes in every folder and at every time: pictures have names made of their addresses in a PDF, and fonts a date.
cd "$folder"
export SOURCE_DATE_EPOCH="${SOURCE_DATE_EPOCH:-0}"
# The tags carry headings, paragraphs, lists, tables and links; version 57 gives pictures no alternative texts there.
weasyprint --quiet --pdf-variant=pdf/ua-1 --base-url=file:///proc/self/cwd/ "$name.html" "$name.pdf"
