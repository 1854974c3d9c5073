# The scripts of docs/scale: each prints what one process prints. Arguments: the scripts' folder and that of the programs.
set -euo pipefail
scripts="$1" bin="$2"
export PATH="$bin:$PATH"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

nascor-clinic 2500 --out "$work/clinic"
touch "$work/clinic/.hidden.nascor"
status=0
nascor-cli rows "$work/clinic" --file path --fixed >"$work/expected" 2>/dev/null || status=$?
((status == 1)) || { echo "There is no bad document to compare with."; exit 1; }
for script in xargs parallel; do
  [[ "$script" != parallel ]] || type -P parallel >/dev/null || { echo "without GNU parallel"; continue; }
  said=0
  "$scripts/$script.sh" "$work/clinic" 2 --fixed >"$work/said" 2>/dev/null || said=$?
  cmp "$work/expected" "$work/said"
  ((said == status)) || { echo "$script ends with $said"; exit 1; }
done
