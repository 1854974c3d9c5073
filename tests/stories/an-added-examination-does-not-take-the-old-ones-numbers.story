An added examination does not take the old one's numbers

The fields are full of the last visit when a new examination is added. They go to the old examination first; the new one starts
empty.

{"new":true}
{"edit":["examDateField","9/1/26"]}
{"edit":["bpdField","50"]}
{"edit":["notesField","First visit"]}
{"do":["addExaminationAction"]}
{"state":true}
=~ {"currentExam":1,"edited":true,"fields":{"examDateField":"11/21/26","bpdField":"0.0","notesField":""},"document":{"examinations":[{"note":"First visit","examDateISO":"2026-09-01T00:00:00","measurements":[{"bpd":50}]},{"note":"","examDateISO":"2026-11-21T00:00:00","measurements":[{"bpd":0}]}]}}

Entered for a date to come, the new one goes before it, and stays on show.

{"edit":["examDateField","12/24/26"]}
{"do":["addExaminationAction"]}
{"state":true}
=~ {"currentExam":1,"fields":{"examDateField":"11/21/26"},"document":{"examinations":[{"examDateISO":"2026-09-01T00:00:00"},{"examDateISO":"2026-11-21T00:00:00","measurements":[{"bpd":0}]},{"examDateISO":"2026-12-24T00:00:00"}]}}
