# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# Slurm: a cluster of one node with its daemons in this folder, on the loopback. One task of the array dies in the middle of a row.
. "$(dirname "$0")/common.sh"
daemons=()
trap 'scancel --user="$(id -un)" 2>/dev/null || true; ((${#daemons[@]} == 0)) || kill "${daemons[@]}" 2>/dev/null || true; wait' EXIT

# Who sends a message is proved by munge.
chmod 0755 "$work"
mkdir -m 0755 munge
(umask 077 && head -c 1024 /dev/urandom >munge/key)
munged --foreground --force --key-file="$work/munge/key" --socket="$work/munge/socket" --pid-file="$work/munge/pid" \
  --log-file="$work/munge/log" --seed-file="$work/munge/seed" >munged.log 2>&1 &
daemons+=($!)
until_true 30 munge --socket="$work/munge/socket" --no-input || { cat munged.log munge/log; fail "munged does not answer."; }

node="$(hostname -s)"
mkdir state spool
cat >slurm.conf <<CONF
ClusterName=nascor
SlurmctldHost=$node(127.0.0.1)
SlurmctldPort=$(free_port)
SlurmdPort=$(free_port)
SlurmUser=$(id -un)
SlurmdUser=$(id -un)
AuthType=auth/munge
AuthInfo=socket=$work/munge/socket
CredType=cred/munge
StateSaveLocation=$work/state
SlurmdSpoolDir=$work/spool
SlurmctldPidFile=$work/slurmctld.pid
SlurmdPidFile=$work/slurmd.pid
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
MpiDefault=none
JobAcctGatherType=jobacct_gather/none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
SchedulerParameters=batch_sched_delay=0,sched_min_interval=100000
ReturnToService=2
NodeName=$node NodeAddr=127.0.0.1 CPUs=$(nproc) State=UNKNOWN
PartitionName=all Nodes=$node Default=YES MaxTime=INFINITE State=UP
CONF
export SLURM_CONF="$work/slurm.conf"
slurmctld -D -f "$SLURM_CONF" >slurmctld.log 2>&1 &
daemons+=($!)
slurmd -D -f "$SLURM_CONF" -N "$node" >slurmd.log 2>&1 &
daemons+=($!)
is_idle() { [[ "$(sinfo --noheader --format=%t)" == idle ]]; }
until_true 60 is_idle || { tail -n 20 slurmctld.log slurmd.log; sinfo || true; fail "The node does not come up."; }

# In the fourth task nascor-cli dies once, with half of a row written.
mkdir dying
cat >dying/nascor-cli <<DYING
#!/usr/bin/env bash
if [[ "\${SLURM_ARRAY_TASK_ID:-}" == 3 ]] && mkdir "$work/died" 2>/dev/null; then
  "$(type -P nascor-cli)" "\$@" | head -c 10007
  kill -KILL \$\$
fi
exec "$(type -P nascor-cli)" "\$@"
DYING
chmod +x dying/nascor-cli
PATH="$work/dying:$PATH" same_rows "$scripts/slurm.sh" clinic 8 --fixed
[[ -d died ]] || fail "No task died."
grep -qx "Run again: tasks 3" errors || { cat errors; fail "The fourth task was not run again, or not alone."; }
refuses_no_folder "$scripts/slurm.sh" none
said=0
"$scripts/slurm.sh" clinic 8 --no-such-option >refused 2>errors || said=$?
[[ "$said" == 2 ]] || fail "slurm.sh ends with $said where an option is wrong."
# The job asks for a partition that is not there: no task is run, and none waited for.
said=0
SBATCH_PARTITION=none "$scripts/slurm.sh" clinic 8 >refused 2>errors || said=$?
[[ "$said" == 2 ]] && grep -q 'invalid partition' errors && ! grep -q 'Run again' errors ||
  { cat errors >&2; fail "slurm.sh ends with $said where there can be no job."; }
printf '  the task that died was run again\n'
