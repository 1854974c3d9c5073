# What every compile command must hold and must not: no include path shows all of src/ to a layer, and no option
# lets the compiler move the last bits of a formula.
. "$(dirname "$0")/common.sh" "$@"

# check_include FILE FOLDER
check_include() {
  local path
  path="$(realpath -m "$2")"
  case "$path/" in
    "$build"/include/*/) ;;
    "$build"/include/ | "$root"/ | "$root"/src/*) wrong "$1 is compiled with the include path $2" ;;
  esac
  # A folder above the checkout shows it too.
  [[ "$root/" == "$path/"?* ]] && wrong "$1 is compiled with the include path $2"
  return 0
}

while IFS= read -r file && IFS= read -r command; do
  checks=$((checks + 1))
  eval "words=($command)"
  contract=""
  layer_map=""
  for ((i = 0; i < ${#words[@]}; ++i)); do
    word="${words[i]}"
    case "$word" in
      -I | -iquote | -isystem | -idirafter) check_include "$file" "${words[i + 1]}" ;;
      -I?*) check_include "$file" "${word#-I}" ;;
      -iquote?*) check_include "$file" "${word#-iquote}" ;;
      -isystem?*) check_include "$file" "${word#-isystem}" ;;
      -idirafter?*) check_include "$file" "${word#-idirafter}" ;;
      -ffile-prefix-map="$root"/=)
        # The last map that matches wins: behind a layer's own it would name its headers by their links.
        [[ -z "$layer_map" ]] || wrong "$file: the map of the source root stands behind a layer's map" ;;
      -ffile-prefix-map=*) layer_map="$word" ;;
      -ffp-contract=*) contract="${word#*=}" ;;
      -ffast-math | -Ofast | -march=* | -mfma* | -mavx* | -funsafe-math-optimizations | -fassociative-math | \
        -freciprocal-math | -ffinite-math-only | -ffp-model=*)
        wrong "$file is compiled with $word" ;;
    esac
  done
  [[ "$contract" == off ]] || wrong "$file is compiled with -ffp-contract=${contract:-(not given)}"
done < <(compile_commands)
conclude
