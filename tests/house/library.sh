# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# The libraries as other programs take them (docs/library.md): installed in stages and moved, found by CMake, and the
# example built with them says what nascor-cli says. Nothing that is installed names a folder of this machine.
. "$(dirname "$0")/common.sh" "$@"
cli="$3" cmake="$4" compiler="$5"

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
DESTDIR="$work/stage" "$cmake" --install "$build" --prefix /opt/nascor --component development >"$work/log" 2>&1 ||
  { cat "$work/log" >&2; wrong "The component development is not installed"; }
# Where it was not installed to: what is found is found from its own place.
prefix="$work/a folder of theirs"
mv "$work/stage/opt/nascor" "$prefix"

checks=$((checks + 1))
[[ -z "$(find "$work/stage" -type f)" ]] || wrong "Installed outside of the prefix: $(find "$work/stage" -type f)"
checks=$((checks + 1))
[[ -z "$(find "$prefix" -type f ! -path '*/include/nascor/*' ! -path '*/nascor/*.a' ! -path '*/cmake/nascor/*')" ]] ||
  wrong "More than headers, libraries and a CMake package is installed"
checks=$((checks + 1))
named="$(grep -rIlF -e "$root" -e "$build" "$prefix" || true)"
[[ -z "$named" ]] || wrong "These name the folder in which they were built: $named"

# Each header finds what it includes among what is installed.
find "$prefix/include/nascor" -name '*.h' -printf '#include "%P"\n' | sort >"$work/all.cpp"
for layer in foundation calc archive model; do
  for header in ${headers_of[$layer]}; do
    checks=$((checks + 1))
    grep -qxF "#include \"$layer/$header\"" "$work/all.cpp" || wrong "$layer/$header is not installed"
  done
done
"$compiler" -std=c++20 -fsyntax-only -I "$prefix/include/nascor" "$work/all.cpp" 2>"$work/log" ||
  { cat "$work/log" >&2; wrong "The installed headers do not compile"; }

# example VERSION: configures the example, as one that asks for this version.
example() {
  rm -rf "$work/source" "$work/growth"
  cp -r "$root/resources/examples/library" "$work/source"
  sed -i "s/find_package(nascor [0-9.]*/find_package(nascor $1/" "$work/source/CMakeLists.txt"
  "$cmake" -G Ninja -S "$work/source" -B "$work/growth" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCMAKE_CXX_FLAGS="-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror" >"$work/log" 2>&1
}
version="$("$cli" --version | grep -oE '[0-9]+\.[0-9]+\.[0-9]+')"
IFS=. read -r major minor patch <<<"$version"
for unfit in "$major.$((minor + 1))" "$((major + 1)).$minor" "$major.$minor.$((patch + 1))"; do
  checks=$((checks + 1))
  ! example "$unfit" && grep -q "with requested version \"$unfit\"" "$work/log" ||
    wrong "A program that asks for version $unfit takes $version"
done
checks=$((checks + 1))
example "$major.$minor" && "$cmake" --build "$work/growth" >>"$work/log" 2>&1 ||
  { cat "$work/log" >&2; wrong "The example is not built with what is installed"; }

# as_rows: what the example prints, as nascor-cli writes the same columns.
as_rows() {
  sed -E 's/^.*: examination ([0-9]+), fetus ([0-9]+): ([0-9.-]+) weeks, ([0-9.]+) g/\1,\2,\3,\4/; s/, [a-z]+ (-?[0-9.]+)/,\1/g'
}
for sample in singleton twins quintuplets; do
  checks=$((checks + 1))
  file="$root/resources/samples/$sample.nascor"
  "$cli" rows --fixed --no-header --columns exam,fetus,ga_weeks,efw_3_g,bpd_z,hc_z,ac_z,fl_z "$file" >"$work/expected"
  "$work/growth/growth" "$file" | as_rows >"$work/said"
  [[ -s "$work/said" ]] && diff "$work/expected" "$work/said" >&2 || wrong "Of $sample.nascor the example says something else"
done

# What is no document is refused by its name, and the others are still read.
status=0
"$work/growth/growth" "$root/tests/data/a-letter.nascor" "$root/resources/samples/twins.nascor" >"$work/said" 2>"$work/refused" || status=$?
checks=$((checks + 1))
((status == 1)) && [[ -s "$work/said" ]] && grep -q 'a-letter.nascor: not a Nascor document' "$work/refused" ||
  wrong "A letter is not refused: $(cat "$work/refused")"
conclude
