#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# validate.sh BUILD: holds the bill of materials of a build folder against the schema that CycloneDX publishes, which comes from npm
# into that folder. Nothing else of the house tests needs npm, so this is run by name.
set -euo pipefail
here="$(dirname "$(realpath "${BASH_SOURCE[0]}")")"
[[ -f "${1:-}/nascor.cdx.json" ]] || { echo "usage: validate.sh BUILD, where the target sbom was built in BUILD" >&2; exit 2; }
for program in node npm; do
  command -v "$program" >/dev/null || { echo "The schema is installed by npm: apt-get install nodejs npm" >&2; exit 1; }
done
modules="$1/sbom-validator"
if ! cmp -s "$here/package-lock.json" "$modules/installed"; then
  mkdir -p "$modules"
  cp "$here/package.json" "$here/package-lock.json" "$modules"
  npm --prefix "$modules" ci --ignore-scripts --no-audit --no-fund >"$modules/npm.log" 2>&1 ||
    { echo "npm could not install the schema. Its log is $modules/npm.log" >&2; exit 1; }
  cp "$modules/package-lock.json" "$modules/installed"
fi
node "$here/validate.mjs" "$modules" "$1/nascor.cdx.json"
