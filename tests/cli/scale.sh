# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# The scripts of docs/scale that need no servers: each prints what one process prints, and says when rows are missing. Arguments: the
# folder of the scripts and that of the programs.
set -euo pipefail
scripts="$1" bin="$2"
export PATH="$bin:$PATH"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

nascor-clinic 2500 --out "$work/clinic"
touch "$work/clinic/.hidden.nascor"
# A folder may be a link.
ln -s clinic "$work/link"
status=0
nascor-cli rows "$work/link" --file path --fixed >"$work/expected" 2>/dev/null || status=$?
((status == 1)) || { echo "There is no bad document to compare with."; exit 1; }
# Dies in the middle of a row.
mkdir "$work/dying"
cat >"$work/dying/nascor-cli" <<DYING
#!/usr/bin/env bash
[[ "\$*" != *" /dev/null "* ]] || exec "$bin/nascor-cli" "\$@"
"$bin/nascor-cli" "\$@" | head -c 10007
kill -KILL \$\$
DYING
chmod +x "$work/dying/nascor-cli"
for script in xargs parallel; do
  [[ "$script" != parallel ]] || type -P parallel >/dev/null || { echo "without GNU parallel"; continue; }
  said=0
  "$scripts/$script.sh" "$work/link" 2 --fixed >"$work/said" 2>/dev/null || said=$?
  cmp "$work/expected" "$work/said"
  ((said == status)) || { echo "$script ends with $said"; exit 1; }
  said=0
  "$scripts/$script.sh" "$work/none" >/dev/null 2>&1 || said=$?
  ((said == 2)) || { echo "$script ends with $said where there is no folder"; exit 1; }
  said=0
  PATH="$work/dying:$PATH" "$scripts/$script.sh" "$work/link" >/dev/null 2>&1 || said=$?
  ((said == 2)) || { echo "$script ends with $said where a process died"; exit 1; }
done
