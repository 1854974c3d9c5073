# A file of a layer that includes a header of a layer it may not use does not compile, because the header is not
# found. The same file with the headers that it may use does compile, so it fails for that reason only.
. "$(dirname "$0")/common.sh" "$@"

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cd "$build"

# command_of LAYER: how this build compiles a file of the layer, or, where it has no source, a header of it alone.
command_of() {
  local file command headers_alone=""
  while IFS= read -r file && IFS= read -r command; do
    case "$file" in
      "$root/${folder_of[$1]}"/*.cpp) printf '%s' "$command"; return ;;
      *"/$1_verify_interface_header_sets/"*) headers_alone="$command" ;;
    esac
  done < <(compile_commands)
  printf '%s' "$headers_alone"
}

for layer in "${layers[@]}"; do
  command="$(command_of "$layer")"
  if [[ "$command" != *" -c "* ]]; then
    wrong "$layer: no compile command found"
    continue
  fi
  # Without the source at its end and the object file before it.
  command="${command% -o * -c *}"

  visible=" $layer $(reaches "$layer")"
  for seen in $visible; do
    for header in ${headers_of[$seen]}; do printf '#include "%s/%s"\n' "$seen" "$header"; done
  done >"$work/$layer.cpp"
  checks=$((checks + 1))
  eval "$command -fsyntax-only $work/$layer.cpp" >"$work/said" 2>&1 ||
    wrong "$layer: the headers that it may use do not compile: $(head -n 5 "$work/said")"

  for other in "${layers[@]}"; do
    [[ "$visible" == *" $other "* ]] && continue
    for header in ${headers_of[$other]}; do
      checks=$((checks + 1))
      # The forbidden include comes first, so that the compiler stops there and the test is quick.
      { printf '#include "%s/%s"\n' "$other" "$header"; cat "$work/$layer.cpp"; } >"$work/upward.cpp"
      if eval "$command -E $work/upward.cpp -o $work/preprocessed" >"$work/said" 2>&1; then
        wrong "$layer: sees $other/$header, which it may not"
      elif ! grep -q -E "$other/$header.*(No such file or directory|file not found)" "$work/said"; then
        wrong "$layer: $other/$header fails, but for another reason: $(head -n 3 "$work/said")"
      fi
      break
    done
  done
done
conclude
