#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# slurm.sh FOLDER [TASKS [OPTION...]]: the rows of a folder on standard output, made by an array job of Slurm with so many tasks, 16 if
# none is said. Run it in a folder that all nodes see by the same name, as they must see the documents and nascor-cli. A task that
# fails is run again, twice at most. The bytes are those of `nascor-cli rows FOLDER --file path OPTION...`; the status is 1 where that is.
set -euo pipefail
folder="$1" tasks="${2:-16}"
shift $(($# < 2 ? $# : 2))

work="$(mktemp -d "$PWD/slurm-rows.XXXXXX")"
trap 'rm -rf "$work"' EXIT

# A list of names for each task, in the order of the bytes of whole paths. Hidden names are no documents.
find -H "$folder" -name '.*' ! -path "$folder" -prune -o \( -type f -o -type l \) -name '*.nascor' -print0 | LC_ALL=C sort -z >"$work/names" || exit 2
split -t '\0' -n "l/$tasks" -a 6 -d "$work/names" "$work/part."

# The task. Its rows have their name when they are complete; those of a task that died do not.
cat >"$work/task" <<'TASK'
#!/usr/bin/env bash
set -euo pipefail
part="$1/part.$(printf '%06d' "$SLURM_ARRAY_TASK_ID")"
shift
status=0
nascor-cli rows --files-from "$part" --null --file path --no-header "$@" >"$part.begun" 2>"$part.said" || status=$?
((status <= 1)) || exit "$status"
printf '%s' "$status" >"$part.status"
mv "$part.begun" "$part.rows"
TASK

# unfinished: the numbers of the tasks without rows, by commas.
unfinished() {
  local task
  for ((task = 0; task < tasks; ++task)); do
    [[ -e "$work/part.$(printf '%06d' "$task").rows" ]] || printf '%d\n' "$task"
  done | paste -sd,
}

nascor-cli rows --files-from /dev/null --file path "$@"
for ((round = 1; round <= 3; ++round)); do
  array="$(unfinished)"
  [[ -n "$array" ]] || break
  ((round == 1)) || printf 'Run again: tasks %s\n' "$array" >&2
  # Its status is that of the tasks; what counts is what they left. Without a number there is no job.
  job="$(sbatch --parsable --wait --array="$array" --output="$work/log.%a" "$work/task" "$work" "$@" || true)"
  [[ -n "$job" ]] || exit 2
done
array="$(unfinished)"
if [[ -n "$array" ]]; then
  cat "$work"/log.* "$work"/part.*.said >&2 || true
  printf 'These tasks made no rows: %s\n' "$array" >&2
  exit 2
fi
cat "$work"/part.*.said >&2
cat "$work"/part.*.rows
[[ "$(cat "$work"/part.*.status)" != *1* ]]
