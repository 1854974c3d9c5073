# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# The bill of materials names every program and every library that these ask for, with versions and licences, and is the same each
# time. tests/house/sbom/validate.sh holds it against the published schema.
. "$(dirname "$0")/common.sh" "$@"
bill="$3"
shift 3

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
printf '#pragma once\n' >"$work/own.h"
modules=()
mapfile -t modules < <(find "$build" -path '*/nascor/nascor-*.so' | sort)
write() { env "${@:2}" "$root/tools/sbom.sh" 1.2.3 "$1" --header own 4.5 "$work/own.h" "${programs[@]}" --loads "${modules[@]}"; }
programs=("$@")
expect() {
  checks=$((checks + 1))
  "${@:2}" || wrong "$1"
}

write "$work/one" SOURCE_DATE_EPOCH=0
write "$work/two" SOURCE_DATE_EPOCH=0 TZ=Asia/Tokyo LANG=C.UTF-8
expect "The same programs give another bill" cmp "$work/one" "$work/two"
write "$work/three" -u SOURCE_DATE_EPOCH
expect "Without SOURCE_DATE_EPOCH more than the time is different" cmp <(grep -v timestamp "$work/one") "$work/three"

# Where there is no dpkg, each library stands for itself.
mkdir "$work/bin"
for tool in awk basename bash cp cut date env grep ldd mktemp readelf realpath rm sed sha256sum sort; do
  ln -s "$(type -P "$tool")" "$work/bin/$tool"
done
write "$work/other" PATH="$work/bin"
part="$(grep -A1 '"bom-ref": "libstdc++"' "$work/other" || true)"
expect "Without dpkg the library of C++ has no version of its own: $part" grep -qE '"version": "6\.[0-9.]+"' <<<"$part"
expect "Without dpkg there are packages" [ "$(grep -c purl "$work/other")" = 0 ]

said="$("$root/tools/sbom.sh" 1.2.3 "$work/none" "$work/gone" 2>&1)" && wrong "A program that is not there is no error"
expect "A program that is not there is not named: $said" [ "$said" = "sbom: There is no $work/gone." ]
expect "Half a bill was written" [ ! -e "$work/none" ]

asked="$(for file in "${programs[@]}" "${modules[@]}"; do readelf -d "$file"; done | sed -nE 's/.*\(NEEDED\).*\[(.*)\]/\1/p' | sort -u)"
said="$(python3 - "$work/one" "$bill" "$(printf '%s\n' "${programs[@]}" "${modules[@]}")" "$asked" 2>&1 <<'PYTHON'
import json, re, shutil, sys

bill, built = (json.load(open(path)) for path in sys.argv[1:3])
ours = [path.rpartition("/")[2] for path in sys.argv[3].split("\n")]
wrong = []


def check(holds, sentence):
    wrong.extend([] if holds else [sentence])


check((bill["bomFormat"], bill["specVersion"], bill["version"]) == ("CycloneDX", "1.5", 1), "it is no CycloneDX 1.5")
check(re.fullmatch(r"urn:uuid:[0-9a-f]{8}-[0-9a-f]{4}-[1-8][0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}", bill["serialNumber"]),
      "its number is no UUID: " + bill["serialNumber"])
check(bill["metadata"]["timestamp"] == "1970-01-01T00:00:00Z", "its time is not that of SOURCE_DATE_EPOCH")
parts = {part["bom-ref"]: part for part in bill["components"]}
check(len(parts) == len(bill["components"]), "two parts have one name")
graph = {entry["ref"]: entry["dependsOn"] for entry in bill["dependencies"]}
check(set(graph) == {*parts, "Nascor"}, "parts and dependencies do not name the same")
for ref, uses in graph.items():
    check(set(uses) <= set(parts), f"{ref} depends on what is no part")
    check(len(set(uses)) == len(uses), f"{ref} depends on a part twice")
check(sorted(graph["Nascor"]) == sorted(ours), f"the programs are {graph['Nascor']}")
files = {}
for ref, part in parts.items():
    check(part["version"], f"{ref} has no version")
    check(len(part["licenses"]) == 1, f"{ref} has no licence")
    if ref in ours:
        check(part["version"] == "1.2.3", f"{ref} has the version {part['version']}")
        continue
    for name in next(entry["value"] for entry in part["properties"] if entry["name"] == "nascor:files").split(", "):
        files[name] = ref
    if shutil.which("dpkg-query") and ref != "own":
        check(part["purl"].startswith("pkg:deb/"), f"{ref} is of no package")
check((parts["own"]["version"], "purl" in parts["own"]) == ("4.5", False), "a header that is of no package is " + str(parts["own"]))
# The dynamic loader is asked for, and maps itself.
for name in sys.argv[4].split("\n"):
    check(name in files or name.startswith("ld-linux"), f"{name} is asked for, and in no part")
check("libstdc++.so.6" in files and files["libstdc++.so.6"] in graph["nascor-cli"], "nascor-cli does without the library of C++")
built = {part["bom-ref"]: part for part in built["components"]}
check(set(parts) - {"own"} <= set(built), f"the bill of the build lacks {set(parts) - {'own'} - set(built)}")
for ref in set(built) - set(parts):
    check("headers of" in str(built[ref].get("properties")), f"the bill of the build has {ref}, which no program asks for")
print("\n".join(wrong), end="")
PYTHON
)"
expect "The bill of materials: $said" [ -z "$said" ]
conclude
