# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# The walls between the layers: what the sources include, what each compile command lets them see, and that a header
# beyond a wall is not found. Also that add_layer's own lists are right, and that no option lets the compiler move the
# last bits of a formula.
. "$(dirname "$0")/common.sh" "$@"
cd "$root"

# Qt may be named in the layers of this folder, and in their tests.
qt_folder=src/platform/qt/

# --- What the sources include: never by "..", from a layer only what its add_layer names.
earlier=" "
for layer in "${layers[@]}"; do
  for used in ${uses_of[$layer]}; do
    checks=$((checks + 1))
    [[ "$earlier" == *" $used "* ]] || wrong "$layer uses $used, which does not stand below it"
  done
  earlier+="$layer "

  may_name=" $layer ${uses_of[$layer]} "
  while IFS=: read -r file line include; do
    checks=$((checks + 1))
    include="${include#*\"}"
    include="${include%%\"*}"
    if [[ "$include" != */* ]]; then
      # What moc and uic make stands in no layer.
      [[ "${folder_of[$layer]}" == "$qt_folder"* && "$include" =~ ^(ui_.*\.h|.*\.moc)$ ]] ||
        wrong "$file:$line: \"$include\" names no layer"
    elif [[ "$may_name" != *" ${include%%/*} "* ]]; then
      wrong "$file:$line: \"$include\" is of a layer that the add_layer of $layer does not name in USES"
    fi
  done < <(grep -rnE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' "${folder_of[$layer]}" --include='*.h' --include='*.cpp')

  # A header with a source of its name compiles alone, because that source includes it first.
  while IFS= read -r header; do
    checks=$((checks + 1))
    name="${header#"${folder_of[$layer]}"/}"
    [[ " ${headers_of[$layer]} " == *" $name "* ]] || wrong "$header is missing in HEADERS"
    source="${header%.h}.cpp"
    [[ ! -f "$source" ]] || [[ "$(grep -m1 '^#include' "$source")" == "#include \"$layer/$name\"" ]] ||
      wrong "$source does not include $layer/$name first"
  done < <(find "${folder_of[$layer]}" -name '*.h')

  if [[ "${folder_of[$layer]}" != "$qt_folder"* ]]; then
    places=("${folder_of[$layer]}")
    [[ -d "tests/$layer" ]] && places+=("tests/$layer")
    while IFS= read -r found; do
      wrong "$found: Qt is named outside its layer"
    done < <(grep -rnE '\bQt|\bQ[A-Z][a-z]+[A-Za-z]*\b' "${places[@]}" --include='*.h' --include='*.cpp')
  fi
done
while IFS= read -r found; do
  wrong "$found: an include goes by \"..\""
done < <(grep -rnE '^[[:space:]]*#[[:space:]]*include.*\.\.' src tests tools fuzz bench --include='*.h' --include='*.cpp' 2>/dev/null)

# --- What the compile commands hold: no include path shows all of src/, and the options of arithmetic stand. `find`
# prints a line "COUNT", one "FOLDER FILE" for each include path, and one "! SENTENCE" for what is wrong.
find_in_commands() {
  compile_commands | awk -v map="-ffile-prefix-map=$root/=" '
    NR % 2 { file = $0; next }
    {
      ++count; contract = "(not given)"; mapped = 0
      for (i = 1; i <= NF; ++i) {
        word = $i
        if (word ~ /^(-I|-iquote|-isystem|-idirafter)$/) folders[$(++i)] = file
        else if (sub(/^(-I|-iquote|-isystem|-idirafter)/, "", word)) folders[word] = file
        else if (word == map) {
          # The last map that matches wins: behind a layer'\''s own it would name its headers by their links.
          if (mapped) print "! " file ": the map of the source root stands behind a layer'\''s map"
        } else if (word ~ /^-ffile-prefix-map=/) mapped = 1
        else if (sub(/^-ffp-contract=/, "", word)) contract = word
        else if (word ~ /^(-ffast-math|-Ofast|-march=.*|-mfma.*|-mavx.*|-funsafe-math-optimizations|-fassociative-math|-freciprocal-math|-ffinite-math-only|-ffp-model=.*)$/)
          print "! " file " is compiled with " word
      }
      if (contract != "off") print "! " file " is compiled with -ffp-contract=" contract
    }
    END { print count; for (folder in folders) print folder, folders[folder] }'
}
while read -r folder file; do
  case "$folder" in
    !) wrong "$file"; continue ;;
    [0-9]*) checks=$((checks + folder)); continue ;;
  esac
  checks=$((checks + 1))
  path="$(realpath -m "$folder")"
  case "$path/" in
    "$build"/include/*/) ;;
    "$build"/include/ | "$root"/ | "$root"/src/*) wrong "$file is compiled with the include path $folder" ;;
  esac
  # A folder above the checkout shows it too.
  [[ "$root/" != "$path/"?* ]] || wrong "$file is compiled with the include path $folder"
done < <(find_in_commands)

# --- What each layer sees: the headers that it may use are found, those of the others are not. One run of the
# preprocessor a layer.
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
declare -A command_of=()
while IFS='|' read -r layer command; do command_of[$layer]="$command"; done < <(
  compile_commands | awk -v build="$build/" -v root="$root/" -v table="$build/layers.txt" '
    BEGIN { while ((getline line < table) > 0) { split(line, part, "|"); folder[part[1]] = root part[2] "/" } }
    NR % 2 { file = $0; next }
    {
      for (layer in folder)
        if (!(layer in found) && (index(file, folder[layer]) == 1 || index(file, "/" layer "_verify_interface_header_sets/"))) {
          found[layer] = 1; print layer "|" $0
        }
    }')
for layer in "${layers[@]}"; do
  command="${command_of[$layer]:-}"
  if [[ "$command" != *" -c "* ]]; then
    wrong "$layer: no compile command found"
    continue
  fi
  visible=" $layer $(reaches "$layer")"
  for other in "${layers[@]}"; do
    for header in ${headers_of[$other]}; do
      checks=$((checks + 1))
      if [[ "$visible" == *" $other "* ]]; then
        printf '#if !__has_include("%s/%s")\n#error "%s does not find %s/%s, which it may use"\n#endif\n' \
          "$other" "$header" "$layer" "$other" "$header"
      else
        printf '#if __has_include("%s/%s")\n#error "%s sees %s/%s, which it may not"\n#endif\n' \
          "$other" "$header" "$layer" "$other" "$header"
      fi
    done
  done >"$work/$layer.cpp"
  # Without the source at its end and the object file before it.
  said="$(cd "$build" && eval "${command% -o * -c *} -E '$work/$layer.cpp' -o /dev/null" 2>&1)" ||
    wrong "$(grep -o '#error.*' <<<"$said" | sort -u || printf '%s: the preprocessor fails: %s' "$layer" "$said")"
done
conclude
