# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# Every file says whose it is and under which licence: by two lines at its top, or in REUSE.toml. And tools/licence-lines, which
# writes and checks these lines, in a small checkout: it writes once, keeps first lines first, and names what it cannot write.
. "$(dirname "$0")/common.sh" "$@"

checks=$((checks + 1))
said="$("$root/tools/licence-lines" --check 2>&1)" || wrong "$said"

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cd "$work"
mkdir tools LICENSES docs
cp "$root/tools/licence-lines" tools/
cp "$root/LICENSE" .
cp "$root/LICENSE" LICENSES/MIT.txt
annotate() {
  printf 'version = 1\n[[annotations]]\npath = [%s]\nSPDX-File%s = "2026 The Nascor developers"\nSPDX-License-%s = "%s"\n' \
    "$1" CopyrightText Identifier "${2:-MIT}" >REUSE.toml
}
licence_lines() {
  status=0
  said="$(tools/licence-lines "$@" 2>&1)" || status=$?
}
expect() {
  checks=$((checks + 1))
  "${@:2}" || wrong "$1. Said: $said"
}
said_has() { [[ "$said" == *"$1"* ]]; }
status_is() { [[ "$status" == "$1" ]]; }
line() { [[ "$(sed -n "$2p" "$1")" == "$3" ]]; }

annotate '"docs/*.json"'
printf '{}\n' >docs/table.json
printf 'int one();\n' >one.h
printf '#!/bin/sh\necho\n' >run
printf '<?xml version="1.0"?>\n<a/>\n' >a.xml
licence_lines --check
expect "Missing lines are a failure" status_is 1
expect "Their files are named" said_has "one.h"
expect "A check writes nothing" line one.h 1 'int one();'
licence_lines
expect "Writing them succeeds" status_is 0
expect "A source begins with the holder" line one.h 1 "// SPDX-File""CopyrightText: 2026 The Nascor developers"
expect "The licence follows" line one.h 2 "// SPDX-License-""Identifier: MIT"
expect "The text stands below an empty line" line one.h 4 'int one();'
expect "A script begins with its shell" line run 1 '#!/bin/sh'
expect "Its lines follow" line run 3 "# SPDX-License-""Identifier: MIT"
expect "XML begins with its version" line a.xml 1 '<?xml version="1.0"?>'
expect "What REUSE.toml names is left alone" line docs/table.json 1 '{}'
before="$(cat one.h run a.xml | cksum)"
licence_lines --check
expect "Then nothing is missing" status_is 0
licence_lines
expect "They are written once" [ "$before" = "$(cat one.h run a.xml | cksum)" ]

# A build lies within the checkout and is no part of it.
mkdir build debian-build
touch build/x debian-build/x debian-build/CMakeCache.txt
licence_lines --check
expect "Builds are passed over" status_is 0

printf '{}\n' >loose.json
licence_lines --check
expect "A file without a licence is named" said_has "loose.json takes no comment"
rm loose.json
printf 'int two();\n// SPDX-License-''Identifier: GPL-3.0-only\n' >two.h
licence_lines --check
expect "A licence elsewhere in the file is named" said_has "two.h: has SPDX lines elsewhere"
rm two.h
annotate '"docs/*.json", "gone/**"'
licence_lines --check
expect "A pattern without files is named" said_has "gone/**"
annotate '"docs/*.json"' GPL-3.0-only
licence_lines --check
expect "Another licence is named" said_has "another than that of the sources"
annotate '"docs/*.json"'
printf 'x' >>LICENSES/MIT.txt
licence_lines --check
expect "Two texts of the licence are named" said_has "are not the same"
conclude
