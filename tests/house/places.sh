# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# Where things stand: each layer of src/ in a folder of its own name, and the text of a gestation in one source alone,
# so that screen, report and scripts cannot come to differ.
. "$(dirname "$0")/common.sh" "$@"
cd "$root"

for layer in foundation model calc framework charts app scripting; do
  checks=$((checks + 1))
  [[ "${folder_of[$layer]:-}" == "src/$layer" ]] || wrong "The layer $layer stands in ${folder_of[$layer]:-no folder}"
done
checks=$((checks + 1))
[[ -d resources ]] || wrong "There is no folder resources"

# A format of weeks ("%ldw", "{}w"), or "w " put behind a number.
formats="$(grep -rnE '"[^"]*(%[a-z]+|\{\})w|"w ' src tools --include='*.h' --include='*.cpp' || true)"
checks=$((checks + 1))
[[ "$formats" == src/calc/Dating.cpp:* && "$formats" != *$'\n'* ]] ||
  wrong "A gestation is put into words elsewhere than in src/calc/Dating.cpp alone:"$'\n'"$formats"
conclude
