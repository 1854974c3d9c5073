A deleted examination's numbers do not go to its neighbour

{"new":true}
{"edit":["examDateField","9/1/26"]}
{"edit":["bpdField","31"]}
{"do":["addExaminationAction"]}
{"edit":["examDateField","10/1/26"]}
{"edit":["bpdField","32"]}
{"do":["addExaminationAction"]}
{"edit":["examDateField","11/1/26"]}
{"edit":["bpdField","33"]}
{"edit":["notesField","third"]}

The last one is deleted. Something was measured in it, so it is asked about.

{"state":true}
{"do":["deleteExaminationAction"]}
{"state":true}
=~ {"currentExam":2,"alerts":[["Are you sure you want to remove this examination?","","Remove","Cancel"]],"document":{"examinations":[{},{},{}]}}
{"save":"a.nascor"}
{"answer":["Remove"]}
{"do":["deleteExaminationAction"]}
{"state":true}
=~ {"edited":true,"currentExam":1,"fields":{"examDateField":"10/1/26","bpdField":"32.0","notesField":""},"document":{"examinations":[{"measurements":[{"bpd":31}]},{"note":"","examDateISO":"2026-10-01T00:00:00","measurements":[{"bpd":32}]}]}}
{"do":["updateArrayOrder"]}
{"do":["previousExamination"]}
{"state":true}
=~ {"currentExam":0,"document":{"examinations":[{"note":"","measurements":[{"bpd":31}]},{"note":"","measurements":[{"bpd":32}]}]}}

In the middle of the list its successor takes its place.

{"answer":["Remove"]}
{"do":["deleteExaminationAction"]}
{"state":true}
=~ {"currentExam":0,"fields":{"bpdField":"32.0"},"document":{"examinations":[{"measurements":[{"bpd":32}]}]}}

The last examination of all is never deleted, and nobody is asked.

{"answer":["Remove"]}
{"state":true}
{"do":["deleteExaminationAction"]}
{"state":true}
=~ {"alerts":[],"fields":{"bpdField":"32.0"},"document":{"examinations":[{"measurements":[{"bpd":32}]}]}}
