#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# draw-rooms.sh LAYERS.TXT PICTURE.SVG: draws the rooms of a build by Graphviz; the target `rooms` does it.
set -euo pipefail
new="$(mktemp)"
trap 'rm -f "$new"' EXIT
awk -f "$(dirname "${BASH_SOURCE[0]}")/rooms.awk" "$1" | dot -Tsvg >"$new"
cat "$new" >"$2"
