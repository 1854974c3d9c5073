# What the sources include: never by "..", from a layer only what its add_layer names, the toolkit in its layer
# alone. Also that add_layer's own lists are right: no arrow upward, no header forgotten.
. "$(dirname "$0")/common.sh" "$@"
cd "$root"

# The toolkit may be named in its own layer and in that layer's tests.
toolkit_layer=qt

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
      [[ "$layer" == "$toolkit_layer" && "$include" =~ ^(ui_.*\.h|.*\.moc)$ ]] ||
        wrong "$file:$line: \"$include\" names no layer"
    elif [[ "$may_name" != *" ${include%%/*} "* ]]; then
      wrong "$file:$line: \"$include\" is of a layer that the add_layer of $layer does not name in USES"
    fi
  done < <(grep -rnE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' "${folder_of[$layer]}" --include='*.h' --include='*.cpp')

  while IFS= read -r header; do
    checks=$((checks + 1))
    header="${header#"${folder_of[$layer]}"/}"
    [[ " ${headers_of[$layer]} " == *" $header "* ]] || wrong "${folder_of[$layer]}/$header is missing in HEADERS"
  done < <(find "${folder_of[$layer]}" -name '*.h')

  if [[ "$layer" != "$toolkit_layer" ]]; then
    places=("${folder_of[$layer]}")
    [[ -d "tests/$layer" ]] && places+=("tests/$layer")
    while IFS= read -r found; do
      wrong "$found: the toolkit is named outside its layer"
    done < <(grep -rnE '\bQt|\bQ[A-Z][a-z]+[A-Za-z]*\b' "${places[@]}" --include='*.h' --include='*.cpp')
  fi
done

while IFS= read -r found; do
  wrong "$found: an include goes by \"..\""
done < <(grep -rnE '^[[:space:]]*#[[:space:]]*include.*\.\.' src tests tools fuzz bench --include='*.h' --include='*.cpp' 2>/dev/null)
conclude
