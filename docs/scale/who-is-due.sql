-- SPDX-FileCopyrightText: 2026 The Nascor developers
-- SPDX-License-Identifier: MIT

-- Who is due, with an AC that stays behind: the question of `nascor-cli due --ac-below`, asked of the table of postgresql.sh.
--   psql --csv -v from=2026-11-22 -v days=28 -v below=-2 -f who-is-due.sql
-- Of each fetus the last AC with a z-score counts; of more fetuses the lowest.
with due as (
  select * from rows where edd between date :'from' and date :'from' + :days
), last as (
  select distinct on (file, fetus) file, edd, reference_id, ac_z
  from due
  where ac_z is not null and exam_date is not null
  order by file, fetus, exam_date desc, exam desc
)
select edd, edd - date :'from' as days, reference_id, min(ac_z) as ac_z, file
from last
group by edd, reference_id, file
having min(ac_z) < :below
order by edd, file;
