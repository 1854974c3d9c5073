# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# PostgreSQL: a cluster of its own, which answers on a socket in this folder alone.
. "$(dirname "$0")/common.sh"
programs="$(pg_config --bindir 2>/dev/null || true)"
[[ -x "$programs/initdb" ]] || programs="$(find /usr/lib/postgresql -name bin | sort -V | tail -n 1)"
# The server does not run as root.
as_server=()
(($(id -u) != 0)) || as_server=(setpriv --reuid=postgres --regid=postgres --clear-groups)
mkdir server
(($(id -u) != 0)) || chown postgres server
chmod 0755 "$work"
trap 'kill $(jobs -p) 2>/dev/null || true; wait' EXIT
(cd server && "${as_server[@]}" "$programs/initdb" --pgdata=data --username=nascor --auth=trust --encoding=UTF8 --locale=C.UTF-8 --no-sync >../initdb.log)
(cd server && exec "${as_server[@]}" "$programs/postgres" -D data -k "$work/server" -c listen_addresses=) >server.log 2>&1 &
export PGHOST="$work/server" PGUSER=nascor PGDATABASE=postgres
until_true 60 psql -c 'select 1' || { cat server.log; fail "PostgreSQL does not answer."; }

# What goes in comes out.
rows=0
nascor-cli rows clinic --identify >one.csv 2>/dev/null || rows=$?
said=0
timed postgresql.sh "$scripts/postgresql.sh" clinic 2>errors || said=$?
[[ "$said" == "$rows" ]] || { tail -n 20 errors; fail "postgresql.sh ends with $said, where rows ends with $rows."; }
psql --quiet -c '\copy rows to back.csv with (format csv, header)'
equal one.csv back.csv
[[ "$(psql -At -c "select count(*) from pg_indexes where tablename = 'rows'")" == 2 ]] || fail "The indexes are not there."

# The list is that of the program's own index.
nascor-cli index clinic --db clinic.sqlite >/dev/null 2>&1 || true
nascor-cli due --db clinic.sqlite --from 2026-06-01 --days 365 --ac-below -2 --json >due.json
timed who-is-due.sql psql --quiet --csv -v from=2026-06-01 -v days=365 -v below=-2 -f "$scripts/who-is-due.sql" >due.csv
python3 - <<'PYTHON'
import csv, json
asked = [json.loads(line) for line in open("due.json", encoding="utf-8")]
expected = [(each["edd"], each["days"], each["reference_id"], each["ac_z"], "clinic/" + each["file"]) for each in asked]
said = [(row["edd"], int(row["days"]), row["reference_id"] or None, float(row["ac_z"]), row["file"])
        for row in csv.DictReader(open("due.csv", encoding="utf-8", newline=""))]
assert said == expected and said, f"The lists differ: {said[:3]} and {expected[:3]}, {len(said)} and {len(expected)}"
print(f"  {len(said)} documents are due with an AC below -2 SD, as by `nascor-cli due`")
PYTHON

# A run that dies in the middle leaves the table as it was.
refuses_half "$scripts/postgresql.sh" clinic
said=0
"$scripts/postgresql.sh" nowhere 2>errors || said=$?
[[ "$said" == 2 ]] || fail "Without a folder postgresql.sh ends with $said."
psql --quiet -c '\copy rows to back.csv with (format csv, header)'
equal one.csv back.csv
