Examinations stay in order of date

Three examinations are entered in the order in which the papers lie: 1 March, 1 January, 1 February. After each one the
examinations are in order of date, and the one just typed stays on show.

{"new":true}
{"edit":["examDateField","3/1/26"]}
{"edit":["bpdField","33"]}
{"do":["addExaminationAction"]}
{"state":true}
=~ {"currentExam":1,"edited":true,"fields":{"examDateField":"11/21/26","bpdField":"0.0"}}
{"edit":["examDateField","1/1/26"]}
{"state":true}
=~ {"currentExam":0,"fields":{"examDateField":"1/1/26"}}
{"edit":["bpdField","31"]}
{"do":["addExaminationAction"]}
{"edit":["examDateField","2/1/26"]}
{"state":true}
=~ {"currentExam":1,"fields":{"examDateField":"2/1/26"}}
{"edit":["bpdField","32"]}
{"do":["nextExamination"]}
{"state":true}
=~ {"currentExam":2,"fields":{"examDateField":"3/1/26","bpdField":"33.0"},"document":{"examinations":[{"examDateISO":"2026-01-01T00:00:00","measurements":[{"bpd":31}]},{"examDateISO":"2026-02-01T00:00:00","measurements":[{"bpd":32}]},{"examDateISO":"2026-03-01T00:00:00","measurements":[{"bpd":33}]}]}}

The ends are ends: nothing wraps around.

{"do":["nextExamination"]}
{"state":true}
=~ {"currentExam":2}
{"do":["previousExamination"]}
{"do":["previousExamination"]}
{"do":["previousExamination"]}
{"state":true}
=~ {"currentExam":0,"fields":{"bpdField":"31.0"}}

Two examinations on the same day keep the order in which they came; one without a date stands before all others.

{"edit":["examDateField","3/1/26"]}
{"state":true}
=~ {"currentExam":1,"document":{"examinations":[{"measurements":[{"bpd":32}]},{"measurements":[{"bpd":31}]},{"measurements":[{"bpd":33}]}]}}
{"edit":["examDateField",""]}
{"state":true}
=~ {"currentExam":0,"fields":{"examDateField":"","ageField":"-","bpdField":"31.0"}}
