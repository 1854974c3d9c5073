# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# Dask: a scheduler and two workers, processes of their own on the loopback. One worker is killed within its third part.
. "$(dirname "$0")/common.sh"
export DASK_DISTRIBUTED__ADMIN__LOG_FORMAT="%(message)s" NO_PROXY=127.0.0.1
trap 'kill $(jobs -p) 2>/dev/null || true; wait' EXIT

# What the second worker runs: the third part is begun, and never ends.
mkdir hanging
cat >hanging/nascor-cli <<HANGING
#!/usr/bin/env bash
echo >>"$work/parts"
if (("\$(wc -l <"$work/parts")" == 3)); then
  "$(type -P nascor-cli)" "\$@" | head -c 10007
  echo \$\$ >"$work/hangs"
  exec sleep 1000
fi
exec "$(type -P nascor-cli)" "\$@"
HANGING
chmod +x hanging/nascor-cli

port="$(free_port)"
export DASK_SCHEDULER_ADDRESS="tcp://127.0.0.1:$port"
dask-scheduler --host 127.0.0.1 --port "$port" --no-dashboard --dashboard-address 127.0.0.1:0 >scheduler.log 2>&1 &
# worker NAME: becomes one.
worker() {
  exec dask-worker "$DASK_SCHEDULER_ADDRESS" --host 127.0.0.1 --name "$1" --nthreads 1 --no-nanny \
    --no-dashboard --dashboard-address 127.0.0.1:0 --local-directory "$work" >"$1.log" 2>&1
}
worker first &
PATH="$work/hanging:$PATH" worker second &
second=$!
two_workers() { (($(grep -c 'Register worker' scheduler.log) == 2)); }
until_true 60 two_workers || { cat ./*.log; fail "Two workers did not come."; }

documents="$(find -L clinic -name '*.nascor' | wc -l)"
# Debian's Python has Debian's Dask.
timed dask-rows.py /usr/bin/python3 "$scripts/dask-rows.py" clinic $(((documents + 99) / 100)) --fixed >said 2>errors &
run=$!
until_true 300 test -s hangs || { cat errors ./*.log; fail "The worker that shall be killed came to no third part."; }
disown "$second"
kill -KILL "$second" "$(cat hangs)"
so_far="$(stat -c %s said)"
said=0
wait "$run" || said=$?
[[ "$said" == "$status" ]] || { tail -n 20 errors >&2; fail "dask-rows.py ends with $said, where one process ends with $status."; }
grep -q 'Remove worker.*second' scheduler.log || { cat scheduler.log; fail "The scheduler lost no worker."; }
equal "$expected" said
refuses_no_folder /usr/bin/python3 "$scripts/dask-rows.py" none
printf '  a worker was killed after %d of %d bytes of the rows\n' "$so_far" "$(stat -c %s said)"
