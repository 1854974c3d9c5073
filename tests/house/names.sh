# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# ARCHITECTURE.md names classes and functions as they are: for each Class::name the header of the class has the name.
. "$(dirname "$0")/common.sh" "$@"
cd "$root"

mapfile -t headers < <(find src -name '*.h')
while IFS= read -r name; do
  checks=$((checks + 1))
  class="${name%%::*}"
  member="${name##*::}"
  mapfile -t declaring < <(grep -lE "^ *(class|struct) $class\b[^;]*\$|^namespace nascor::$class \{" "${headers[@]}")
  if ((${#declaring[@]} == 0)); then
    wrong "ARCHITECTURE.md: $name: there is no $class"
  elif ! grep -qE "\b$member\b" "${declaring[@]}"; then
    wrong "ARCHITECTURE.md: $name: ${declaring[*]} has no $member"
  fi
done < <(grep -oE '\b[A-Za-z]+::[A-Za-z]+' ARCHITECTURE.md | grep -vE '^(std|nascor)::' | sort -u)
((checks > 30)) || wrong "Only $checks names were looked up."
conclude
