# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# The version stands in CMakeLists.txt. What a program says, the newest releases in CHANGELOG.md and the metainfo, and Debian's
# changelog all have that one, and the first two the same day.
. "$(dirname "$0")/common.sh" "$@"
cd "$root"

version="$(sed -nE 's/^project\(nascor VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt)"
checks=$((checks + 1))
[[ "$version" =~ ^[0-9]+\.[0-9]+\.[0-9]+$ ]] || wrong "CMakeLists.txt has no version of three numbers: $version"

is_same() {
  checks=$((checks + 1))
  [[ "$2" == "$version" ]] || wrong "$1 says ${2:-nothing}, and CMakeLists.txt $version"
}
is_same "nascor-cli --version" "$("$build/bin/nascor-cli" --version | sed -n 's/^nascor-cli //p')"
[[ ! -x "$build/bin/nascor" ]] ||
  is_same "nascor --version" "$(QT_QPA_PLATFORM=offscreen "$build/bin/nascor" --version 2>/dev/null | sed -nE 's/^[Nn]ascor ([0-9.]+).*/\1/p')"

# The second section; the first is what is not yet released.
mapfile -t sections < <(sed -nE 's/^## (.*)/\1/p' CHANGELOG.md)
checks=$((checks + 1))
[[ "${sections[0]:-}" == Unreleased ]] || wrong "CHANGELOG.md does not begin with Unreleased"
is_same "CHANGELOG.md" "${sections[1]%% - *}"
release="$(grep -m1 -oE '<release [^>]*>' resources/desktop/org.nascor.Nascor.metainfo.xml)"
is_same "The metainfo" "$(sed -nE 's/.* version="([^"]*)".*/\1/p' <<<"$release")"
checks=$((checks + 1))
[[ "${sections[1]##* - }" == "$(sed -nE 's/.* date="([^"]*)".*/\1/p' <<<"$release")" ]] ||
  wrong "CHANGELOG.md and the metainfo release $version on other days: ${sections[1]}, $release"
if [[ -f debian/changelog ]]; then
  is_same "debian/changelog" "$(sed -nE '1s/^nascor \(([0-9.]+)(-[^)]*)?\) .*/\1/p' debian/changelog)"
fi

# Each section is dated, and none is newer than the one above it.
days="$(printf '%s\n' "${sections[@]:1}" | sed -nE 's/^[0-9]+\.[0-9]+\.[0-9]+ - ([0-9]{4}-[0-9]{2}-[0-9]{2})$/\1/p')"
checks=$((checks + 2))
(($(wc -l <<<"$days") == ${#sections[@]} - 1)) || wrong "CHANGELOG.md has a section that is no \"VERSION - DAY\""
sort -rc <<<"$days" 2>/dev/null || wrong "The sections of CHANGELOG.md are not newest first"
conclude
