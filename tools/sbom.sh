#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# sbom.sh VERSION OUT.json [--header NAME VERSION FILE]... PROGRAM... [--loads MODULE...]: writes what the programs are made of, as a bill of materials
# in CycloneDX 1.5: the programs, the libraries that they link or that these link, and those of which a header alone is compiled in.
# What stands behind `--loads` are modules, which the programs may load. Where the system has dpkg, a library stands for its Debian package,
# with its version and the licence that its copyright file gives; elsewhere for itself, with the version in its file's name.
# The same files give the same bytes; with SOURCE_DATE_EPOCH the time stands in it.
set -euo pipefail
export LC_ALL=C
(($# >= 3)) || { echo "usage: sbom.sh VERSION OUT.json [--header NAME VERSION FILE]... PROGRAM... [--loads MODULE...]" >&2; exit 2; }
version="$1" out="$2"
shift 2
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

fail() { printf 'sbom: %s\n' "$*" >&2; exit 1; }

# The system, as package URLs name it.
distribution="$(. /etc/os-release 2>/dev/null && printf '%s-%s' "${ID:-}" "${VERSION_ID:-}" || true)"

# owners PATH...: the Debian package of each file, as lines "PACKAGE<tab>PATH"; none for a file that is of no package. Where /lib is a
# link to /usr/lib, dpkg knows a file by the one name or the other.
owners() {
  command -v dpkg-query >/dev/null || return 0
  local path
  for path; do
    printf '%s\t%s\n' "$path" "$path" "$(realpath "$path")" "$path" "/usr$path" "$path" "${path#/usr}" "$path"
  done >"$work/names"
  cut -f 1 "$work/names" | { xargs -r dpkg-query -S 2>/dev/null || true; } |
    awk -F'\t' 'NR == FNR { of[$1] = $2; next }
      !/^diversion/ && match($0, /: \//) {
        name = substr($0, RSTART + 2); package = substr($0, 1, RSTART - 1); sub(/,.*/, "", package)
        if (name in of && !(of[name] in said)) { said[of[name]] = 1; print package "\t" of[name] }
      }' "$work/names" -
}

# percent TEXT: as it stands in a package URL.
percent() { sed 's/%/%25/g; s/+/%2B/g; s/:/%3A/g; s/ /%20/g' <<<"$1"; }

# licence_of PACKAGE: "id X", "expression X" or "name X" of the package's files in general, from its copyright file.
licence_of() {
  local file="/usr/share/doc/${1%%:*}/copyright"
  [[ -r "$file" ]] || { echo "name unknown"; return; }
  awk -v file="$file" '
    BEGIN {
      split("Expat=MIT MIT=MIT Apache-2.0=Apache-2.0 BSD-2-clause=BSD-2-Clause BSD-3-clause=BSD-3-Clause BSL-1.0=BSL-1.0 ISC=ISC " \
        "Zlib=Zlib zlib=Zlib LGPL-2=LGPL-2.0-only LGPL-2+=LGPL-2.0-or-later LGPL-2.1=LGPL-2.1-only LGPL-2.1+=LGPL-2.1-or-later " \
        "LGPL-3=LGPL-3.0-only LGPL-3+=LGPL-3.0-or-later GPL-2=GPL-2.0-only GPL-2+=GPL-2.0-or-later GPL-3=GPL-3.0-only " \
        "GPL-3+=GPL-3.0-or-later MPL-2.0=MPL-2.0 FSFULLR=FSFULLR CC0-1.0=CC0-1.0 curl=curl", pairs, " ")
      for (i in pairs) { split(pairs[i], pair, "="); spdx[pair[1]] = pair[2] }
    }
    NR == 1 && !/^Format/ { print "name see " file; said = 1; exit }
    /^Files:/ { general = $2 == "*" && NF == 2 }
    general && /^License:/ {
      said = 1
      words = split($0, word, " ")
      text = ""; wanted = 0; known = 1
      for (i = 2; i <= words; ++i) {
        if (word[i] == "and" || word[i] == "or") { text = text " " toupper(word[i]); wanted = i + 1; continue }
        if (!(word[i] in spdx) || (i > 2 && i != wanted)) known = 0
        text = text (i > 2 ? " " : "") spdx[word[i]]
      }
      # "and" and "or" beside each other would ask for parentheses that are not there.
      if (text ~ / AND / && text ~ / OR /) known = 0
      sub(/^License: */, "")
      print known ? (text ~ / / ? "expression " : "id ") text : "name " $0
      exit
    }
    END { if (!said) print "name see " file }' "$file"
}

# note_parts: a row for each package and each library that is of none, and for each what stands for it, in part_of.
note_parts() {
  local path package name has architecture source
  while IFS=$'\t' read -r package path; do package_of[$path]="$package"; done < <(owners "$@")
  for path; do
    package="${package_of[$path]:-}"
    if [[ -n "$package" ]]; then
      part_of[$path]="${package%%:*}"
    elif [[ -n "${header_of[$path]:-}" ]]; then
      part_of[$path]="${header_of[$path]%% *}"
      printf 'library\t%s\t%s\t\tname unknown\t\n' "${part_of[$path]}" "${header_of[$path]##* }"
    else
      name="$(basename "$(realpath "$path")")"
      part_of[$path]="${name%%.so*}"
      has=unknown
      [[ "$name" != *.so.* ]] || has="${name#*.so.}"
      printf 'library\t%s\t%s\t\tname unknown\t\n' "${name%%.so*}" "$has"
    fi
    name="$(basename "$path")"
    printf 'file\t%s\t%s\n' "${part_of[$path]}" "${header_of[$path]:+headers of }${header_of[$path]:-$name}"
  done >>"$work/rows"
  ((${#package_of[@]})) || return 0
  printf '%s\n' "${package_of[@]}" | sort -u |
    xargs dpkg-query -W -f '${Package}\t${Version}\t${Architecture}\t${source:Package} ${source:Version}\n' |
    while IFS=$'\t' read -r name has architecture source; do
      printf 'package\t%s\t%s\tpkg:deb/%s/%s@%s?arch=%s&distro=%s\t%s\t%s\n' "$name" "$has" "${distribution%%-*}" "$(percent "$name")" \
        "$(percent "$has")" "$architecture" "$distribution" "$(licence_of "$name")" "$source"
    done >>"$work/rows"
}

# needed FILE: the names of the libraries that it asks for itself.
needed() { readelf -d "$1" 2>/dev/null | sed -nE 's/.*\(NEEDED\).*\[(.*)\]/\1/p'; }

declare -A path_of=() part_of=() package_of=() header_of=()
programs=() modules=()
is_module=""
while (($#)); do
  case "$1" in
    --header) header_of[$4]="$2 $3"; shift 4 ;;
    --loads) is_module=yes; shift ;;
    *) [[ -f "$1" ]] || fail "There is no $1."
       programs+=("$1"); [[ -z "$is_module" ]] || modules+=("$(basename "$1")"); shift ;;
  esac
done
((${#programs[@]})) || fail "No program was named."

for program in "${programs[@]}"; do
  name="$(basename "$program")"
  kind=application
  [[ " ${modules[*]:-} " != *" $name "* ]] || kind=library
  # Without a checksum: what is installed is stripped later.
  printf 'program\t%s\t%s\t%s\n' "$name" "$kind" "$version" >>"$work/rows"
  if [[ "$kind" == application ]]; then
    for module in "${modules[@]:-}"; do [[ -z "$module" ]] || printf 'loads\t%s\t%s\n' "$name" "$module" >>"$work/rows"; done
  fi
  libraries="$(ldd "$program")" || fail "The libraries of $program cannot be listed."
  ! grep -q 'not found' <<<"$libraries" || fail "$program needs a library that is not here: $(grep 'not found' <<<"$libraries" | head -n 1)"
  while read -r soname _ path _; do path_of[$soname]="$path"; done < <(grep ' => /' <<<"$libraries")
done
note_parts "${path_of[@]}" "${!header_of[@]}"

# uses NAME FILE: a row for each part that the file asks for itself.
uses() {
  local soname part
  while IFS= read -r soname; do
    [[ -n "${path_of[$soname]:-}" ]] || continue
    part="${part_of[${path_of[$soname]}]}"
    [[ "$part" == "$1" ]] || printf 'uses\t%s\t%s\n' "$1" "$part"
  done < <(needed "$2") >>"$work/rows"
}
for program in "${programs[@]}"; do uses "$(basename "$program")" "$program"; done
for path in "${path_of[@]}"; do uses "${part_of[$path]}" "$path"; done
# Of these nothing but a header is known; every program may have it in itself.
for path in "${!header_of[@]}"; do
  for program in "${programs[@]}"; do
    name="$(basename "$program")"
    [[ " ${modules[*]:-} " == *" $name "* ]] || printf 'uses\t%s\t%s\n' "$name" "${part_of[$path]}" >>"$work/rows"
  done
done

# The number of the document is made of what it says.
number="$(sort "$work/rows" | sha256sum | sed -E 's/^(.{8})(.{4}).(.{3}).(.{3})(.{12}).*/\1-\2-8\3-8\4-\5/')"
moment=""
[[ -z "${SOURCE_DATE_EPOCH:-}" ]] || moment="$(date -u -d "@$SOURCE_DATE_EPOCH" +%Y-%m-%dT%H:%M:%SZ)"
sort -u "$work/rows" | awk -F'\t' -v version="$version" -v number="$number" -v moment="$moment" '
  function quoted(text) { gsub(/\\/, "\\\\", text); gsub(/"/, "\\\"", text); gsub(/[\001-\037]/, " ", text); return "\"" text "\"" }
  function licence(text,   kind, value) {
    kind = text; sub(/ .*/, "", kind); value = text; sub(/^[a-z]+ /, "", value)
    return kind == "expression" ? "[{\"expression\": " quoted(value) "}]" : "[{\"license\": {" quoted(kind) ": " quoted(value) "}}]"
  }
  $1 == "program" { part[++parts] = $2; row[$2] = $0 }
  $1 == "package" || $1 == "library" { part[++parts] = $2; row[$2] = $0 }
  $1 == "file" { files[$2] = files[$2] (files[$2] == "" ? "" : ", ") $3 }
  $1 == "uses" || $1 == "loads" { uses[$2] = uses[$2] (uses[$2] == "" ? "" : ", ") quoted($3) }
  END {
    print "{"
    print "  \"bomFormat\": \"CycloneDX\",\n  \"specVersion\": \"1.5\",\n  \"serialNumber\": \"urn:uuid:" number "\",\n  \"version\": 1,"
    print "  \"metadata\": {"
    if (moment != "") print "    \"timestamp\": \"" moment "\","
    print "    \"component\": {\"type\": \"application\", \"bom-ref\": \"Nascor\", \"name\": \"Nascor\", \"version\": " quoted(version) ","
    print "      \"supplier\": {\"name\": \"The Nascor developers\"}, \"licenses\": [{\"license\": {\"id\": \"MIT\"}}]}"
    print "  },\n  \"components\": ["
    for (i = 1; i <= parts; ++i) {
      name = part[i]
      split(row[name], field, "\t")
      if (field[1] == "program") {
        ours = ours (ours == "" ? "" : ", ") quoted(name)
        printf "    {\"type\": %s, \"bom-ref\": %s, \"name\": %s, \"version\": %s, \"licenses\": [{\"license\": {\"id\": \"MIT\"}}]}", \
          quoted(field[3]), quoted(name), quoted(name), quoted(version)
      } else {
        printf "    {\"type\": \"library\", \"bom-ref\": %s, \"name\": %s, \"version\": %s, \"licenses\": %s,\n", \
          quoted(name), quoted(name), quoted(field[3]), licence(field[5])
        if (field[4] != "") printf "     \"purl\": %s,\n", quoted(field[4])
        printf "     \"properties\": [{\"name\": \"nascor:files\", \"value\": %s}", quoted(files[name])
        if (field[6] != "") printf ", {\"name\": \"nascor:source\", \"value\": %s}", quoted(field[6])
        printf "]}"
      }
      print i < parts ? "," : ""
    }
    print "  ],\n  \"dependencies\": ["
    print "    {\"ref\": \"Nascor\", \"dependsOn\": [" ours "]},"
    for (i = 1; i <= parts; ++i)
      print "    {\"ref\": " quoted(part[i]) ", \"dependsOn\": [" uses[part[i]] "]}" (i < parts ? "," : "")
    print "  ]\n}"
  }' >"$work/bom.json"
cp "$work/bom.json" "$out"
